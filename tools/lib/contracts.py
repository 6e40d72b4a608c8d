#!/usr/bin/env python3
"""contracts.py [--check | --show UNIT... | --accept UNIT...]: the pages that tell how each function treats what it gets.

Docs/contracts/<family>.tsv has a row for each group of exported functions with one contract: how they treat a missing
cell, a mask, a weight, a divisor, an empty input. Its last column is a fingerprint of the declarations and header
comments from which the row was read. From these tables the pages <family>.md are written.

    (no option)   writes the pages
    --check       writes nothing; exit status 1 if a function stands in no row or in two, if a comment or declaration has
                  changed since its row was read, or if a page is not what would be written
    --show        prints the rows of units with the comments that hold for them, to be read again
    --accept      renews the fingerprints of units, whose rows have been read again
"""

import argparse
import hashlib
import re
import sys
from dataclasses import dataclass
from pathlib import Path

from declarations import read_header
from header_comments import comments_by_line

ROOT = Path(__file__).resolve().parents[2]

COLUMNS = ["unit", "functions", "missing", "mask", "weights", "divisor", "empty", "fingerprint"]
HEADINGS = ["Functions", "Missing cell", "Mask", "Weights", "Divisor", "Empty input"]
NOTHING = "-"
FAMILIES = {
    "tables": "Tables and the frame of a call",
    "elementary": "Elementary operations on vectors and tables",
    "sorting": "Sorting and ranks",
    "missing": "Missing data",
    "qualitative": "Qualitative variables and groups",
    "descriptive": "Descriptive statistics",
    "randomisation": "Randomisation, ranges and designs",
    "decompositions": "Decompositions",
    "fitting": "Model fitting",
}
# Parameters of these names have a column to be told about in.
TOLD = {"mask": {"mask", "filter", "constraints"}, "weights": {"w", "weights"},
        "divisor": {"sample", "freqWeights", "sampleVariance", "countDivisor"}}


@dataclass(frozen=True)
class Contract:
    declaration: object
    comments: tuple  # as one line each: the header's own, those of the section, that of the function

    def text(self):
        d = self.declaration
        signature = ", ".join(f"{kind} {name}" for kind, name in zip(d.types, d.names))
        return "\n".join((*self.comments, f"{d.linkage} {d.returns} {d.name}({signature})"))


@dataclass
class Row:
    unit: str
    functions: list
    cells: list  # missing, mask, weights, divisor, empty
    fingerprint: str
    line: int


def family_of(unit):
    folder = unit.split("/")[0]
    return folder if folder in FAMILIES else "tables"


def read_contracts(folder):
    """The contracts of all exported functions, by unit and signature."""
    contracts = {}
    for path in sorted(Path(folder).rglob("*.h")):
        text = path.read_text(encoding="utf-8")
        unit = path.relative_to(folder).with_suffix("").as_posix()
        held = comments_by_line(text)
        for declaration in read_header(text, unit + ".h"):
            contracts.setdefault(unit, {})[declaration.signature()] = Contract(
                declaration, held[declaration.line - 1].texts())
    return contracts


def read_table(text):
    lines = text.rstrip("\n").split("\n")
    if lines[0].split("\t") != COLUMNS:
        raise ValueError(f"the columns are not {', '.join(COLUMNS)}")
    rows = []
    for number, line in enumerate(lines[1:], start=2):
        cells = line.split("\t")
        if len(cells) != len(COLUMNS) or not all(cells[:-1]):
            raise ValueError(f"line {number} is not a row with all its cells")
        # a signature has blanks of its own, behind commas
        rows.append(Row(cells[0], re.findall(r"[^\s(]+(?:\([^)]*\))?", cells[1]), cells[2:-1], cells[-1], number))
    return rows


def write_table(rows):
    lines = ["\t".join(COLUMNS)]
    lines += ["\t".join([row.unit, " ".join(row.functions), *row.cells, row.fingerprint]) for row in rows]
    return "\n".join(lines) + "\n"


def functions_of(row, unit_contracts):
    """The contracts that a row names: a name stands for all its overloads in the unit."""
    return [contract for name in row.functions for signature, contract in unit_contracts.items()
            if name in (signature, contract.declaration.name)]


