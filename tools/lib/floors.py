#!/usr/bin/env python3
"""floors.py [FOLDER]: the floors of the library, and the includes between them, read from its sources.

A floor is a folder of the library, or a part of its root. It includes only files on its own floor or lower ones. The
edges are printed, one per line: the including floor, the included floor, the number of includes, and `up` if they run
against the order.
"""

import posixpath
import re
import sys
from collections import Counter
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2] / "Sources/Shared/VecMat"
UMBRELLA = "VecMat.h"

# From the ground up. `tables`, `members` and the umbrella are parts of the root.
FLOORS = {
    "base": "marks of exports, numbers, the missing value, memory, masks, the companions",
    "kernels": "inner loops for each instruction set, over plain pointers",
    "tables": "matrix, matrixInt and Smatrix: shapes, cells, copies",
    "access": "how a cell is reached, in any storage; products over accessors",
    "members": "the members of matrix that compute, over the accessors",
    "frame": "the frame of a flat call: handles, arrays of columns, services",
    "sorting": "the stable sort, its application, ranks",
    "elementary": "vectors, shapes, products, predicates",
    "descriptive": "moments, quantiles, covariances, standardisation",
    "qualitative": "categories, frequencies, groups",
    "missing": "missing cells: counts, masks, imputation",
    "randomisation": "permutations, samples, designs",
    "decompositions": "eigenvalues, singular values, factors, inverses",
    "fitting": "least squares, Newton-Raphson, NIPALS, biplots",
    "umbrella": "VecMat.h: all public headers",
}
ORDER = {floor: place for place, floor in enumerate(FLOORS)}

# Folders without a public header, whatever their depth; so is every `detail`. Nothing else is private.
PRIVATE = {"access", "kernels"}

# Includes that run against the order, each with the reason: (including file, included file) -> reason.
EXCEPTIONS = {}


@dataclass(frozen=True, order=True)
class Include:
    source: str  # both relative to the library's folder
    target: str
    line: int


@dataclass(frozen=True)
class Edge:
    source: str
    target: str
    count: int
    is_upward: bool


def floor_of(path):
    """The floor of a file; None if there is no such floor."""
    if path == UMBRELLA:
        return "umbrella"
    folder, slash, _ = path.partition("/")
    if slash:
        return folder if folder in FLOORS else None
    return "members" if re.fullmatch(r"matrix_\w+\.cpp", path) else "tables"


def is_header(path):
    return path.endswith(".h")


def is_private(path):
    folders = path.split("/")[:-1]
    return "detail" in folders or bool(folders) and folders[0] in PRIVATE


def read_files(folder=ROOT):
    """The text of every source and header below the folder, by its path there."""
    return {str(file.relative_to(folder)): file.read_text(encoding="utf-8")
            for file in sorted(folder.rglob("*")) if file.suffix in (".h", ".cpp")}


def read_includes(files):
    """The includes between files of the library; those of the standard library have other brackets."""
    found = []
    for path, text in files.items():
        for number, line in enumerate(text.split("\n"), start=1):
            match = re.match(r'\s*#\s*include\s+"([^"]+)"', line)
            if match:
                target = posixpath.normpath(posixpath.join(posixpath.dirname(path), match[1]))
                found.append(Include(path, target, number))
    return found


def graph(includes):
    """The edges between floors, those that run upwards first, then by the order of the floors."""
    pairs = Counter((floor_of(i.source), floor_of(i.target)) for i in includes)
    edges = [Edge(source, target, count, ORDER[source] < ORDER[target])
             for (source, target), count in pairs.items() if source != target and source in ORDER and target in ORDER]
    return sorted(edges, key=lambda e: (not e.is_upward, ORDER[e.source], ORDER[e.target]))


def cycles(edges):
    """The groups of two or more floors that reach one another, each from the ground up."""
    above = {floor: {e.target for e in edges if e.source == floor} for floor in FLOORS}

    def reached(start):
        seen, left = set(), list(above[start])
        while left:
            floor = left.pop()
            if floor not in seen:
                seen.add(floor)
                left += above[floor]
        return seen

    reach = {floor: reached(floor) for floor in FLOORS}
    groups = {tuple(other for other in FLOORS if other in reach[floor] and floor in reach[other]) for floor in FLOORS}
    return sorted(group for group in groups if len(group) > 1)


def check_order(includes, exceptions):
    wrong = []
    for i in includes:
        source, target = floor_of(i.source), floor_of(i.target)
        if source is None or target is None:
            wrong.append(f"{i.source}:{i.line}: {i.source if source is None else i.target} is on no floor")
        elif ORDER[source] < ORDER[target] and (i.source, i.target) not in exceptions:
            wrong.append(f"{i.source}:{i.line}: {source} includes {i.target}, which is above it")
    used = {(i.source, i.target) for i in includes if floor_of(i.source) in ORDER and floor_of(i.target) in ORDER
            and ORDER[floor_of(i.source)] < ORDER[floor_of(i.target)]}
    wrong += [f"the exception for {source} -> {target} is not needed" for source, target in sorted(set(exceptions) - used)]
    wrong += [f"the exception for {source} -> {target} has no reason" for (source, target), reason
              in sorted(exceptions.items()) if not reason.strip()]
    return wrong


def check_private(files, includes):
    """No public header includes a private one, and VecMat.h includes every public one. So the
    installation is self-contained and complete."""
    wrong = [f"{i.source}:{i.line}: a public header includes the private {i.target}" for i in includes
             if is_header(i.source) and not is_private(i.source) and is_private(i.target)]
    wrong += [f"{i.source}:{i.line}: {i.target} does not exist" for i in includes if i.target not in files]
    public = {path for path in files if is_header(path) and not is_private(path)} - {UMBRELLA}
    included = {i.target for i in includes if i.source == UMBRELLA}
    return wrong + [f"{UMBRELLA} does not include {path}" for path in sorted(public - included)]


def check(files, exceptions=None):
    """What is wrong with the includes, one per line."""
    includes = read_includes(files)
    known = EXCEPTIONS if exceptions is None else exceptions
    wrong = check_order(includes, known) + check_private(files, includes)
    allowed = {(floor_of(source), floor_of(target)) for source, target in known}
    groups = cycles([e for e in graph(includes) if (e.source, e.target) not in allowed])
    return wrong + [f"these floors form a cycle: {', '.join(group)}" for group in groups]


def main():
    files = read_files(Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT)
    edges = graph(read_includes(files))
    for e in edges:
        print(f"{e.source}\t{e.target}\t{e.count}" + ("\tup" if e.is_upward else ""))
    print(f"{sum(e.count for e in edges if e.is_upward)} includes run upwards, {len(cycles(edges))} cycles")


if __name__ == "__main__":
    main()
