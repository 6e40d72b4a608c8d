#!/usr/bin/env python3
"""The corpus of the fuzzer of all flat functions: a line for each case in Fuzz/corpus/flat_calls.txt, its function and
its bytes in hexadecimal digits. libFuzzer wants files, in which two bytes count the functions: their order may change.

fuzz_corpus.py unpack FUZZER FOLDER                 writes each line as a file
fuzz_corpus.py pack FUZZER FOLDER [--most N]        prints lines for the files, at most N for each function: the shortest
fuzz_corpus.py line FUZZER FILE                     prints the line for one file: a finding, for the corpus
"""

import subprocess
import sys
from pathlib import Path

CORPUS = Path(__file__).resolve().parents[2] / "Fuzz/corpus/flat_calls.txt"


def names(fuzzer):
    return subprocess.run([fuzzer, "--names"], capture_output=True, text=True, check=True).stdout.split()


def unpacked(line, order):
    name, _, digits = line.partition(" ")
    return order.index(name).to_bytes(2, "little") + bytes.fromhex(digits)


def packed(data, order):
    name = order[int.from_bytes(data[:2], "little") % len(order)]
    return f"{name} {data[2:].hex()}".rstrip()


def lines(path=CORPUS):
    return [line for line in path.read_text(encoding="ascii").splitlines() if line and not line.startswith("#")]


def unpack(order, folder):
    folder.mkdir(parents=True, exist_ok=True)
    for k, line in enumerate(lines()):
        (folder / f"{k:05}").write_bytes(unpacked(line, order))


def pack(order, folder, most):
    found = {}
    for data in sorted((path.read_bytes() for path in folder.iterdir()), key=lambda data: (len(data), data)):
        if len(data) >= 2:
            line = packed(data, order)
            held = found.setdefault(line.partition(" ")[0], [])
            if len(held) < most and line not in held:
                held.append(line)
    return [line for name in order for line in found.get(name, [])]


def main():
    words = sys.argv[1:]
    if len(words) < 3 or words[0] not in ("unpack", "pack", "line"):
        sys.exit(__doc__)
    order, path = names(words[1]), Path(words[2])
    if words[0] == "unpack":
        unpack(order, path)
    elif words[0] == "pack":
        most = int(words[words.index("--most") + 1]) if "--most" in words else sys.maxsize
        print("\n".join(pack(order, path, most)))
    else:
        print(packed(path.read_bytes(), order))


if __name__ == "__main__":
    main()
