#!/usr/bin/env python3
"""contracts.py [--check | --show UNIT...]: the pages that show how each function treats its input.

The contracts are in the comments of the public headers: prose, and tagged lines for how a function treats a missing cell,
a mask, a weight, a divisor, an empty input (see header_comments.py). From them the pages Docs/contracts/<family>.md are
written, in which functions with the same contract share a row.

    (no option)   writes the pages
    --check       writes nothing; exit status 1 if a function lacks a tag that its parameters require, if a tag applies
                  to no function, or if a page is out of date
    --show        prints the contract of each function of the units

Other tools call contracts().
"""

import argparse
import re
import sys
from dataclasses import dataclass
from pathlib import Path

from declarations import HeaderError, read_header
from header_comments import NONE, OF_THE_REFERENCE, TITLES, TagError, comments_by_line, read_block

ROOT = Path(__file__).resolve().parents[2]
HEADERS = "Sources/Shared/VecMat"
PRIVATE = {"access", "kernels", "detail"}

COLUMNS = {"missing": "Missing cell", "mask": "Mask", "weights": "Weights", "divisor": "Divisor", "empty": "Empty input"}
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
# A function with a parameter of one of these names needs the tag.
ASKED_BY_NAME = {"mask": {"mask", "filter", "constraints"}, "weights": {"w", "weights"},
                 "divisor": {"sample", "freqWeights", "sampleVariance", "countDivisor"}}
# Tags that in a file or section hold only for functions with a parameter that they can be about: for the first two any
# array, also one of ints. In a `///` comment they hold for all functions.
NEEDS_PARAMETER = ("missing", "empty", "mask", "weights")
# Arrays and tables whose cells can be missing, and all of them.
CELLS = re.compile(r"\b(matrix|Smatrix|SAFEARRAY)\b|\bdouble\b.*[*&]|\bwchar_t\*\*")
ARRAY = re.compile(r"\b(matrix|matrixInt|Smatrix|SAFEARRAY)\b|\b(double|int|short|bool)\*|\bwchar_t\*\*")


@dataclass(frozen=True)
class Contract:
    unit: str            # `descriptive/means`
    declaration: object  # see declarations.py
    tags: dict           # text by name of tag, in the order of TITLES
    prose: object        # the Comments that apply to the declaration; see header_comments.py
    flat_form_of: str    # the name of the function whose flat form this is; empty for others
    lines: frozenset     # of the header, where its tags are

    def description(self):
        """The prose nearest to the function: its own, or that of its section, or of the file."""
        blocks = self.prose.nearest_first()
        return next((block.prose for block in blocks if block.prose), ())


def family_of(unit):
    folder = unit.split("/")[0]
    return folder if folder in FAMILIES else "tables"


def base_of(name, names):
    """The function whose flat form has this name, or nothing if that is ambiguous."""
    base = re.sub(r"^(VB_|Cpp_|Run)", "", name)
    if base == name:
        return f"c{name}" if f"c{name}" in names else ""
    without_type = re.sub(r"(Dbl|Lng|Str|Bool)(?=(\d|SPV\w*)?$)", "", base)
    of_table = re.sub(r"^V_", "M_", base)
    without_storage = re.sub(r"SPV$", "", without_type)  # for forms over tables and columns that are overloads
    return next((other for other in (base, without_type, of_table, without_storage) if other in names), "")


def asks_for(tag, declaration):
    """Whether a declaration needs a tag."""
    member = "::" in declaration.name
    if tag == "missing":
        return member or any(CELLS.search(kind) for kind in declaration.types)
    if tag == "empty":
        return member or any(ARRAY.search(kind) for kind in declaration.types)
    return bool(ASKED_BY_NAME.get(tag, set()) & set(declaration.names))


def _nearest(tag, declaration, comments):
    """The tag from the nearest comment in which it applies to a declaration."""
    can_be_about = tag not in NEEDS_PARAMETER or asks_for("empty" if tag == "missing" else tag, declaration)
    return next((block.tags[tag] for block in comments.nearest_first()
                 if tag in block.tags and (can_be_about or block is comments.function)), None)


def read_unit(text, unit):
    """The contracts of the functions that the text of a header exports.

    A flat form takes the tags of its function, except for those in its own `///` comment. If the overloads of its
    function differ in a tag, only its own counts.
    """
    held = comments_by_line(text)
    declarations = read_header(text, unit + ".h")
    names = {declaration.name for declaration in declarations}

    def tags_of(declaration):
        comments = held[declaration.line - 1]
        return {tag: _nearest(tag, declaration, comments) for tag in TITLES}

    by_name = {}
    for declaration in declarations:
        by_name.setdefault(declaration.name, []).append(tags_of(declaration))
    contracts = []
    for declaration in declarations:
        comments, base = held[declaration.line - 1], base_of(declaration.name, names)
        found = tags_of(declaration)
        if base:
            for tag in TITLES:
                texts = {overload[tag] and overload[tag].text for overload in by_name[base]}
                if tag not in comments.function.tags:
                    found[tag] = by_name[base][0][tag] if len(texts) == 1 else None
        kept = {tag: value for tag, value in found.items() if value}
        contracts.append(Contract(unit, declaration, {tag: value.text for tag, value in kept.items()
                                                      if value.text != NONE},
                                  comments, base, frozenset(value.line for value in kept.values())))
    return contracts


