#!/usr/bin/env python3
"""flat.py DIRECTORY: writes what the package takes from the project's tables.

    src/flat_table.js   what is checked and passed for each argument of each flat function
    src/flat.d.ts       their types, with the contracts
    exports.json        what the module has to export
"""

import json
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "tools/lib"))

from argument_checks import (is_address, is_at_least, kind_of, options_of, range_of, range_word,  # noqa: E402
                             reading_order)
from arguments import read_calls, read_table  # noqa: E402
from contract_words import contract_words  # noqa: E402
from guarded_calls import PREFIX  # noqa: E402

RESULTS = {"void": "nothing", "double": "number", "int": "integer", "short": "flag", "wchar_t*": "bstr"}
FUNCTIONS = {"if": "choose", "max": "Math.max", "min": "Math.min", "clamped_sum": "clampedSum"}
OF_ARRAYS = ("value", "largest", "sum", "clamped_sum")
BINARY = {"/": "quotient", "%": "remainder"}
COMPARISONS = {"==": "===", "!=": "!==", "<": "<", ">": ">", "<=": "<=", ">=": ">="}
RUNTIME_EXPORTS = ("malloc", "free", "SysFreeString2", "vecmat_guarded_error")

TYPES = {"number": "number", "integer": "number", "flag": "number | boolean", "doubles": "Doubles", "ints": "Ints",
         "flags": "Flags", "strings": "Strings", "columns": "Columns", "stringColumns": "StringColumns", "text": "string",
         "bstr": "string"}
WRITTEN_TYPES = {"doubles": "WrittenDoubles", "ints": "WrittenInts", "flags": "WrittenFlags", "strings": "WrittenStrings",
                 "columns": "WrittenColumns", "stringColumns": "WrittenStringColumns"}
RESULT_TYPES = {"nothing": "void", "number": "number", "integer": "number", "flag": "number", "bstr": "string"}
RESERVED = {"in", "default", "var", "function", "new", "case", "with", "if", "do", "for", "this"}
TEXTS = {(row["function"], row["argument"]): row for row in read_table(ROOT / "arguments.tsv")}


def script_name(name):
    return name + "_" if name in RESERVED else name


class Expressions:
    """The expressions of one function in JavaScript, over `v`, the numbers and arrays of the call in their places."""

    def __init__(self, call):
        self.places = {argument.name: place for place, argument in enumerate(call.arguments)}

    def text(self, tree):
        kind = tree[0]
        if kind == "number":
            return str(tree[1])
        if kind == "name":
            return f"v[{self.places[tree[1]]}]"
        if kind == "binary":
            left, right = self.text(tree[2]), self.text(tree[3])
            if tree[1] in BINARY:
                return f"{BINARY[tree[1]]}({left}, {right})"
            if tree[1] in COMPARISONS:
                return f"Number({left} {COMPARISONS[tree[1]]} {right})"
            return f"({left} {tree[1]} {right})"
        function, arguments = tree[1], tree[2]
        if function in OF_ARRAYS:
            arguments = [("name", arguments[0][1]), *arguments[1:]]
        return f"{FUNCTIONS.get(function, function)}({', '.join(map(self.text, arguments))})"

    def function(self, tree):
        return f"(v) => {self.text(tree)}"


def parameter(call, argument, expressions):
    shape = argument.shape
    fields = [f"name: \"{argument.name}\"", f"kind: \"{kind_of(argument)}\"", f"role: \"{argument.role}\""]
    if shape.rows:
        fields += [f"rows: {expressions.function(shape.rows)}", f"cols: {expressions.function(shape.cols)}",
                   f"shape: {json.dumps(TEXTS[call.name, argument.name]['shape'])}"]
    if argument.null:
        fields.append("nullable: " + ("() => 1" if argument.null is True else expressions.function(argument.null)))
    if argument.unwritten == "all":
        fields.append("fresh: true")
    if shape.layout == "falling":
        fields.append("falling: true")
    if is_at_least(call, argument):
        fields.append("atLeast: true")
    if is_address(call, argument):
        fields.append("addresses: true")
    low, high = range_of(argument)
    if options := options_of(argument):
        fields.append(f"options: {options}")
    elif low:
        fields.append(f"range: [{expressions.function(low)}, {expressions.function(high)}, \"{range_word(argument)}\"]")
    return "{ " + ", ".join(fields) + " }"


