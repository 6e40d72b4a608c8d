#!/usr/bin/env python3
"""uncovered_lines.py LINES.json: prints each source line that gcovr reports as never run."""

import json
import sys
from pathlib import Path


def main():
    for file in json.loads(Path(sys.argv[1]).read_text())["files"]:
        source = Path(file["file"]).read_text().splitlines()
        for line in file["lines"]:
            if line["count"] == 0 and not line["gcovr/noncode"]:
                number = line["line_number"]
                print(f"{file['file']}:{number}: {source[number - 1].strip()}")


if __name__ == "__main__":
    main()
