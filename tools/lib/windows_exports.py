#!/usr/bin/env python3
"""windows_exports.py LIST NM LIBRARY DEFINITION OBJECT...: writes what a Windows library exports.

Windows has no symbol visibility: a module definition file lists the exports. It contains the functions of the interface
list (exports.tsv) and nothing else, under the names by which the object files define them. Exit status 1 if a function
of the list is not defined anywhere.
"""

import subprocess
import sys
from pathlib import Path

import interface


def defined_symbols(nm, objects):
    """The external functions defined in the object files, by their linker names."""
    out = subprocess.run([nm, "--defined-only", "--extern-only", "--format=posix", *objects],
                         check=True, capture_output=True, text=True).stdout
    fields = (line.split(" ") for line in out.splitlines())
    return sorted({line[0] for line in fields if len(line) > 2 and line[1] in "TW"})


def definition(library, rows, symbols):
    """The text of the module definition file, and which rows have no symbol."""
    demangled = subprocess.run(["c++filt"], input="\n".join(symbols), check=True, capture_output=True,
                               text=True).stdout.splitlines()
    keys = {}
    for symbol, name in zip(symbols, demangled):
        keys.setdefault(interface.one_symbol_spelling(name), []).append(symbol)
    missing = [row.signature() for row in rows if row.key() not in keys]
    # A constructor has two symbols of one signature, for a whole object and for a part of one.
    exported = sorted(symbol for row in rows for symbol in keys.get(row.key(), []))
    return "\n".join([f'LIBRARY "{library}"', "EXPORTS"] + [f'    "{symbol}"' for symbol in exported]) + "\n", missing


def main():
    list_path, nm, library, target, *objects = sys.argv[1:]
    rows, wrong = interface.read_rows(Path(list_path).read_text(encoding="utf-8"))
    text, missing = definition(library, rows, defined_symbols(nm, objects))
    for line in wrong + [f"defined nowhere: {signature}" for signature in missing]:
        print(line, file=sys.stderr)
    Path(target).write_text(text, encoding="ascii")
    return 1 if wrong or missing else 0


if __name__ == "__main__":
    sys.exit(main())
