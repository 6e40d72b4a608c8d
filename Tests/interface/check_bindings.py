#!/usr/bin/env python3
"""check_bindings.py [--complete] ROOT [GUARDED]: are the declarations for macros and for C those of the headers?

GUARDED is the library of the guarded calls, whose exports are compared, too. And are the files what tools/bindings writes? Without --complete a function may be declared of which the
header is still to come.
"""

import argparse
import re
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import bindings
import interface
from arguments import read_calls


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--complete", action="store_true")
    parser.add_argument("root", type=Path)
    parser.add_argument("guarded", nargs="?")
    arguments = parser.parse_args()
    root = arguments.root
    declarations, wrong = interface.read_headers(root / "Sources/Shared/VecMat")
    # read as bytes: the ends of lines are looked at
    modules = [path.read_bytes().decode("ascii") for path in sorted((root / "Bindings/vba").glob("VecMatCalls*.bas"))]
    nullable = {(call.name, argument.name) for call in read_calls(root).values() for argument in call.arguments
                if argument.null is not False}
    wrong += bindings.compare_macros(modules, declarations, nullable)
    wrong += bindings.compare_c((root / "Bindings/c/VecMatFlat.h").read_text(encoding="ascii"), declarations)
    wrong += bindings.compare_guarded((root / "Bindings/c/VecMatGuarded.h").read_text(encoding="ascii"), declarations)
    if arguments.guarded:
        is_windows = arguments.guarded.endswith(".dll")
        read_symbols = interface.read_windows_symbols if is_windows else interface.read_symbols
        wrong += bindings.compare_guarded_symbols(read_symbols(arguments.guarded), declarations)
    if not arguments.complete:
        listed = {row.name for row in interface.read_rows((root / "exports.tsv").read_text(encoding="utf-8"))[0]}
        to_come = listed - {declaration.name for declaration in declarations}
        wrong = [line for line in wrong
                 if not line.endswith("of the headers") or not to_come & set(re.findall(r"\w+", line))]
    stale = subprocess.run([sys.executable, "-B", root / "tools/bindings", "--check"], check=False,
                           capture_output=True, text=True)
    if stale.returncode != 0:
        wrong.append(stale.stdout + stale.stderr)
    print("\n".join(f"WRONG: {line}" for line in wrong))
    print(f"{len(bindings.expected_for_macros(declarations))} functions for macros, {len(wrong)} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
