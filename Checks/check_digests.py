#!/usr/bin/env python3
"""check_digests.py PROGRAM: has every function a digest?

A function over tables needs none where a function over arrays has the same parameters, an array in place of each table:
that one has it inside. Every function with a digest is called by the program.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.path[:0] = [str(ROOT / "tools/lib"), str(ROOT / "Tests/interface")]
from check_calls import called_symbols
import interface

# What they give depends on the machine, goes to the terminal, or is nothing.
WITHOUT_DIGEST = {"GetStatusMemory", "Cpp_GetStatusMemory", "dprint", "matrix::~matrix()", "matrixInt::~matrixInt()",
                  "Smatrix::~Smatrix()"}
FLAT_TYPES = {"matrix*": "double*", "matrix*&": "double*", "matrixInt*": "int*", "matrixInt*&": "int*",
              "Smatrix*": "wchar_t**", "Smatrix*&": "wchar_t**", "matrix**": "SAFEARRAY**", "Smatrix**": "SAFEARRAY**",
              "int&": "int*"}


def takes_tables(row):
    return row.linkage == "C++" or any("matrix" in kind for kind in row.types)


def needing_digests(rows):
    inside = {(re.sub("^(VB_|Cpp_)", "", row.name), row.types) for row in rows if not takes_tables(row)}
    for row in rows:
        types = tuple(FLAT_TYPES.get(kind, kind) for kind in row.types)
        if row.key() not in WITHOUT_DIGEST and not (takes_tables(row) and (row.name, types) in inside):
            yield row


def main():
    rows, wrong = interface.read_rows((ROOT / "exports.tsv").read_text(encoding="utf-8"))
    digests = re.findall(r'^\{"(.+)", 0x', (ROOT / "Checks/digests.inc").read_text(encoding="utf-8"), re.M)
    known = {row.key(): row for row in rows}
    wrong += [f"no digest of {row.key()}" for row in needing_digests(rows) if row.key() not in digests]
    wrong += [f"a digest of {name}, which is not exported" for name in digests if name not in known]
    called = called_symbols([sys.argv[1]])
    wrong += [f"{name} has a digest and is not called" for name in digests if name not in called]
    print("\n".join(f"WRONG: {line}" for line in wrong))
    print(f"{len(rows)} functions, {len(digests)} digests, {len(wrong)} wrong")
    return 1 if wrong or not digests else 0


if __name__ == "__main__":
    sys.exit(main())
