#!/usr/bin/env python3
"""flat.py DIRECTORY: writes what the package takes from the project's tables.

    flat_functions.cpp   the description of each flat function, and the module that has them
    flat.pyi             their types
    _contracts.py        what each does with a missing cell, a mask, a weight, a divisor, an empty input
"""

import keyword
import re
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[2]
sys.path[:0] = [str(ROOT / "tools/lib"), str(HERE)]

from argument_checks import (is_address, is_at_least, kind_of, options_of, range_of, range_word,  # noqa: E402
                             reading_order)
from arguments import read_calls, read_table  # noqa: E402
from contract_words import contract_words  # noqa: E402
from shapes import ONE  # noqa: E402

FIELDS = {"number": "number", "integer": "integer", "flag": "flag", "doubles": "doubles", "ints": "ints", "flags": "flags",
          "strings": "strings", "columns": "columns", "stringColumns": "columns", "text": "text", "bstr": "bstr"}
RESULTS = {"void": "nothing", "double": "number", "int": "integer", "short": "flag", "wchar_t*": "bstr"}
RESULT_FIELDS = {"double": "number", "int": "integer", "short": "flag", "wchar_t*": "resultString"}
FUNCTIONS = {"if": "choose", "max": "largestOf", "min": "smallestOf", "span": "span", "packed": "packed",
             "largest": "largest", "sum": "sum", "clamped_sum": "clampedSum"}
TYPES = {"number": "float", "integer": "int", "flag": "int", "doubles": "Cells", "ints": "Ints", "flags": "Flags",
         "strings": "Strings", "columns": "Columns", "stringColumns": "StringColumns", "text": "str", "bstr": "str"}
WRITTEN_TYPES = {"doubles": "NDArray[np.float64]", "ints": "NDArray[np.int32]", "flags": "NDArray[np.int16]",
                 "strings": "list[str]", "columns": "Columns", "stringColumns": "Sequence[list[str]]"}
RESULT_TYPES = {"void": "None", "double": "float", "int": "int", "short": "int", "wchar_t*": "str"}


def python_name(name):
    return name + "_" if keyword.iskeyword(name) else name


