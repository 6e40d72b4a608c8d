#!/usr/bin/env python3
"""ole_calls.py CALLS PROGRAM...: the calls that CALLS tells of, repeated with arrays of OLE Automation.

CALLS is what write_host_calls of the native build has written, PROGRAM what runs ole_calls.exe. Every array and string must
come back bit for bit as in the native build, and nothing that the library made may damage the heap of its host.
"""

import json
import os
import subprocess
import sys

TYPES = {"double": "d", "int": "i", "short": "h"}
NAN = "7ff8000000000000"


def read_types():
    """The C type of each argument of each function, and of its result."""
    from pathlib import Path
    sys.path.insert(0, str(Path(__file__).resolve().parents[3] / "tools/lib"))
    from arguments import read_calls
    return {name: ([a.type for a in call.arguments], call.returns) for name, call in read_calls().items()}


def hex_text(text):
    if text is None:
        return "-"
    return "x" + text.encode("utf-16-be", "surrogatepass").hex()


def doubles(text):
    cells = [text[k:k + 16] for k in range(0, len(text), 16)]
    return [NAN if is_nan(cell) else cell for cell in cells]


def is_nan(cell):
    bits = int(cell, 16)
    return bits >> 52 & 0x7FF == 0x7FF and bits & (1 << 52) - 1 != 0


def cells(kind, column):
    """The words of one array."""
    if kind == "double*" or isinstance(column, str):
        return doubles(column)
    if any(isinstance(cell, str) or cell is None for cell in column):
        return [hex_text(cell) for cell in column]
    return [str(cell) for cell in column]


LETTERS = {"double*": "D", "int*": "I", "short*": "H", "wchar_t**": "S"}


def request(call, kinds):
    words = [call["call"]]
    for argument, kind in zip(call["arguments"], kinds):
        if "value" in argument:
            words += [TYPES[kind], str(argument["value"])]
        elif argument["before"] is None:
            words.append("n")
        elif kind in ("const wchar_t*", "const void*"):
            words += ["B", hex_text(argument["before"])]
        elif kind == "SAFEARRAY**":
            words += ["K", str(len(argument["before"]))]
            for column in argument["before"]:
                part = cells(kind, column)
                words += ["D" if isinstance(column, str) else "S", str(len(part))] + part
        else:
            part = cells(kind, argument["before"])
            words += [LETTERS[kind], str(len(part))] + part
    return " ".join(words)


def empty_is_null(words):
    """A string that is not there and an empty one are the same to a host."""
    return ["x" if word == "-" else word for word in words]


def expected(call, kinds, returns):
    arrays, columns = [], []
    for argument, kind in zip(call["arguments"], kinds):
        if argument.get("after") is None:
            continue
        if kind == "SAFEARRAY**":
            columns += [word for column in argument["after"] for word in cells(kind, column)]
        else:
            arrays += cells(kind, argument["after"])
    result = []
    if returns == "double":
        result = doubles(call["returns"])
    elif returns == "wchar_t*":
        result = [hex_text(call["returns"])]
    elif returns != "void":
        result = [str(call["returns"])]
    return [call["call"], *arrays, *columns, "=", *result]


def normal(words):
    return empty_is_null([NAN if len(word) == 16 and is_hex(word) and is_nan(word) else word for word in words])


def is_hex(word):
    return all(letter in "0123456789abcdef" for letter in word)


def main():
    types = read_types()
    with open(sys.argv[1], encoding="utf-8") as file:
        calls = [json.loads(line) for line in file]
    requests = "".join(request(call, types[call["call"]][0]) + "\n" for call in calls)
    # No cache of strings, and a heap that is checked: what is wrong shows at once.
    environment = {**os.environ, "OANOCACHE": "1", "WINEDEBUG": "warn+heap,err+all"}
    run = subprocess.run(sys.argv[2:], input=requests, capture_output=True, text=True, env=environment, check=False)
    lines = run.stdout.splitlines()
    wrong = []
    for call, line in zip(calls, lines):
        want, found = expected(call, *types[call["call"]]), line.split()
        if normal(want) != normal(found):
            wrong.append(f"{call['call']}: {' '.join(found)}\n    instead of {' '.join(want)}")
    heap = [line for line in run.stderr.splitlines() if "heap" in line.lower()]
    if run.returncode or len(lines) != len(calls):
        wrong.append(f"{len(lines)} of {len(calls)} calls came back, status {run.returncode}: {run.stderr[-2000:]}")
    wrong += heap[:20]
    names = {call["call"] for call in calls}
    print("\n".join([f"WRONG: {line}" for line in wrong[:20]]
                    + [f"{len(calls)} calls of {len(names)} functions with arrays of OLE Automation, {len(wrong)} wrong"]))
    return 1 if wrong or len(names) < 100 else 0


if __name__ == "__main__":
    sys.exit(main())
