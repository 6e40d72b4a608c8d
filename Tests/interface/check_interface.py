#!/usr/bin/env python3
"""check_interface.py [--complete] [--node NODE] LIST HEADERS LIBRARY: does the library export what the list and the headers say?

Exit status 1 where anything that is there is wrong, with --complete also where anything is missing.
"""

import argparse
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import interface


def imports(library):
    """What is wrong with that which a DLL needs: it stands alone, but for its companions and the system."""
    taken = interface.windows_imports(library)
    companions = {"CompanionBasics.dll", "CompanionRandom.dll", "CompanionRuntime.dll"}
    wrong = [f"the library needs {name}" for name in sorted(taken.keys() - companions - {"KERNEL32.dll", "msvcrt.dll"})]
    # The C library of the system has a function of this name, too.
    if "_wtof" not in taken.get("CompanionRuntime.dll", ()):
        wrong.append("the library takes _wtof from elsewhere than its companion")
    return wrong


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--complete", action="store_true", help="fail on what is missing, too")
    parser.add_argument("--node", help="the version node that every exported symbol carries")
    parser.add_argument("list", help="the interface list, exports.tsv")
    parser.add_argument("headers", help="the folder of the library's headers")
    parser.add_argument("library", help="the shared library")
    arguments = parser.parse_args()

    rows, wrong = interface.read_rows(Path(arguments.list).read_text(encoding="utf-8"))
    declarations, unreadable = interface.read_headers(arguments.headers)
    wrong += unreadable
    is_windows = arguments.library.endswith(".dll")
    read_symbols = interface.read_windows_symbols if is_windows else interface.read_symbols
    disagreements, missing = interface.compare(rows, declarations, read_symbols(arguments.library))
    wrong += disagreements
    wrong += imports(arguments.library) if is_windows else [
        f"the library calls its own {name} through the loader" for name in interface.open_calls(arguments.library)]
    if arguments.node:
        wrong += [f"the library exports {name} without the version {arguments.node}"
                  for name in interface.unversioned_symbols(arguments.library, arguments.node)]
    umbrella = interface.check_umbrella(arguments.headers, declarations)
    if arguments.complete:
        wrong += umbrella + [f"missing: {row.signature()}" for row in missing]

    notes = interface.summary(rows, missing) + ([] if arguments.complete else umbrella)
    print("\n".join(notes + [f"WRONG: {line}" for line in wrong]))
    print(f"{len(wrong)} wrong, {len(missing)} missing")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