def fingerprint(contracts):
    text = "\n\n".join(sorted(contract.text() for contract in contracts))
    return hashlib.sha256(text.encode()).hexdigest()[:10]


def check_rows(family, rows, contracts):
    wrong, told = [], {}
    for row in rows:
        where = f"{family}.tsv:{row.line}: "
        unit_contracts = contracts.get(row.unit, {})
        known = {name for signature, contract in unit_contracts.items()
                 for name in (signature, contract.declaration.name)}
        wrong += [where + f"{name} is not declared in {row.unit}.h" for name in row.functions if name not in known]
        found = functions_of(row, unit_contracts)
        for contract in found:
            key = (row.unit, contract.declaration.signature())
            if key in told:
                wrong.append(where + f"{key[1]} stands in line {told[key]}, too")
            told[key] = row.line
        if found and fingerprint(found) != row.fingerprint:
            wrong.append(where + f"what {row.unit}.h says of {row.functions[0]} has changed since this row was read")
        cells = dict(zip(COLUMNS[2:-1], row.cells))
        for column, names in TOLD.items():
            has = sorted({name for contract in found for name in contract.declaration.names} & names)
            if has and cells[column] == NOTHING:
                wrong.append(where + f"nothing is told of '{has[0]}' of {row.functions[0]}")
    for unit, unit_contracts in contracts.items():
        if family_of(unit) == family:
            wrong += [f"{family}.tsv: {signature} of {unit}.h stands in no row" for signature in unit_contracts
                      if (unit, signature) not in told]
    return wrong


def page(family, rows):
    lines = [f"# {FAMILIES[family]}: what the functions do with what they get", "",
             f"<!-- Written by tools/contracts from {family}.tsv: change that, not this page. -->", "",
             "How to read the tables is told in [the overview](overview.md). The headers have the contracts in full.", ""]
    unit = None
    for row in rows:
        if row.unit != unit:
            unit = row.unit
            lines += ["" if lines[-1] else None, f"## {unit}", "",
                      f"[`{unit}.h`](../../Sources/Shared/VecMat/{unit}.h)", "",
                      "| " + " | ".join(HEADINGS) + " |", "|---" * len(HEADINGS) + "|"]
        names = ", ".join(f"`{name}`" for name in row.functions)
        lines.append("| " + " | ".join([names, *("" if cell == NOTHING else cell for cell in row.cells)]) + " |")
    return "\n".join(line for line in lines if line is not None) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--show", nargs="+", metavar="UNIT", default=[])
    parser.add_argument("--accept", nargs="+", metavar="UNIT", default=[])
    parser.add_argument("--root", type=Path, default=ROOT, help=argparse.SUPPRESS)
    arguments = parser.parse_args()

    contracts = read_contracts(arguments.root / "Sources/Shared/VecMat")
    wrong = [f"there is no unit {unit}" for unit in arguments.show + arguments.accept if unit not in contracts]
    for family in FAMILIES:
        table = arguments.root / f"Docs/contracts/{family}.tsv"
        if not table.exists() and not any(family_of(unit) == family for unit in contracts):
            continue
        rows = read_table(table.read_text(encoding="utf-8"))
        for row in rows:
            if row.unit in arguments.show:
                found = functions_of(row, contracts[row.unit])
                print("\n".join([f"== {row.unit}: {' '.join(row.functions)}"]
                                + list(dict.fromkeys(text for contract in found for text in contract.comments))
                                + [f"   {name}: {cell}" for name, cell in zip(COLUMNS[2:], row.cells)]) + "\n")
            if row.unit in arguments.accept:
                row.fingerprint = fingerprint(functions_of(row, contracts[row.unit]))
        written = page(family, rows)
        page_path = table.with_suffix(".md")
        if arguments.check:
            wrong += check_rows(family, rows, contracts)
            if not page_path.exists() or page_path.read_text(encoding="utf-8") != written:
                wrong.append(f"{family}.md is not what tools/contracts writes")
        elif not arguments.show:
            table.write_text(write_table(rows), encoding="utf-8")
            page_path.write_text(written, encoding="utf-8")
    print("\n".join(f"WRONG: {line}" for line in wrong), end="\n" if wrong else "")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
