#!/usr/bin/env python3
"""js_size.py PACKAGE: how many bytes a page loads, packed as a web server packs them. Exits with 1 above the limit."""

import gzip
import sys
from pathlib import Path

LIMIT = 1_500_000


def main():
    package = Path(sys.argv[1])
    files = [package / "vecmat.wasm", *sorted((package / "src").glob("*.js"))]
    sizes = {path.name: (path.stat().st_size, len(gzip.compress(path.read_bytes(), 9))) for path in files}
    scripts = [size for name, size in sizes.items() if name != "vecmat.wasm"]
    module = sizes["vecmat.wasm"]
    packed = module[1] + sum(size[1] for size in scripts)
    print(f"Loaded: {packed / 1000:.0f} kB packed by gzip: module {module[1] / 1000:.0f} of {module[0] / 1000:.0f}, "
          f"scripts {sum(size[1] for size in scripts) / 1000:.0f} of {sum(size[0] for size in scripts) / 1000:.0f}; "
          f"the limit is {LIMIT / 1000:.0f}")
    return 0 if packed <= LIMIT else 1


if __name__ == "__main__":
    sys.exit(main())