def table(calls):
    yield "// Written by generate/flat.py from exports.tsv and arguments.tsv: change those, not this file."
    yield 'import { choose, clampedSum, largest, packed, quotient, remainder, span, sum, value } from "./expressions.js";'
    yield ""
    yield "export const table = ["
    for call in calls.values():
        expressions = Expressions(call)
        yield (f"  {{ name: \"{call.name}\", result: \"{RESULTS[call.returns]}\", order: {reading_order(call)}, "
               f"parameters: [")
        yield from (f"    {parameter(call, argument, expressions)}," for argument in call.arguments)
        yield "  ] },"
    yield "];"


TYPES_HEAD = """\
// Written by generate/flat.py from exports.tsv, arguments.tsv and the library's headers: change those, not this file.
import type { ModuleArray } from "./index.js";

/** What is only read: an array of the type itself goes in as it is, others are converted. */
export type Doubles = ModuleArray<Float64Array> | Float64Array | ArrayLike<number>;
export type Ints = ModuleArray<Int32Array> | Int32Array | ArrayLike<number>;
export type Flags = ModuleArray<Int16Array> | Int16Array | ArrayLike<number | boolean>;
export type Strings = ReadonlyArray<string | null>;
export type Columns = ReadonlyArray<Doubles>;
export type StringColumns = ReadonlyArray<Strings>;
/** What the call writes to. */
export type WrittenDoubles = ModuleArray<Float64Array> | Float64Array;
export type WrittenInts = ModuleArray<Int32Array> | Int32Array;
export type WrittenFlags = ModuleArray<Int16Array> | Int16Array;
export type WrittenStrings = Array<string | null>;
export type WrittenColumns = ReadonlyArray<WrittenDoubles>;
export type WrittenStringColumns = ReadonlyArray<WrittenStrings>;

/** The library's flat functions: plain arrays, column after column, and their dimensions. */
export interface FlatFunctions {
  /** The missing value, -1.79769313486231e308. */
  readonly MISSING: number;
"""


def described_argument(call, argument):
    row = TEXTS[call.name, argument.name]
    words = []
    if row["shape"] not in ("-", "text", "bstr"):
        words.append(f"({row['shape']})")
    if argument.role not in ("value", "in"):
        words.append({"out": "is written", "inout": "is changed in place", "scratch": "is worked on, and restored"}[
            argument.role])
    if row["domain"] not in ("-", "data", "ignored"):
        words.append(row["domain"].replace("|", " or "))
    if argument.null:
        words.append("or null" if argument.null is True else f"or null {row['null']}")
    if argument.note:
        words.append(argument.note)
    return f"@param {script_name(argument.name)} - {', '.join(words)}" if words else ""


def comment(call, words):
    told = words.get(call.name, {})
    lines = [told["description"]] if told.get("description") else []
    lines += [f"@remarks {title}: {told[title]}." for title in ("missing", "mask", "weights", "divisor", "empty")
              if told.get(title)]
    lines += filter(None, (described_argument(call, argument) for argument in call.arguments))
    if not lines:
        return []
    return ["  /**", *(f"   * {line}".replace("*/", "* /") for line in lines), "   */"]


def types(calls, words):
    yield TYPES_HEAD
    for call in calls.values():
        yield from comment(call, words)
        parts = []
        for argument in call.arguments:
            kind = kind_of(argument)
            given = (WRITTEN_TYPES if argument.is_written() else TYPES)[kind]
            parts.append(f"{script_name(argument.name)}: {given}{' | null' if argument.null else ''}")
        yield f"  {call.name}({', '.join(parts)}): {RESULT_TYPES[RESULTS[call.returns]]};"
    yield "}"


def main():
    target = Path(sys.argv[1])
    (target / "src").mkdir(parents=True, exist_ok=True)
    calls = read_calls(ROOT)
    exports = [f"_{name}" for name in RUNTIME_EXPORTS] + [f"_{PREFIX}{name}" for name in calls]
    texts = {
        "src/flat_table.js": "\n".join(table(calls)),
        "src/flat.d.ts": "\n".join(types(calls, contract_words(ROOT, calls))),
        "exports.json": json.dumps(exports),
    }
    for name, text in texts.items():
        (target / name).write_text(text + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
