"""The arguments of a function as a table in words: see reference.py."""

import re

from arguments import ROOT, read_table
from reference_model import escaped
from shapes import split_at_commas

TYPES = {
    "double": "number", "int": "whole number", "short": "flag (16 bits)", "bool": "`bool`",
    "double*": "array of doubles", "int*": "array of ints", "short*": "array of flags (16 bits)",
    "wchar_t**": "array of strings", "SAFEARRAY**": "array of columns", "const wchar_t*": "wide string",
    "const void*": "BSTR",
    "matrix*": "table of doubles", "matrixInt*": "table of ints", "Smatrix*": "table of strings",
    "matrix*&": "table of doubles, by reference", "matrixInt*&": "table of ints, by reference",
    "Smatrix*&": "table of strings, by reference",
    "matrix**": "array of columns, each a table of doubles", "matrixInt**": "array of columns, each a table of ints",
    "Smatrix**": "array of columns, each a table of strings",
    "int&": "variable", "double&": "variable", "std::wstring": "string", "bool*": "array of `bool`",
}
ROLES = {"value": "", "in": "read", "out": "result", "inout": "read and changed",
         "scratch": "worked on, then as before"}
DOMAINS = {
    "-": "", "count": "a count", "rows": "number of rows", "columns": "number of columns", "number": "any number",
    "probability": "from 0 to 1", "tolerance": "a tolerance", "seed": "a seed", "seed flag": "-1 starts from `seed`",
    "ignored": "not read", "data": "", "weights": "weights", "mask": "mask: 0 keeps a row", "symmetric": "symmetric",
    "string": "", "strings": "", "missing or number": "a number; the missing value has it computed",
}
RANGES = {"position": "a position, {}", "within": "{}; never another one", "positions": "positions, {}",
          "codes": "codes, {}", "counts": "counts, {}"}
TITLES = ("Argument", "Is", "Shape", "Null", "Notes")


def shape_in_words(shape):
    if shape in ("-", "text", "bstr"):
        return ""
    if shape == "1":
        return "one cell"
    if shape.endswith(" falling"):
        return f"triangle: `{shape.removesuffix(' falling')}` less one cell a column"
    if " x " in shape:
        cols, rows = shape.removesuffix(" strings").split(" x ")
        return f"`{cols}` columns of `{rows}` cells"
    parts = split_at_commas(shape)
    return f"`{parts[0]}` by `{parts[1]}`" if len(parts) == 2 else f"`{shape}` cells"


def domain_in_words(domain):
    if domain in DOMAINS:
        return DOMAINS[domain]
    kind, _, rest = domain.partition(" ")
    if kind == "option":
        return " or ".join(rest.split("|"))
    if kind == "flags":
        return "cells " + " or ".join(rest.split("|"))
    low, _, high = rest.partition("..")
    return RANGES[kind].format(f"`{low}` to `{high}`")


def null_in_words(null):
    if null.startswith("when "):
        return f"when `{null.removeprefix('when ')}`"
    return {"yes": "may be null", "no": "", "-": ""}[null]


def kept_in_words(row):
    """What becomes of a result's cells that a call does not write."""
    if row["role"] == "out":
        return {"all": "every cell is written", "keeps": "cells that are not written keep what they held"}[row["unwritten"]]
    return ""


class Arguments:
    def __init__(self, root=ROOT):
        self.rows = {}
        for row in read_table(root / "arguments.tsv"):
            self.rows.setdefault(row["function"], {})[row["argument"]] = row

    def table(self, function, functions):
        """Lines of a table with the arguments of all overloads, or nothing if there are none."""
        if function.name in self.rows:
            return self._lines([self._flat(row) for row in self.rows[function.name].values()])
        rows = []
        for declaration in function.declarations:
            for place, (kind, name) in enumerate(zip(declaration.types, declaration.names)):
                rows.append(self._of_table(kind, name, self._same_in_flat(declaration, place, function)))
        merged = {}
        for name, kind, *rest in rows:
            if name in merged and kind not in merged[name][1].split("; or "):
                merged[name][1] += f"; or {kind}"
            merged.setdefault(name, [name, kind, *rest])
        return self._lines(list(merged.values()))

    def _flat(self, row):
        words = [ROLES[row["role"]], domain_in_words(row["domain"]), kept_in_words(row)]
        note = "" if row["note"] == "-" else escaped(row["note"])
        return [row["argument"], TYPES[row["type"]], shape_in_words(row["shape"]), null_in_words(row["null"]),
                "; ".join(word for word in [*words, note] if word)]

    def _same_in_flat(self, declaration, place, function):
        """The argument of a flat form that is this one: of the same name, or in the same place of as many."""
        name = declaration.names[place]
        flat = [self.rows[form] for form in function.flat_forms if form in self.rows]
        by_name = (rows[name] for rows in flat if name in rows)
        by_place = (list(rows.values())[place] for rows in flat if len(rows) == len(declaration.names))
        return next(by_name, None) or next(by_place, None)

    def _of_table(self, kind, name, row):
        """An argument of a function over tables; a flat form's tells what it is for."""
        is_type = TYPES.get(kind, f"`{kind}`")
        if row is None:
            return [name or "(unnamed)", is_type, "", "", ""]
        words = [ROLES[row["role"]] if row["role"] != "scratch" else "read", domain_in_words(row["domain"])]
        if kind.endswith("*&") and row["role"] == "out":
            words[0] = "result; made or replaced where it does not fit, unless the text says that it must exist"
        return [name, is_type, shape_in_words(row["shape"]), "", "; ".join(word for word in words if word)]

    def _lines(self, rows):
        if not rows:
            return []
        shown = [place for place in range(len(TITLES)) if place < 2 or any(row[place] for row in rows)]
        lines = ["| " + " | ".join(TITLES[place] for place in shown) + " |", "|" + "---|" * len(shown)]
        for row in rows:
            cells = [f"`{row[0]}`" if re.fullmatch(r"\w+", row[0]) else row[0], *row[1:]]
            lines.append("| " + " | ".join(cells[place].replace("|", "\\|") for place in shown) + " |")
        return lines
