#!/usr/bin/env python3
"""generate_bindings.py [--check] [--library PATH]: declares the flat functions for other languages.

Reads exports.tsv and writes Bindings/vba/VecMat.bas, for macros, and Bindings/c/VecMatFlat.h, for C. With --check
nothing is written: the exit status is 1 if a file is not what would be written. --library is the path of the library
that the macros load, where it is not the one of an installation below /usr/local.

A function is flat if it has C linkage and every type of it is in the table of the language. Macros get those that are
not named Cpp_, which are for native callers.
"""

import argparse
import csv
import re
import sys
import textwrap
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
WIDTH = 100  # of the lines of the macro module

# How a macro declares a parameter. Numbers by value are themselves; an array, or a variable for a result, is handed
# over by reference to its first element. Pointers to what only a macro can take the address of are plain numbers.
VBA_PARAMETERS = {
    "int": "ByVal {} As Long",
    "double": "ByVal {} As Double",
    "short": "ByVal {} As Integer",
    "int*": "ByRef {} As Long",
    "double*": "ByRef {} As Double",
    "short*": "ByRef {} As Boolean",
    "const wchar_t*": "ByRef {} As Long",
    "const void*": "ByVal {} As LongPtr",
    "wchar_t**": "ByVal {} As LongPtr",
    "SAFEARRAY**": "ByVal {} As LongPtr",
}
VBA_RESULTS = {"int": "Long", "double": "Double", "short": "Integer", "wchar_t*": "LongPtr", "void": None}

# The one 16-bit result that is no Boolean: 1 is a value of it.
VBA_INTEGER_RESULTS = {"status"}

# Words of the language that parameters are called in C++ (it doesn't tell upper from lower case).
VBA_WORDS = {"input", "len", "open", "select", "to"}

C_TYPES = {"int", "double", "short", "int*", "double*", "short*", "const char*", "const wchar_t*", "const void*",
           "wchar_t**", "wchar_t*", "void**", "SAFEARRAY*", "SAFEARRAY**", "void", "void*"}

VBA_HEAD = """\
Attribute VB_Name = "VecMat"
Option Explicit

' Declarations of the functions of VecMat that take plain arrays, for macros.
' Written by tools/generate_bindings.py from exports.tsv: change those, not this module.
'
' What each function does, and how it treats missing cells, masks, weights and empty inputs, is told in the
' pages below Docs/contracts. What goes across the border is told in Docs/border.md, in short:
'
'   numbers       An array is handed over by its first element: VB_V_Mean2(v(0), n). Tables are stored column
'                 after column, as VBA stores an array (row, column). Give arrays the sizes that the function
'                 tells: nothing is checked.
'   Booleans      A single one goes in and comes back as an Integer, -1 or 0. An array is one of Booleans.
'   strings       An array of strings is handed over by VarPtr(labels(0)). Let the strings that a function will
'                 replace be empty: the library never frees one. A single string goes in as the array of its
'                 characters' numbers, each a Long, with a 0 behind the last: text(0). SimplifyRange and
'                 Increase1Col take StrPtr(text). A string that comes back is a pointer, which the caller owns.
'   columns       A table of columns is a VecMatTable, handed over by VarPtr(table).
'   missing       A cell without a value holds VecMatMissing.

Public Const VecMatMissing As Double = -1.79769313486231E+308

' One column of a table of columns: of its two arrays fill the one that the function reads.
Public Type VecMatColumn
    Numbers() As Double
    Strings() As String
End Type

Public Type VecMatTable
    Columns() As VecMatColumn
End Type
"""

C_HEAD = """\
/* The functions of VecMat that take plain arrays, for C, and for whatever reads C. A C++ program includes VecMat.h.
   Written by tools/generate_bindings.py from exports.tsv: change those, not this file.

   What each function does, and how it treats missing cells, masks, weights and empty inputs, is told in the pages
   below Docs/contracts, what goes across the border in Docs/border.md. */
#ifndef VECMAT_FLAT_H
#define VECMAT_FLAT_H

#include <stddef.h>

/* A cell without a value holds exactly this double. */
#define VECMAT_MISSING (-0x1.fffffffffffe2p+1023)

#ifdef __cplusplus
struct SAFEARRAY;
extern "C" {
#else
#include <stdint.h>

/* Array descriptor of OLE Automation, in which tables of columns come. Only pvData is ever read. */
typedef struct SAFEARRAYBOUND
{
    uint32_t cElements;
    int32_t lLbound;
} SAFEARRAYBOUND;

typedef struct SAFEARRAY
{
    uint16_t cDims;
    uint16_t fFeatures;
    uint32_t cbElements;
    uint32_t cLocks;
    void* pvData;
    SAFEARRAYBOUND rgsabound[1];
} SAFEARRAY;

/* One element of the outer array: a column of numbers and a column of strings, either of which may be null. */
typedef struct SAFEARRAYColumn
{
    SAFEARRAY* numbers;
    SAFEARRAY* strings;
} SAFEARRAYColumn;
#endif
"""

