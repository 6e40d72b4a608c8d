"""arguments.tsv: the role and shape of each argument of each flat function. Docs/arguments.md describes the columns.

    calls = read_calls(root)
    calls["VB_M_CovCorr"].arguments[3].shape.lengths({"n": 10, "p": 3})     # [9]

A flat function is one with C linkage whose arguments are numbers, arrays and strings that a caller in any language can
make, and whose result is a number or a string.
"""

import csv
import re
from dataclasses import dataclass, field
from pathlib import Path

from shapes import Shape, ShapeError, names_of, read_expression, read_shape

COLUMNS = ["function", "position", "argument", "type", "role", "shape", "null", "unwritten", "domain", "note"]
NUMBERS = ("double", "int", "short")
TYPES = NUMBERS + ("double*", "int*", "short*", "wchar_t**", "SAFEARRAY**", "const wchar_t*", "const void*")
RETURNS = NUMBERS + ("void", "wchar_t*")
ROLES = ("value", "in", "out", "inout", "scratch")
ROOT = Path(__file__).resolve().parents[2]

# The kinds of domains, and what may follow the keyword: nothing, a list of options, or a range of expressions.
DOMAINS = {
    "-": "", "count": "", "rows": "", "columns": "", "number": "", "probability": "", "tolerance": "", "seed": "",
    "seed flag": "",
    "ignored": "", "data": "", "weights": "", "mask": "", "symmetric": "", "string": "", "strings": "",
    "missing or number": "",
    "option": "list", "flags": "list",
    "position": "range", "within": "range", "positions": "range", "codes": "range", "counts": "range",
}


@dataclass(frozen=True)
class Domain:
    kind: str
    options: tuple = ()
    low: tuple = None
    high: tuple = None


def read_domain(text):
    if DOMAINS.get(text) == "":
        return Domain(text)
    kind, _, rest = text.partition(" ")
    if DOMAINS.get(kind) == "list":
        return Domain(kind, options=tuple(int(option) for option in rest.split("|")))
    if DOMAINS.get(kind) == "range" and ".." in rest:
        return Domain(kind, (), *[read_expression(end) for end in rest.split("..")])
    raise ShapeError(f"not a domain: {text}")


@dataclass(frozen=True)
class Argument:
    name: str
    type: str
    role: str
    shape: Shape
    null: object        # False, True, or the tree of the condition under which null is allowed
    unwritten: str
    domain: Domain
    note: str = ""

    def is_written(self):
        return self.role in ("out", "inout", "scratch")


@dataclass
class Call:
    name: str
    returns: str
    unit: str
    arguments: list = field(default_factory=list)

    def argument(self, name):
        return next(argument for argument in self.arguments if argument.name == name)


def read_table(path, columns=None):
    """The rows of a file of tab-separated columns, as dictionaries."""
    with open(path, encoding="utf-8", newline="") as file:
        reader = csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE)
        if columns and reader.fieldnames != columns:
            raise ShapeError(f"{Path(path).name}: the columns are not {', '.join(columns)}")
        return list(reader)


def parameters_of(text):
    return [re.fullmatch(r"(.+?) ?(\w+)", part).groups() for part in text.split(", ") if part]


def flat_functions(exports):
    """The flat functions among the rows of exports.tsv, in its order: name, result, unit, parameters."""
    for row in exports:
        if row["linkage"] != "C" or row["returns"] not in RETURNS:
            continue
        parameters = parameters_of(row["parameters"])
        if all(kind in TYPES for kind, _ in parameters):
            yield row["name"], row["returns"], row["unit"], parameters


def read_null(text):
    if text in ("no", "yes"):
        return text == "yes"
    if not text.startswith("when "):
        raise ShapeError(f"null: not no, yes or when: {text}")
    return read_expression(text.removeprefix("when "))


def read_argument(row):
    return Argument(row["argument"], row["type"], row["role"], read_shape(row["shape"]),
                    False if row["null"] == "-" else read_null(row["null"]), row["unwritten"],
                    read_domain(row["domain"]), "" if row["note"] == "-" else row["note"])


def read_calls(root=ROOT):
    """The flat functions with their arguments, by name. Raises ShapeError with everything that is wrong."""
    exports = read_table(Path(root) / "exports.tsv")
    calls, wrong = calls_of(exports, read_table(Path(root) / "arguments.tsv", COLUMNS))
    if wrong:
        raise ShapeError("\n".join(wrong))
    return calls


def calls_of(exports, rows):
    """The calls, and a list of what is wrong with the rows of arguments.tsv."""
    calls = {name: Call(name, returns, unit) for name, returns, unit, _ in flat_functions(exports)}
    expected = [(name, str(position), argument, kind)
                for name, _, _, parameters in flat_functions(exports)
                for position, (kind, argument) in enumerate(parameters, start=1)]
    found = [(row["function"], row["position"], row["argument"], row["type"]) for row in rows]
    wrong = [f"arguments.tsv: {' '.join(row)}: not in exports.tsv" for row in found if row not in set(expected)]
    wrong += [f"arguments.tsv: {' '.join(row)}: lacks its row" for row in expected if row not in set(found)]
    if not wrong and found != expected:
        wrong.append("arguments.tsv: the rows are not in the order of exports.tsv")
    if wrong:
        return calls, wrong
    for row in rows:
        try:
            calls[row["function"]].arguments.append(read_argument(row))
        except (ShapeError, ValueError) as error:
            wrong.append(f"arguments.tsv: {row['function']} {row['argument']}: {error}")
    for call in calls.values():
        wrong += [f"arguments.tsv: {call.name} {argument.name}: {line}"
                  for argument in call.arguments for line in wrong_in(call, argument)]
    return calls, wrong


def wrong_in(call, argument):
    """The inconsistencies in one argument."""
    is_number = argument.type in NUMBERS
    if argument.role not in ROLES:
        yield f"no role {argument.role}"
    if is_number != (argument.role == "value") or is_number != (argument.shape.layout == "value"):
        yield "a number has the role value and no shape, and nothing else has"
    if (argument.type == "SAFEARRAY**") != (argument.shape.layout in ("columns", "falling")):
        yield "an array of columns has columns, and nothing else has"
    if argument.type.startswith("const ") and argument.shape.layout not in ("text", "bstr"):
        yield "a single string is a text or a bstr"
    if argument.is_written() == (argument.unwritten == "-"):
        yield "what stands in unwritten is told of results, and of these alone"
    trees = argument.shape.expressions() + [tree for tree in (argument.domain.low, argument.domain.high) if tree]
    if isinstance(argument.null, tuple):
        trees.append(argument.null)
    for tree in trees:
        yield from wrong_names(call, argument, tree)


def wrong_names(call, argument, tree):
    numbers, arrays = names_of(tree)
    types = {other.name: other.type for other in call.arguments}
    for name in sorted(numbers):
        if types.get(name) not in ("int", "short"):
            yield f"{name} is no argument that is a whole number"
    for name, kind in sorted(arrays.items()):
        if types.get(name) != kind or name == argument.name:
            yield f"{name} is no other argument of the type {kind}"
        elif call.argument(name).role not in ("in", "inout"):
            yield f"{name} is not read"
