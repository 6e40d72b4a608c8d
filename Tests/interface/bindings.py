"""Compares the declarations for macros and for C with what the headers export.

Nothing is shared with the program that writes those declarations: the types are told here once more, and the functions
come from the headers.
"""

import re
from dataclasses import dataclass

from declarations import one_spelling, parameters

# What a parameter of a header is for a macro: handed over by value or by reference, and its type under VBA7 and before.
# An array that may be absent is of any type, by reference.
MACRO_PARAMETERS = {
    "int": ("ByVal", "Long", "Long"),
    "double": ("ByVal", "Double", "Double"),
    "short": ("ByVal", "Integer", "Integer"),
    "int*": ("ByRef", "Long", "Long"),
    "double*": ("ByRef", "Double", "Double"),
    "short*": ("ByRef", "Boolean", "Boolean"),
    "const wchar_t*": ("ByRef", "Long", "Long"),       # characters of 32 bits
    "const void*": ("ByVal", "LongPtr", "Long"),       # one BSTR
    "wchar_t**": ("ByVal", "LongPtr", "Long"),         # the first of an array of BSTRs
    "SAFEARRAY**": ("ByVal", "LongPtr", "Long"),       # a variable that holds a descriptor's address
}
STATUS = ("ByRef", "Integer", "Integer")  # a `short*` of this name has the values -1, 0 and 1
MACRO_RESULTS = {"int": ("Long", "Long"), "double": ("Double", "Double"), "short": ("Integer", "Integer"),
                 "wchar_t*": ("LongPtr", "Long"), "void": (None, None)}
C_TYPES = {"void", "void*", "int", "double", "short", "wchar_t*", "int*", "double*", "short*", "const char*",
           "const wchar_t*", "const void*", "wchar_t**", "void**", "SAFEARRAY*", "SAFEARRAY**"}

# The blocks of a module of declarations: for a Mac, for Windows, and for a Mac with a host from before VBA7.
CONDITIONS = ["#If Mac And VBA7 Then", "#ElseIf Win64 Then", "#ElseIf Mac Then", "#End If"]
TITLES = ("Mac", "Windows", "before VBA7")


@dataclass(frozen=True)
class MacroDeclaration:
    name: str
    is_ptr_safe: bool
    is_cdecl: bool
    library: str
    parameters: tuple  # of triples: ByVal or ByRef, name, type
    returns: str       # None for a Sub


class ModuleError(Exception):
    pass


def statements(text):
    """The statements of a module, without comments, each as one line."""
    found = []
    for line in text.replace(" _\r\n", " ").split("\r\n"):
        code = re.sub(r"""^((?:[^"']|"[^"]*")*)'.*$""", r"\1", line).strip()
        if code:
            found.append(re.sub(r"\s+", " ", code))
    return found


DECLARATION = re.compile(
    r'Public Declare (?P<safe>PtrSafe )?(?P<kind>Function|Sub) (?P<name>[A-Za-z]\w*) (?P<cdecl>CDecl )?Lib "(?P<library>[^"]+)" '
    r'\( ?(?P<parameters>[^()]*)\)(?: As (?P<returns>\w+))?')
PARAMETER = re.compile(r"(ByVal|ByRef) ([A-Za-z]\w*) As (\w+)")


def macro_declaration(statement):
    match = DECLARATION.fullmatch(statement)
    if not match or (match["kind"] == "Function") != (match["returns"] is not None):
        raise ModuleError(f"not a declaration: {statement}")
    triples = []
    for part in match["parameters"].split(", ") if match["parameters"] else []:
        found = PARAMETER.fullmatch(part)
        if not found:
            raise ModuleError(f"{match['name']}: not a parameter: {part}")
        triples.append(found.groups())
    names = [match["name"].lower()] + [name.lower() for _, name, _ in triples]
    if len(set(names)) != len(names):
        raise ModuleError(f"{match['name']}: two names differ in nothing but case")
    return MacroDeclaration(match["name"], match["safe"] is not None, match["cdecl"] is not None,
                            match["library"], tuple(triples), match["returns"])


def module_declarations(text):
    """The declarations of a module in three lists: for a Mac, for Windows, and for a Mac from before VBA7."""
    lines = statements(text)
    if [line for line in lines if line.startswith("#")] != CONDITIONS:
        raise ModuleError("there are not three blocks, for a Mac, for Windows, and for a Mac from before VBA7")
    marks = [lines.index(condition) for condition in CONDITIONS]
    if any("Declare" in line for line in lines[:marks[0]] + lines[marks[-1]:]):
        raise ModuleError("a declaration stands outside of the blocks")
    return [[macro_declaration(line) for line in lines[start + 1:end]] for start, end in zip(marks, marks[1:])]


def expected_for_macros(declarations):
    return {d.name: d for d in declarations
            if d.linkage == "C" and not d.name.startswith("Cpp_") and d.returns in MACRO_RESULTS
            and all(kind in MACRO_PARAMETERS for kind in d.types)}


def compare_sets(title, found, expected):
    wrong = [f"{title}: {name} is declared twice" for name in sorted({n for n in found if found.count(n) > 1})]
    wrong += [f"{title}: {name} is not declared" for name in sorted(set(expected) - set(found))]
    return wrong + [f"{title}: {name} is not a flat function of the headers" for name in sorted(set(found) - set(expected))]


def expected_form(block, function, kind, name, nullable):
    """How a parameter is handed over, and its type."""
    if kind in ("double*", "int*", "short*") and (function, name) in nullable:
        return "ByRef", "Any"
    if kind == "const wchar_t*" and block == 1:
        return "ByVal", "LongPtr"  # 16-bit characters, as the string has them
    form = STATUS if (kind, name) == ("short*", "status") else MACRO_PARAMETERS[kind]
    return form[0], form[2 if block == 2 else 1]


