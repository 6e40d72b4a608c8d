#!/usr/bin/env python3
"""check_floors.py [FOLDER]: does each file of the library include only what stands on its floor or below?

And no public header includes a private one, and VecMat.h includes every public one. Exit status 1 where not.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import floors


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else floors.ROOT
    files = floors.read_files(folder)
    if not files:
        print(f"no sources in {folder}")
        return 1
    wrong = floors.check(files)
    print("\n".join(f"WRONG: {line}" for line in wrong))
    print(f"{len(files)} files, {len(floors.read_includes(files))} includes, {len(floors.EXCEPTIONS)} exceptions, "
          f"{len(wrong)} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