def public_headers(root=ROOT):
    folder = Path(root) / HEADERS
    return [path for path in sorted(folder.rglob("*.h")) if not PRIVATE & set(path.relative_to(folder).parts)]


def contracts(root=ROOT):
    """The contract of each exported function, unit by unit, in the order of the headers."""
    return [contract for _, found in _units(root) for contract in found]


def _units(root):
    folder = Path(root) / HEADERS
    for path in public_headers(root):
        unit = path.relative_to(folder).with_suffix("").as_posix()
        text = path.read_text(encoding="utf-8")
        try:
            yield text, read_unit(text, unit)
        except (TagError, HeaderError) as error:
            raise TagError(f"{unit}.h: {error}") from error


def unused_tags(text, unit_contracts):
    """The lines of a header whose tag applies to no function."""
    used = frozenset().union(*(contract.lines for contract in unit_contracts))
    lines = [re.sub(r"^ *//+", "", line) if line.strip().startswith("//") else "" for line in text.split("\n")]
    return [number for number, line in enumerate(lines)
            if any(tag.line not in used for tag in read_block([line], number).tags.values())]


def check(root):
    """What is wrong in the headers."""
    wrong = []
    for text, found in _units(root):
        for contract in found:
            where = f"{contract.unit}.h:{contract.declaration.line}: {contract.declaration.signature()}"
            wrong += [f"{where} has no @{tag}" for tag in COLUMNS
                      if asks_for(tag, contract.declaration) and tag not in contract.tags]
        if found:
            wrong += [f"{found[0].unit}.h:{number + 1}: the tag holds for no function"
                      for number in unused_tags(text, found)]
    return wrong


def shown_names(group, unit_contracts):
    """The names of a group; signatures for names with overloads in another group."""
    inside = [contract.declaration for contract in group]
    outside = {contract.declaration.name for contract in unit_contracts} \
        & {contract.declaration.name for contract in unit_contracts if contract.declaration not in inside}
    return list(dict.fromkeys(d.signature() if d.name in outside else d.name for d in inside))


def page(family, units):
    """The page of a family, from lists of contracts by unit."""
    lines = [f"# {FAMILIES[family]}: how the functions treat their input", "",
             "<!-- Written by tools/contracts from the comments of the headers: change those, not this page. -->", "",
             "[The overview](overview.md) explains the tables. The headers have the contracts in full.", ""]
    for unit, found in units.items():
        groups, others = {}, {}
        for contract in found:
            groups.setdefault(tuple(contract.tags.get(tag, "") for tag in COLUMNS), []).append(contract)
            for tag, text in contract.tags.items():
                if tag not in COLUMNS and tag not in OF_THE_REFERENCE:
                    others.setdefault((tag, text), []).append(contract)
        lines += [f"## {unit}", "", f"[`{unit}.h`](../../{HEADERS}/{unit}.h)", "",
                  "| " + " | ".join(["Functions", *COLUMNS.values()]) + " |", "|---" * (len(COLUMNS) + 1) + "|"]
        for cells, group in groups.items():
            names = ", ".join(f"`{name}`" for name in shown_names(group, found))
            lines.append("| " + " | ".join([names, *cells]) + " |")
        lines.append("")
        for (tag, text), group in others.items():
            names = "all" if len(group) == len(found) else ", ".join(f"`{n}`" for n in shown_names(group, found))
            lines.append(f"- {TITLES[tag]} ({names}): {text}")
        if others:
            lines.append("")
    return "\n".join(lines[:-1]) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--show", nargs="+", metavar="UNIT", default=[])
    parser.add_argument("--root", type=Path, default=ROOT, help=argparse.SUPPRESS)
    arguments = parser.parse_args()

    try:
        families, known = {}, set()
        for contract in contracts(arguments.root):
            families.setdefault(family_of(contract.unit), {}).setdefault(contract.unit, []).append(contract)
            known.add(contract.unit)
            if contract.unit in arguments.show:
                print("\n".join([contract.declaration.signature(), *(f"    @{t} {v}" for t, v in contract.tags.items())]))
        wrong = [f"there is no unit {unit}" for unit in arguments.show if unit not in known]
        wrong += check(arguments.root) if arguments.check else []
    except TagError as error:
        families, wrong = {}, [str(error)]
    for family, units in families.items():
        path, written = arguments.root / f"Docs/contracts/{family}.md", page(family, units)
        if arguments.check:
            if not path.exists() or path.read_text(encoding="utf-8") != written:
                wrong.append(f"{family}.md is not what tools/contracts writes")
        elif not arguments.show:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(written, encoding="utf-8")
    print("\n".join(f"WRONG: {line}" for line in wrong), end="\n" if wrong else "")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