def compare_macros(texts, declarations, nullable=frozenset()):
    """What is wrong with the modules, given all exported declarations of the headers and which arrays may be absent."""
    try:
        modules = [module_declarations(text) for text in texts]
    except ModuleError as error:
        return [str(error)]
    expected = expected_for_macros(declarations)
    wrong = []
    for block, title in enumerate(TITLES):
        macros = [macro for module in modules for macro in module[block]]
        wrong += compare_sets(title, [macro.name for macro in macros], expected)
        if len({macro.name.lower() for macro in macros}) != len({macro.name for macro in macros}):
            wrong.append(f"{title}: two functions differ in nothing but case")
        if len({macro.library for macro in macros}) > 1:
            wrong.append(f"{title}: the functions are not all in one library")
        for macro in macros:
            if macro.name in expected:
                wrong += compare_macro(block, macro, expected[macro.name], nullable)
    return wrong


def compare_macro(block, macro, header, nullable):
    title, wrong = TITLES[block], []
    if macro.is_ptr_safe == (block == 2):
        wrong.append(f"{title}: {macro.name} has PtrSafe where it must not, or lacks it")
    if macro.is_cdecl == (block == 1):
        wrong.append(f"{title}: {macro.name} has CDecl where it must not, or lacks it")
    if macro.returns != MACRO_RESULTS[header.returns][block == 2]:
        wrong.append(f"{title}: {macro.name} returns {macro.returns}, the header {header.returns}")
    if len(macro.parameters) != len(header.types):
        return wrong + [f"{title}: {macro.name} has {len(macro.parameters)} parameters, the header {len(header.types)}"]
    for (passing, name, kind), header_type, header_name in zip(macro.parameters, header.types, header.names):
        if (passing, kind) != expected_form(block, macro.name, header_type, header_name, nullable):
            wrong.append(f"{title}: {macro.name} has {passing} {name} As {kind}, the header {header_type} {header_name}")
        if not re.fullmatch(re.escape(header_name) + "(Arg)?2*", name):
            wrong.append(f"{title}: {macro.name} calls {name} what the header calls {header_name}")
    return wrong


def compare_c(text, declarations):
    """What is wrong with the header for C."""
    code = re.sub(r"/\*.*?\*/", " ", text, flags=re.S)
    code = re.sub(r"typedef struct \w+\s*\{[^{}]*\}[^;]*;", " ", code)
    code = "\n".join(line for line in code.split("\n") if not line.startswith(("#", 'extern "C"', "}", "struct SAFEARRAY;")))
    wrong, found = [], {}
    for statement in filter(None, (part.strip() for part in code.split(";"))):
        match = re.fullmatch(r"([\w\s*]+?[\s*])(\w+)\s*\(([^()]*)\)", re.sub(r"\bstruct ", "", statement))
        if not match:
            wrong.append(f"C: not a declaration: {statement}")
            continue
        if match[2] in found:
            wrong.append(f"C: {match[2]} is declared twice")
        if not match[3].strip():
            wrong.append(f"C: {match[2]}() takes anything: say (void)")
        found[match[2]] = (one_spelling(match[1]), *parameters(match[3]))
    expected = flat_in_c(declarations)
    wrong += compare_sets("C", list(found), expected)
    for name in set(found) & set(expected):
        header = expected[name]
        if found[name] != (header.returns, header.types, header.names):
            wrong.append(f"C: {name} is {found[name]}, the header has {(header.returns, header.types, header.names)}")
    return wrong


def flat_in_c(declarations):
    return {d.name: d for d in declarations
            if d.linkage == "C" and d.returns in C_TYPES and all(kind in C_TYPES for kind in d.types)}


def compare_guarded(text, declarations):
    """What is wrong with the header of the guarded calls: one for each flat function, with a place for its result."""
    code = re.sub(r"/\*.*?\*/|^#[^\n]*(\n    [^\n]*\\)*", " ", text, flags=re.S | re.M)
    found, wrong = {}, []
    for returns, name, parts in re.findall(r"VECMAT_GUARDED_API ([\w\s*]+?[\s*])(\w+)\s*\(([^()]*)\);",
                                           re.sub(r"\bstruct ", "", code)):
        if name in found:
            wrong.append(f"guarded: {name} is declared twice")
        found[name] = (one_spelling(returns), *parameters(parts))
    if found.pop("vecmat_guarded_error", None) != ("const char*", (), ()):
        wrong.append("guarded: vecmat_guarded_error is not declared, or otherwise")
    expected = {}
    for name, d in flat_in_c(declarations).items():
        place = () if d.returns == "void" else (d.returns + "*",)
        expected["vecmat_guarded_" + name] = ("int", d.types + place, d.names + ("returned",) * len(place))
    wrong += compare_sets("guarded", list(found), expected)
    return wrong + [f"guarded: {name} is {found[name]}, the header has {expected[name]}"
                    for name in sorted(set(found) & set(expected)) if found[name] != expected[name]]


def compare_guarded_symbols(symbols, declarations):
    """What is wrong with the exports of the library of guarded calls."""
    expected = {"vecmat_guarded_" + name for name in flat_in_c(declarations)} | {"vecmat_guarded_error"}
    return ([f"guarded: the library lacks {name}" for name in sorted(expected - symbols)]
            + [f"guarded: the library exports {name}, too" for name in sorted(symbols - expected)])
