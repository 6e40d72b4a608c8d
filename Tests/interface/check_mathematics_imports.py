#!/usr/bin/env python3
"""check_mathematics_imports.py NM LIBM LIBRARY...: what do the libraries import of the C library's mathematics?

Only functions that are exact or rounded correctly everywhere are allowed; any other may give other bits on another
machine. Exit status 1 where one is imported.
"""

import subprocess
import sys

ALLOWED = {"sqrt", "floor", "ceil", "trunc", "fma"}


def symbols(nm, file, kind):
    """The dynamic symbols of a library, defined or undefined ones, without their versions."""
    lines = subprocess.run([nm, "-D", f"--{kind}-only", file], check=True, capture_output=True, text=True).stdout
    return {line.split()[-1].split("@")[0] for line in lines.splitlines()}


def forbidden(imported, mathematics):
    """Those of the imported functions that the C library's mathematics has, in any width."""
    return sorted(name for name in imported & mathematics if name not in ALLOWED)


def main():
    nm, libm, *libraries = sys.argv[1:]
    mathematics = symbols(nm, libm, "defined")
    if not {"exp", "log", "log10", "pow", "cbrt", "sqrt"} <= mathematics:
        print(f"{libm} doesn't look like the C library's mathematics")
        return 1
    status = 0
    for library in libraries:
        imported = symbols(nm, library, "undefined")
        names = forbidden(imported, mathematics)
        print(f"{library}: {len(imported)} imports, {len(imported & mathematics)} of the mathematics"
              + "".join(f"\nWRONG: imports {name}" for name in names))
        if names or not imported:
            status = 1
    return status if libraries else 1


if __name__ == "__main__":
    sys.exit(main())
