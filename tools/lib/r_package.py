#!/usr/bin/env python3
"""r_package.py DIRECTORY: puts the R package together in DIRECTORY/vecmat, ready for R CMD build.

Bindings/r as it is, the flat layer, the help pages and the NAMESPACE written from the project's tables and from the
comments in R's files, the penguins, and the library's sources for where the library is not installed.
"""

import csv
import re
import shutil
import sys
from pathlib import Path

import r_flat
import r_help
from arguments import ROOT

PACKAGE = ROOT / "Bindings/r"


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def without_pragmas(text):
    """R's check takes no file that silences a compiler, even where the warning is wrong."""
    return re.sub(r"(?m)^[ \t]*#[ \t]*pragma (GCC|clang) diagnostic.*\n", "", text)


def copy_library(to):
    """The sources from which the package builds the library, in the folders that the library has."""
    shared = ROOT / "Sources/Shared"
    for source in sorted(shared.rglob("*")):
        if source.suffix in (".cpp", ".h"):
            write(to / source.relative_to(shared), without_pragmas(source.read_text(encoding="utf-8")))
    write(to / "c/VecMatFlat.h", (ROOT / "Bindings/c/VecMatFlat.h").read_text(encoding="utf-8"))


def penguins():
    """As data(): semicolons between the cells, NA where one is missing."""
    with open(ROOT / "Examples/survey/penguins.csv", encoding="utf-8", newline="") as file:
        return "".join(";".join(cell or "NA" for cell in row) + "\n" for row in csv.reader(file))


def stage(directory):
    target = Path(directory) / "vecmat"
    shutil.rmtree(target, ignore_errors=True)
    shutil.copytree(PACKAGE, target, ignore=shutil.ignore_patterns("*.o", "*.so", ".gitignore", "README.md"))
    for name, text in {**r_flat.files(), **r_help.files(PACKAGE)}.items():
        write(target / name, text)
    copy_library(target / "src/library")
    write(target / "data/vm_penguins.csv", penguins())


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    stage(sys.argv[1])


if __name__ == "__main__":
    main()
