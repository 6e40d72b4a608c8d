#!/usr/bin/env python3
"""check_calls.py LIST PROGRAM...: is every exported function called by a test?

What a test program calls is what it asks of the library by name (or, for a function with an inline body, has a copy of):
overloads are told apart. A mention in a comment or in a string is no call.
"""

import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import interface

ASKED_FOR = set("UwvWVu")  # undefined, or defined in every program that calls it


def called_symbols(programs, nm="nm", demangler="c++filt"):
    """The names that the programs refer to, as the interface list has them."""
    symbols = set()
    for program in programs:
        out = subprocess.run([nm, "--format=posix", program], check=True, capture_output=True, text=True).stdout
        for line in out.splitlines():
            words = line.split()
            if len(words) > 1 and words[1] in ASKED_FOR:
                symbols.add(words[0].split("@")[0])
    demangled = subprocess.run([demangler], input="\n".join(sorted(symbols)), check=True, capture_output=True,
                               text=True).stdout.splitlines()
    return {interface.one_symbol_spelling(symbol) for symbol in demangled}


def not_called(rows, symbols):
    return [row.signature() for row in rows if row.key() not in symbols]


def main():
    rows, wrong = interface.read_rows(Path(sys.argv[1]).read_text(encoding="utf-8"))
    # a test that is not built yet is missed by the test that runs it
    programs = [program for program in sys.argv[2:] if Path(program).exists()]
    wrong += [f"no test calls {signature}" for signature in not_called(rows, called_symbols(programs))]
    print("\n".join(f"WRONG: {line}" for line in wrong))
    print(f"{len(rows)} functions, {len(programs)} programs, {len(wrong)} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
