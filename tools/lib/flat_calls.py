#!/usr/bin/env python3
"""flat_calls.py FILE: writes the table declared in Tests/support/flat_calls/calls.h.

It is made from exports.tsv and arguments.tsv, and written only if it changes, to avoid needless rebuilds. Exits with 1,
and says why, if the two lists are inconsistent.
"""

import sys
from pathlib import Path


from arguments import ROOT, ShapeError, read_calls
from shapes import names_of

HEAD = """// Written by tools/lib/flat_calls.py from exports.tsv and arguments.tsv.
#include "support/flat_calls/shapes.h"

#include "VecMat.h"

#include <array>

namespace vecmat::flat {

namespace {

constexpr auto always = [](const Slot*) { return true; };
"""

TAIL = """
}} // namespace

std::span<const Call> allCalls()
{{
    static const std::array<Call, {count}> calls{{{{
{calls}
    }}}};
    return calls;
}}

const Call* findCall(std::string_view name)
{{
    for (const Call& call : allCalls())
        if (call.name == name)
            return &call;
    return nullptr;
}}

}} // namespace vecmat::flat
"""

TYPES = {"double": "number", "int": "integer", "short": "flag", "double*": "numbers", "int*": "integers",
         "short*": "flags", "wchar_t**": "strings", "SAFEARRAY**": "columns", "const wchar_t*": "text",
         "const void*": "bstr", "void": "nothing", "wchar_t*": "bstr"}
MEMBERS = {"double": "number", "int": "integer", "short": "flag"}
FUNCTIONS = {"clamped_sum": "clampedSum"}
DOMAINS = {"-": "none", "missing or number": "missingOrNumber", "seed flag": "seedFlag"}


class Places:
    """The places of a call's arguments, for expressions in C++."""

    def __init__(self, call):
        self.place = {argument.name: k for k, argument in enumerate(call.arguments)}
        self.kind = {argument.name: argument.type for argument in call.arguments}

    def text(self, tree):
        if tree[0] == "number":
            return f"{tree[1]}LL"
        if tree[0] == "name":
            return f"static_cast<long long>(s[{self.place[tree[1]]}].{MEMBERS[self.kind[tree[1]]]})"
        if tree[0] == "binary":
            return f"({self.text(tree[2])} {tree[1]} {self.text(tree[3])})"
        function, arguments = tree[1], tree[2]
        if function == "if":
            return "({} ? {} : {})".format(*map(self.text, arguments))
        if function in ("min", "max"):
            return f"std::{function}({{{', '.join(map(self.text, arguments))}}})"
        arrays = names_of(tree)[1]
        parts = [f"s[{self.place[argument[1]]}]" if argument[0] == "name" and argument[1] in arrays
                 else self.text(argument) for argument in arguments]
        return f"{FUNCTIONS.get(function, function)}({', '.join(parts)})"

    def function(self, tree, returns=""):
        if tree is None:
            return "nullptr"
        unused = "" if "s[" in self.text(tree) else "/*s*/"
        return f"[](const Slot* {unused or 's'}){returns} {{ return {self.text(tree)}; }}"

    def extent(self, shape):
        if shape.rows is None:
            return "nullptr"
        rows, cols = self.text(shape.rows), self.text(shape.cols)
        name = "s" if "s[" in rows + cols else ""
        return f"[](const Slot* {name}) {{ return extentOf({rows}, {cols}); }}"

    def null(self, null):
        if isinstance(null, tuple):
            return self.function(null, " -> bool")
        return "always" if null else "nullptr"


def argument_text(call, argument, places):
    layout = argument.shape.layout if argument.shape.rows is not None else "value"
    sizes = any(argument.name in names_of(tree)[1]
                for other in call.arguments for tree in other.shape.expressions())
    domain = argument.domain
    options = f"options_{'_'.join(str(option).replace('-', 'm') for option in domain.options)}" if domain.options else "{}"
    return (f'    {{"{argument.name}", Type::{TYPES[argument.type]}, Role::{argument.role}, '
            f'{{Layout::{layout}, {str(argument.shape.strings).lower()}, {places.extent(argument.shape)}}}, '
            f'{str(sizes).lower()}, {places.null(argument.null)}, "{argument.unwritten}", '
            f'Domain::{DOMAINS.get(domain.kind, domain.kind)}, {options}, '
            f'{places.function(domain.low)}, {places.function(domain.high)}}},')


def passed(k, kind):
    if kind in MEMBERS:
        return f"s[{k}].{MEMBERS[kind]}"
    return f"static_cast<{kind}>(s[{k}].pointer)"


def invoke_text(call):
    arguments = ", ".join(passed(k, argument.type) for k, argument in enumerate(call.arguments))
    head = f"Slot invoke_{call.name}(const Slot* {'s' if arguments else ''})\n{{\n    Slot result{{}};\n    "
    if call.returns == "void":
        body = f"{call.name}({arguments});"
    else:
        member = MEMBERS.get(call.returns, "pointer")
        body = f"result.{member} = {call.name}({arguments});"
    return f"{head}{body}\n    return result;\n}}\n"


def table(calls):
    parts = [HEAD]
    lists = sorted({argument.domain.options for call in calls for argument in call.arguments if argument.domain.options})
    for options in lists:
        name = "_".join(str(option).replace("-", "m") for option in options)
        parts.append(f"constexpr int options_{name}[] = {{{', '.join(map(str, options))}}};")
    rows = []
    for call in calls:
        places = Places(call)
        arguments = "{}"
        if call.arguments:
            arguments = f"arguments_{call.name}"
            parts.append(f"\nconst Argument {arguments}[] = {{")
            parts += [argument_text(call, argument, places) for argument in call.arguments]
            parts.append("};")
        parts.append("\n" + invoke_text(call).rstrip())
        rows.append(f'        Call{{"{call.name}", "{call.unit}", Type::{TYPES[call.returns]}, {arguments}, '
                    f"invoke_{call.name}}},")
    return "\n".join(parts) + TAIL.format(count=len(calls), calls="\n".join(rows))


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    try:
        text = table(list(read_calls(ROOT).values()))
    except ShapeError as error:
        sys.exit(str(error))
    path = Path(sys.argv[1])
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