class Writer:
    """The C++ of one function."""

    def __init__(self, call):
        self.call = call
        self.places = {argument.name: place for place, argument in enumerate(call.arguments)}

    def expression(self, tree):
        kind = tree[0]
        if kind == "number":
            return f"Whole({tree[1]})"
        if kind == "name":
            argument = self.call.argument(tree[1])
            return f"Whole(v[{self.places[tree[1]]}].{FIELDS[kind_of(argument)]})"
        if kind == "binary":
            return f"({self.expression(tree[2])} {tree[1]} {self.expression(tree[3])})"
        function, arguments = tree[1], tree[2]
        if function == "value":
            return f"Whole(v[{self.places[arguments[0][1]]}].ints[0])"
        if function in ("largest", "sum", "clamped_sum"):
            name = arguments[0][1]
            cells = f"v[{self.places[name]}].{FIELDS[kind_of(self.call.argument(name))]}"
            return f"{FUNCTIONS[function]}({', '.join([cells, *map(self.expression, arguments[1:])])})"
        return f"{FUNCTIONS[function]}({', '.join(map(self.expression, arguments))})"

    def function_of(self, tree):
        return f"[](const Value* v) -> std::int64_t {{ (void)v; return Whole({self.expression(tree)}).value(); }}"

    def domain(self, place, argument):
        if options := options_of(argument):
            told = " or ".join(map(str, options))
            return (f"{{DomainKind::options, options_{self.call.name}_{place}, {len(options)}, nullptr, nullptr, "
                    f"\"{told}\"}}")
        low, high = range_of(argument)
        if low:
            return (f"{{DomainKind::range, nullptr, 0, {self.function_of(low)}, {self.function_of(high)}, "
                    f"\"{range_word(argument)}\"}}")
        return "{}"

    def parameter(self, place, argument):
        kind = kind_of(argument)
        fields = [f".name = \"{python_name(argument.name)}\"", f".kind = Kind::{kind}", f".role = Role::{argument.role}"]
        if argument.shape.rows:
            fields += [f".rows = {self.function_of(argument.shape.rows)}",
                       f".cols = {self.function_of(argument.shape.cols)}", f".shape = \"{text_of(self.call, argument, 'shape')}\""]
        if argument.shape.layout == "table" and argument.shape.cols != ONE:
            fields.append(".isTable = true")
        if argument.null is True:
            fields.append(".mayBeNull = [](const Value*) -> std::int64_t { return 1; }")
        elif argument.null:
            fields.append(f".mayBeNull = {self.function_of(argument.null)}")
        if argument.shape.layout == "falling":
            fields.append(".falling = true")
        if is_at_least(self.call, argument):
            fields.append(".atLeast = true")
        if is_address(self.call, argument):
            fields.append(".addresses = true")
        domain = self.domain(place, argument)
        if domain != "{}":
            fields.append(f".domain = {domain}")
        return "    {" + ", ".join(fields) + "},"

    def runs_alone(self):
        draws = any(argument.domain.kind == "seed" for argument in self.call.arguments)
        written_addresses = any(is_address(self.call, argument) and argument.is_written() for argument in self.call.arguments)
        return draws or written_addresses

    def write(self):
        name, arguments = self.call.name, self.call.arguments
        for place, argument in enumerate(arguments):
            if self.domain(place, argument).startswith("{DomainKind::options"):
                yield (f"constexpr int options_{name}_{place}[] = "
                       f"{{{', '.join(map(str, options_of(argument)))}}};")
        if arguments:
            yield f"const Parameter parameters_{name}[] = {{"
            for place, argument in enumerate(arguments):
                yield self.parameter(place, argument)
            yield "};"
            yield f"constexpr std::uint8_t order_{name}[] = {{{', '.join(map(str, reading_order(self.call)))}}};"
        given = ", ".join(f"v[{place}].{FIELDS[kind_of(argument)]}" for place, argument in enumerate(arguments))
        field = RESULT_FIELDS.get(self.call.returns)
        into = f"r.{field} = " if field else ""
        tables = f"parameters_{name}, {len(arguments)}, order_{name}" if arguments else "nullptr, 0, nullptr"
        yield f"void invoke_{name}(const Value* v, Value& r)"
        yield "{"
        yield "    (void)v, (void)r;"
        yield f"    {into}::{name}({given});"
        yield "}"
        yield (f"const Function function_{name} = {{\"{name}\", {tables}, invoke_{name}, "
               f"Result::{RESULTS[self.call.returns]}, {'true' if self.runs_alone() else 'false'}}};")
        yield ""


def text_of(call, argument, column):
    return TEXTS[call.name, argument.name][column]


def described_argument(call, argument):
    kind = kind_of(argument)
    shape, domain, null = (text_of(call, argument, column) for column in ("shape", "domain", "null"))
    words = [WRITTEN_TYPES[kind] if argument.is_written() else TYPES[kind]]
    if shape not in ("-", "text", "bstr"):
        words.append(f"({shape})")
    if argument.role not in ("value", "in"):
        words.append({"out": "is written", "inout": "is changed in place", "scratch": "is overwritten"}[argument.role])
    if domain not in ("-", "data", "ignored") and not re.fullmatch(r"(codes|counts) \d\.\.\d", domain):
        words.append(domain)
    if null == "yes":
        words.append("or None")
    elif null.startswith("when"):
        words.append("or None " + null)
    return f"{python_name(argument.name)} : {', '.join(words)}" + (f"\n    {argument.note}" if argument.note else "")


def docstring(call, words):
    lines = [f"{call.name}({', '.join(python_name(argument.name) for argument in call.arguments)})", "--", ""]
    described = words.get(call.name, {})
    if described.get("description"):
        lines += [described["description"], ""]
    if call.arguments:
        lines += ["Parameters", "----------", *(described_argument(call, argument) for argument in call.arguments)]
    for title in ("missing", "mask", "weights", "divisor", "empty"):
        if described.get(title):
            lines += ["", f"{title}: {described[title]}"]
    return "\n".join(lines)


