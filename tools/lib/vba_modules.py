"""Writes the modules for macros: VecMat, with the shared part, and VecMatCalls1, 2, ... with the declarations.
VecMatHelpers and VecMatExample, beside them, are written by hand.

The macro editor limits a module to 64 KB. Each has three blocks: for a Mac, for 64-bit Windows, and for
a Mac with a host from before VBA7.
"""

import re
import textwrap
from pathlib import PurePosixPath

from arguments import read_calls

WIDTH = 100  # of the lines
LONGEST = 60_000  # of a module, in characters

BLOCKS = ("#If Mac And VBA7 Then", "#ElseIf Win64 Then", "#ElseIf Mac Then")

# How a macro declares a parameter. Numbers are passed by value; an array, or a variable for a result, by reference to
# its first element. Pointers that a macro has to take itself (VarPtr, StrPtr) are plain numbers.
PARAMETERS = {
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
RESULTS = {"int": "Long", "double": "Double", "short": "Integer", "wchar_t*": "LongPtr", "void": None}

# The one 16-bit result that is not a Boolean: it can be 1.
INTEGER_RESULTS = {"status"}

# Keywords of the language used as parameter names in C++ (case is ignored).
WORDS = {"input", "len", "open", "select", "to"}

CALLS_HEAD = """\
Attribute VB_Name = "{name}"
Option Explicit

' Declarations of VecMat for macros: see the module VecMat, which this one needs. Written by tools/bindings.
"""

HEAD = """\
Attribute VB_Name = "VecMat"
Option Explicit

' Shared by the modules VecMatCalls1, 2, ..., which declare the functions of VecMat that take plain arrays, for
' macros on a Mac and on 64-bit Windows. Import all of them.
' Written by tools/bindings from exports.tsv and arguments.tsv: change those, not these modules.
'
' Docs/contracts describes what each function does, and how it treats missing cells, masks, weights and empty
' inputs. Docs/border.md describes how arguments are passed; in short:
'
'   numbers       An array is passed by its first element: VB_V_Mean2(v(0), n). Tables are stored column
'                 after column, as VBA stores an array (row, column). Give arrays the sizes that the function
'                 requires: nothing is checked.
'   Booleans      A single one is passed and returned as an Integer, -1 or 0. An array is one of Booleans.
'   strings       An array of strings is passed as an array of pointers. VecMatGiveTexts and VecMatTakeTexts, in
'                 VecMatHelpers, make it, and free what the library makes. A single string is passed as
'                 StrPtr(text) on Windows, and on a Mac as the first element of VecMatCharacters(text).
'                 SimplifyRange and Increase1Col take StrPtr(text) everywhere. A returned string is a pointer:
'                 VecMatTakeString gives its text and frees it.
'   columns       A table of columns is a VecMatTable, passed as VarPtr(table): see VecMatNumberTable in
'                 VecMatHelpers, and VecMatTextTable for strings.
'   missing       A cell without a value holds VecMatMissing. VecMatNumbers turns a range's values into numbers,
'                 and VecMatValues turns numbers into values.
'   absent        Where the contract allows an array to be absent, as with most masks and weights, it is declared
'                 As Any: pass its first element, or ByVal VecMatNothing.
'   the library   On Windows VecMat.dll is found beside the host, on the path, or in the folder given to VecMatFrom.
'                 On a Mac its path is part of the declarations: see tools/bindings --library.

Public Const VecMatMissing As Double = -1.79769313486231E+308

' One column of a table of columns: fill the one of its two arrays that the function reads.
Public Type VecMatColumn
    Numbers() As Double
    Strings() As String
End Type

Public Type VecMatTable
    Columns() As VecMatColumn
End Type

#If VBA7 Then
Public Const VecMatNothing As LongPtr = 0
#Else
Public Const VecMatNothing As Long = 0
#End If

' Frees a string where the library has it from. VecMatHelpers calls it: see VecMatTakeString there.
#If Mac And VBA7 Then
Public Declare PtrSafe Sub VecMatFreeString CDecl Lib "{companion}" Alias "SysFreeString2" ( _
    ByVal bstr As LongPtr)
#ElseIf Mac Then
Public Declare Sub VecMatFreeString CDecl Lib "{companion}" Alias "SysFreeString2" ( _
    ByVal bstr As Long)
#ElseIf VBA7 Then
Public Declare PtrSafe Sub VecMatFreeString Lib "oleaut32" Alias "SysFreeString" (ByVal bstr As LongPtr)
#Else
Public Declare Sub VecMatFreeString Lib "oleaut32" Alias "SysFreeString" (ByVal bstr As Long)
#End If

#If Win64 And Not Mac Then
Private Declare PtrSafe Function LoadLibraryExW Lib "kernel32" ( _
    ByVal path As LongPtr, ByVal file As LongPtr, ByVal flags As Long) As LongPtr

' Loads the library from a folder that also contains the companions: VecMatFrom ThisWorkbook.Path. Call it before any
' function of the library; True if it was found.
Public Function VecMatFrom(ByVal folder As String) As Boolean
    Dim path As String
    path = folder & "\\VecMat.dll"
    VecMatFrom = LoadLibraryExW(StrPtr(path), 0, 8) <> 0
End Function
#End If
"""


def is_flat(function):
    return (not function.name.startswith("Cpp_") and function.returns in RESULTS
            and all(kind in PARAMETERS for kind, _ in function.parameters))


def names_for(function):
    """Parameter names that are distinct even if case is ignored."""
    names = []
    for _, name in function.parameters:
        if name.lower() in WORDS:
            name += "Arg"
        while name.lower() in [other.lower() for other in names]:
            name += "2"
        names.append(name)
    return names


def nullable_arguments():
    """Pairs of a function and the name of an array that may be absent."""
    return {(call.name, argument.name) for call in read_calls().values() for argument in call.arguments
            if argument.null is not False}


def form_of(function, kind, name, nullable, block):
    if block == 1 and kind == "const wchar_t*":
        return "ByVal {} As LongPtr"  # characters have 16 bits there, as in the string
    if kind in ("double*", "int*", "short*") and (function.name, name) in nullable:
        return "ByRef {} As Any"
    if kind == "short*" and name in INTEGER_RESULTS:
        return "ByRef {} As Integer"
    return PARAMETERS[kind]


def declaration(function, block, library, nullable):
    parts = [form_of(function, kind, original, nullable, block).format(name)
             for (kind, original), name in zip(function.parameters, names_for(function))]
    result = RESULTS[function.returns]
    start = (f"Public Declare {'' if block == 2 else 'PtrSafe '}{'Function' if result else 'Sub'} {function.name} "
             f"""{'' if block == 1 else 'CDecl '}Lib "{library}" (""")
    end = ")" + (f" As {result}" if result else "")
    text = start + ", ".join(parts) + end
    if len(text) > WIDTH:
        # the words of one parameter stay on one line
        arguments = textwrap.wrap(", ".join(part.replace(" ", "\0") for part in parts), WIDTH - 8,
                                  break_long_words=False)
        text = start + " _\n    " + " _\n    ".join(line.replace("\0", " ") for line in arguments) + end
    return re.sub(r"\bLongPtr\b", "Long", text) if block == 2 else text


def chunks(units, libraries, nullable):
    """The functions in lists that fit into a module, with their declarations: one for each block."""
    current, size = [], 0
    for unit, functions in units:
        for function in filter(is_flat, functions):
            texts = [declaration(function, block, library, nullable) for block, library in enumerate(libraries)]
            length = sum(map(len, texts)) + 3 * (len(unit) + 20)
            if current and size + length > LONGEST:
                yield current
                current, size = [], 0
            current.append((unit, texts))
            size += length
    yield current


def calls_module(name, members):
    lines = [CALLS_HEAD.format(name=name)]
    for block, condition in enumerate(BLOCKS):
        lines.append(condition)
        unit = None
        for member_unit, texts in members:
            if member_unit != unit:
                unit = member_unit
                lines.append(f"\n' ---- {unit} ----\n")
            lines.append(texts[block])
        lines.append("")
    return "\n".join(lines + ["#End If", ""])


def modules(units, mac_library, windows_library):
    """The texts of the modules, by name."""
    companion = PurePosixPath(mac_library).with_name("libCompanionRuntime.dylib").as_posix()
    texts = {"VecMat": HEAD.replace("{companion}", companion)}
    libraries = (mac_library, windows_library, mac_library)
    for number, members in enumerate(chunks(units, libraries, nullable_arguments()), start=1):
        name = f"VecMatCalls{number}"
        texts[name] = calls_module(name, members)
    return {name: text.replace("\n", "\r\n") for name, text in texts.items()}
