"""The flat layer of the R package: descriptions of the functions in C++, the functions in R, and what each of them does.

Written when the package is put together: see r_package.py. The descriptions are those of the Python package; how a call is made differs.
"""

import sys

from arguments import ROOT, read_calls

sys.path.append(str(ROOT / "Bindings/python/generate"))
from contract_words import contract_words
from flat import RESULTS, Writer, kind_of, text_of

NOTE = "Written by tools/lib/r_flat.py from exports.tsv and arguments.tsv: change those, not this file."
RESERVED = {"if", "else", "repeat", "while", "function", "for", "next", "break", "in", "TRUE", "FALSE", "NULL", "Inf",
            "NaN", "NA"}
TAGS = {"missing": "Missing cells", "mask": "Mask", "weights": "Weights", "divisor": "Divisor", "empty": "Empty input"}


def r_name(name):
    return name + "." if name in RESERVED else name


class Description(Writer):
    """The C++ of one function: its description, its call, and the entry that R has an address of."""

    def parameter(self, place, argument):
        return super().parameter(place, argument).replace(f'.name = "{argument.name}_"', f'.name = "{argument.name}"', 1)

    def write(self):
        yield from super().write()
        names = [f"a{place}" for place in range(len(self.call.arguments))]
        yield f"SEXP r_{self.call.name}({', '.join('SEXP ' + name for name in names)})"
        yield "{"
        if names:
            yield f"    const SEXP given[] = {{{', '.join(names)}}};"
        yield f"    return callFunction(function_{self.call.name}, {'given' if names else 'nullptr'});"
        yield "}"
        yield ""


def entry(name, address, count):
    return f"    {{\"{name}\", reinterpret_cast<DL_FUNC>({address}), {count}}},"


def cpp_source(calls):
    yield f"// {NOTE}"
    yield "#include \"border.h\""
    yield "#include \"call.h\""
    yield ""
    yield "#include <VecMatFlat.h>"
    yield ""
    yield "#include <R_ext/Rdynload.h>"
    yield "#include <R_ext/Visibility.h>"
    yield ""
    yield "namespace vecmat::r {"
    yield "namespace {"
    yield ""
    for call in calls.values():
        yield from Description(call).write()
    yield "const R_CallMethodDef entries[] = {"
    for name, count in (("vecmat_cells", 1), ("vecmat_column", 3), ("vecmat_frame_cells", 2), ("vecmat_values", 1)):
        yield entry(name, name, count)
    for call in calls.values():
        yield entry(call.name, f"r_{call.name}", len(call.arguments))
    yield "    {nullptr, nullptr, 0},"
    yield "};"
    yield ""
    yield "} // namespace"
    yield "} // namespace vecmat::r"
    yield ""
    yield "extern \"C\" attribute_visible void R_init_vecmat(DllInfo* library)"
    yield "{"
    yield "    R_registerRoutines(library, nullptr, vecmat::r::entries, nullptr, nullptr);"
    yield "    R_useDynamicSymbols(library, FALSE);"
    yield "    R_forceSymbols(library, TRUE);"
    yield "}"


def r_source(calls):
    yield f"# {NOTE}"
    yield ""
    for call in calls.values():
        formals = [r_name(argument.name) + (" = NULL" if argument.role == "out" else "") for argument in call.arguments]
        given = ["C_" + call.name, *(r_name(argument.name) for argument in call.arguments)]
        yield f"flat${call.name} <- function({', '.join(formals)})"
        yield f"  .Call({', '.join(given)})"
    yield ""
    yield "lockEnvironment(flat, bindings = TRUE)"


def told(call, argument):
    """What an argument is, in a line."""
    kind = {"number": "number", "integer": "whole number", "flag": "whole number", "doubles": "numbers",
            "ints": "whole numbers", "flags": "logical values", "strings": "strings", "columns": "list of columns",
            "stringColumns": "list of columns of strings", "text": "string", "bstr": "string"}[kind_of(argument)]
    shape, domain, null = (text_of(call, argument, column) for column in ("shape", "domain", "null"))
    words = [kind + (f" ({shape})" if shape not in ("-", "text", "bstr") else "")]
    if argument.role in ("out", "inout"):
        words.append({"out": "a result", "inout": "read, and handed back changed"}[argument.role])
    if domain not in ("-", "data", "ignored"):
        words.append(domain)
    if null != "no" and null != "-":
        words.append("or NULL" + ("" if null == "yes" else " " + null))
    return ", ".join(words) + (f"; {argument.note}" if argument.note else "")


def once(text):
    """Words that a flat form and what it is a form of have in common, said once."""
    half = len(text) // 2
    return text[:half] if text[:half] == text[half + 1:] else text


def contract_rows(calls, words):
    yield "function\tpart\tkind\trole\tdomain\ttext"
    for call in calls.values():
        described = words.get(call.name, {})
        parts = [("", "", "", "", once(described.get("description", "")))]
        parts += [(argument.name, kind_of(argument), argument.role, text_of(call, argument, "domain"), told(call, argument))
                  for argument in call.arguments]
        parts += [(title, "", "", "", described[tag]) for tag, title in TAGS.items() if described.get(tag)]
        for *head, text in parts:
            if text:
                yield "\t".join([call.name, *head, " ".join(text.split())])


def shared_headers():
    """The package's archive holds no file of another folder."""
    return {f"src/calls/{header.name}": header.read_text(encoding="utf-8").split("\n")[:-1]
            for header in sorted((ROOT / "Bindings/calls").glob("*.h"))}


def files():
    """The generated files by their paths below Bindings/r."""
    calls = read_calls(ROOT)
    words = contract_words(ROOT, calls)
    texts = {
        "src/flat_functions.cpp": cpp_source(calls),
        **shared_headers(),
        "R/flat_functions.R": r_source(calls),
        "inst/flat.tsv": contract_rows(calls, words),
    }
    return {name: "\n".join(lines) + "\n" for name, lines in texts.items()}