C_TAIL = """
#ifdef __cplusplus
}
#endif

#endif
"""


@dataclass(frozen=True)
class Function:
    name: str
    returns: str
    parameters: tuple  # of pairs: type, name
    unit: str


def read_functions(path):
    """The functions with C linkage, in the order of the interface list."""
    with open(path, encoding="utf-8", newline="") as file:
        rows = [row for row in csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE) if row["linkage"] == "C"]
    return [Function(row["name"], row["returns"],
                     tuple(re.fullmatch(r"(.+?) ?(\w+)", part).groups()
                           for part in row["parameters"].split(", ") if part), row["unit"])
            for row in rows]


def by_unit(functions):
    units = {}
    for function in functions:
        units.setdefault(function.unit, []).append(function)
    return units.items()


def vba_is_flat(function):
    return (not function.name.startswith("Cpp_") and function.returns in VBA_RESULTS
            and all(kind in VBA_PARAMETERS for kind, _ in function.parameters))


def vba_names(function):
    """Names for the parameters that differ when upper and lower case don't."""
    names = []
    for _, name in function.parameters:
        if name.lower() in VBA_WORDS:
            name += "Arg"
        while name.lower() in [other.lower() for other in names]:
            name += "2"
        names.append(name)
    return names


def vba_declaration(function, library, is_vba7):
    parts = []
    for (kind, original), name in zip(function.parameters, vba_names(function)):
        form = VBA_PARAMETERS[kind]
        if kind == "short*" and original in VBA_INTEGER_RESULTS:
            form = "ByRef {} As Integer"
        parts.append(form.format(name))
    result = VBA_RESULTS[function.returns]
    start = (f"Public Declare {'PtrSafe ' if is_vba7 else ''}{'Function' if result else 'Sub'} {function.name} CDecl "
             f'Lib "{library}" (')
    end = ")" + (f" As {result}" if result else "")
    text = start + ", ".join(parts) + end
    if len(text) > WIDTH:
        # the words of one parameter stay on one line
        arguments = textwrap.wrap(", ".join(part.replace(" ", "\0") for part in parts), WIDTH - 8,
                                  break_long_words=False)
        text = start + " _\n    " + " _\n    ".join(line.replace("\0", " ") for line in arguments) + end
    return text if is_vba7 else text.replace("LongPtr", "Long")


def vba_module(functions, library):
    units = by_unit([function for function in functions if vba_is_flat(function)])

    def block(is_vba7):
        return [line for unit, members in units
                for line in [f"\n' ---- {unit} ----\n"] + [vba_declaration(f, library, is_vba7) for f in members]]
    lines = [VBA_HEAD, "#If VBA7 Then"] + block(True) + ["\n#Else"] + block(False) + ["\n#End If", ""]
    return "\n".join(lines).replace("\n", "\r\n")


def c_is_flat(function):
    return function.returns in C_TYPES and all(kind in C_TYPES for kind, _ in function.parameters)


def c_declaration(function):
    parameters = [f"{kind} {name}" for kind, name in function.parameters] or ["void"]
    start = f"{function.returns} {function.name}("
    text = re.sub(r"\bSAFEARRAY\b", "struct SAFEARRAY", f"{start}{', '.join(parameters)});")
    # as clang-format has it: below the first parameter, and the words of one parameter on one line
    text = text[:len(start)] + text[len(start):].replace(" ", "\0").replace(",\0", ", ")
    return textwrap.fill(text, 120, subsequent_indent=" " * len(start), break_long_words=False).replace("\0", " ")


def c_header(functions):
    lines = [C_HEAD]
    for unit, members in by_unit([function for function in functions if c_is_flat(function)]):
        lines += [f"/* ---- {unit} ---- */"] + [c_declaration(function) for function in members] + [""]
    return "\n".join(lines).rstrip("\n") + "\n" + C_TAIL


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--library", default="/usr/local/lib/libVecMat.dylib")
    arguments = parser.parse_args()

    functions = read_functions(ROOT / "exports.tsv")
    stale = []
    for path, text in ((ROOT / "Bindings/vba/VecMat.bas", vba_module(functions, arguments.library)),
                       (ROOT / "Bindings/c/VecMatFlat.h", c_header(functions))):
        content = text.encode("ascii")
        if not path.exists() or path.read_bytes() != content:
            stale.append(path.relative_to(ROOT).as_posix())
            if not arguments.check:
                path.write_bytes(content)
    for name in stale:
        print(f"{name}: {'is not what tools/generate_bindings.py writes' if arguments.check else 'written'}")
    return 1 if arguments.check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