def literal(text):
    return "".join(f"\n    \"{line}\\n\"" for line in text.replace("\\", "\\\\").replace('"', '\\"').split("\n"))


def module_source(calls, words):
    yield "// Written by generate/flat.py from exports.tsv and arguments.tsv: change those, not this file."
    yield "#define VECMAT_IMPORTS_NUMPY"
    yield "#include \"extension/call.h\""
    yield ""
    yield "#include <VecMatFlat.h>"
    yield ""
    yield "namespace vecmat::python {"
    yield "namespace {"
    yield ""
    for call in calls.values():
        yield from Writer(call).write()
    yield "PyMethodDef methods[] = {"
    for call in calls.values():
        yield (f"    {{\"{call.name}\", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>("
               f"entry<function_{call.name}>)), METH_FASTCALL | METH_KEYWORDS,{literal(docstring(call, words))}}},")
    yield "    {nullptr, nullptr, 0, nullptr},"
    yield "};"
    yield ""
    yield "PyModuleDef module = {PyModuleDef_HEAD_INIT, \"vecmat.flat\","
    yield "    \"The library's flat functions under their names: plain arrays, column after column, and their dimensions.\","
    yield "    -1, methods, nullptr, nullptr, nullptr, nullptr};"
    yield ""
    yield "} // namespace"
    yield "} // namespace vecmat::python"
    yield ""
    yield "PyMODINIT_FUNC PyInit_flat()"
    yield "{"
    yield "    import_array();"
    yield "    PyObject* flat = PyModule_Create(&vecmat::python::module);"
    yield "    if (flat && PyModule_AddObject(flat, \"MISSING\", PyFloat_FromDouble(VECMAT_MISSING)) != 0) {"
    yield "        Py_DECREF(flat);"
    yield "        return nullptr;"
    yield "    }"
    yield "    return flat;"
    yield "}"


STUB_HEAD = '''"""The library's flat functions under their names. Written by generate/flat.py: change the tables, not this file."""

from collections.abc import Sequence
from typing import Any, Optional, Union

import numpy as np
from numpy.typing import ArrayLike, NDArray

Cells = ArrayLike
Ints = ArrayLike
Flags = ArrayLike
Strings = Union[Sequence[Optional[str]], NDArray[Any]]
Columns = Union[Sequence[NDArray[np.float64]], NDArray[np.float64]]
StringColumns = Sequence[Sequence[Optional[str]]]

MISSING: float
'''


def stub(calls):
    yield STUB_HEAD
    for call in calls.values():
        parts = []
        for argument in call.arguments:
            kind = kind_of(argument)
            given = WRITTEN_TYPES[kind] if argument.is_written() else TYPES[kind]
            parts.append(f"{python_name(argument.name)}: {f'Optional[{given}]' if argument.null else given}")
        yield f"def {call.name}({', '.join(parts)}) -> {RESULT_TYPES[call.returns]}: ..."


TEXTS = {(row["function"], row["argument"]): row for row in read_table(ROOT / "arguments.tsv")}


def main():
    target = Path(sys.argv[1])
    target.mkdir(parents=True, exist_ok=True)
    calls = read_calls(ROOT)
    words = contract_words(ROOT, calls)
    texts = {
        "flat_functions.cpp": module_source(calls, words),
        "flat.pyi": stub(calls),
        "_contracts.py": [
            "\"\"\"What each function does with its input, from the library's headers. Written by generate/flat.py.\"\"\"",
            "", "from typing import Final", "", "CONTRACTS: Final[dict[str, dict[str, str]]] = {",
            *(f"    {name!r}: {described!r}," for name, described in sorted(words.items())), "}"],
    }
    for name, lines in texts.items():
        (target / name).write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
