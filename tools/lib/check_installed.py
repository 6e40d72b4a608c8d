#!/usr/bin/env python3
"""check_installed.py [--hardened] FOLDER...: what packages carry is what their lists of parts tell.

Each FOLDER is an unpacked package or an installed tree. It has a list in SPDX, in which every program and library of the
folder stands with its checksum, and every library that they load from elsewhere. With --hardened each of them is built as
SECURITY.md says: position independent, relocations read-only and bound at the start, no executable stack, and of the
library itself a stack protector. Exits with 1 if anything is wrong.
"""

import hashlib
import json
import re
import subprocess
import sys
from pathlib import Path

from sbom import needed_libraries

LIST = "*.spdx.json"
PROTECTED = re.compile(r"libVecMat\.so\.|vecmat-digest")


def is_program(path):
    if not path.is_file() or path.is_symlink():
        return False
    with open(path, "rb") as file:
        return file.read(4) == b"\x7fELF"


def wrong_in_list(folder, programs):
    lists = list(folder.rglob(LIST))
    if len(lists) != 1:
        yield f"{len(lists)} lists of parts instead of one"
        return
    told = json.loads(lists[0].read_text(encoding="utf-8"))
    if told["spdxVersion"] != "SPDX-2.3" or not told["files"]:
        yield "the list of parts tells nothing"
    named = set()
    for file in told["files"]:
        path = folder / file["fileName"]
        named.add(path.resolve())
        sums = {sum_["algorithm"]: sum_["checksumValue"] for sum_ in file["checksums"]}
        if not path.exists():
            yield f"{file['fileName']} is in the list of parts, and not there"
        elif hashlib.sha256(path.read_bytes()).hexdigest() != sums["SHA256"]:
            yield f"{file['fileName']} has another checksum than in the list of parts"
    yield from (f"{path.relative_to(folder)} is not in the list of parts" for path in programs if path.resolve() not in named)
    libraries = {package["name"] for package in told["packages"]}
    yield from (f"{name} is loaded, and not in the list of parts" for name in needed_libraries(programs) if name not in libraries)


def readelf(option, path):
    return subprocess.run(["readelf", "--wide", option, path], check=True, capture_output=True, text=True).stdout


def wrong_in_program(path):
    segments, dynamic = readelf("--program-headers", path), readelf("--dynamic", path)
    if "file type is DYN" not in segments:
        yield "is not position independent"
    if "GNU_RELRO" not in segments:
        yield "has no read-only relocations"
    if not re.search(r"\bNOW\b|BIND_NOW", dynamic):
        yield "is not bound at the start"
    if re.search(r"GNU_STACK(?:\s+\S+){5}\s+\S*E", segments):
        yield "has an executable stack"
    if PROTECTED.match(path.name) and "__stack_chk_fail" not in readelf("--dyn-syms", path):
        yield "has no stack protector"


def faults(folder, is_hardened):
    programs = sorted(filter(is_program, folder.rglob("*")))
    yield from wrong_in_list(folder, programs)
    for path in programs if is_hardened else ():
        yield from (f"{path.relative_to(folder)} {fault}" for fault in wrong_in_program(path))


def main():
    folders = [Path(name).resolve() for name in sys.argv[1:] if name != "--hardened"]
    wrong = [f"{folder.name}: {fault}" for folder in folders for fault in faults(folder, "--hardened" in sys.argv[1:])]
    programs = sum(is_program(path) for folder in folders for path in folder.rglob("*"))
    print("\n".join([*(f"WRONG: {fault}" for fault in wrong),
                     f"{len(folders)} lists of parts, {programs} programs and libraries, {len(wrong)} faults"]))
    return 1 if wrong or not programs else 0


if __name__ == "__main__":
    sys.exit(main())
