"""Reads what the library's headers export.

A reader for the plain C++ of these headers, not for all of C++: it knows comments, preprocessor lines, extern "C",
namespaces, classes, inline bodies, default arguments and default member values. It reports what it cannot read.
"""

import re
from dataclasses import dataclass

MARK = "VECMAT_API"
HIDDEN = "VECMAT_LOCAL"

# A parameter's last word is its name, unless it is one of these or the only word.
TYPE_WORDS = {"void", "bool", "char", "short", "int", "long", "float", "double", "signed", "unsigned", "wchar_t",
              "const", "matrix", "matrixInt", "Smatrix", "SAFEARRAY"}


@dataclass(frozen=True)
class Declaration:
    name: str         # `M_ProductAB`, `matrix::vbget`
    linkage: str      # `C` or `C++`
    returns: str      # empty for constructors and destructors
    types: tuple      # parameter types without names, in canonical spelling
    names: tuple      # parameter names, empty for unnamed parameters
    header: str       # path below the library's folder
    line: int

    def signature(self):
        return f"{self.name}({', '.join(self.types)})"


class HeaderError(Exception):
    pass


def one_spelling(type_text):
    """The type in canonical spelling: `const char*`, `matrix*&`, `std::vector<void*>&`."""
    text = re.sub(r"\s+", " ", type_text.strip())
    text = re.sub(r"^(.*?)\bconst\b\s*(?=[*&]|$)", r"const \1", text) if not text.startswith("const ") else text
    text = re.sub(r"\s*([*&<>,])\s*", r"\1", text)
    return re.sub(r"\s+", " ", text).strip()


def split_parameters(text):
    """Splits a parameter list at the commas outside brackets."""
    parts, depth, current = [], 0, ""
    for char in text:
        if char in "(<[{":
            depth += 1
        elif char in ")>]}":
            depth -= 1
        if char == "," and depth == 0:
            parts.append(current)
            current = ""
        else:
            current += char
    parts.append(current)
    parts = [part.strip() for part in parts]
    return [] if parts in ([""], ["void"]) else parts


def parameter(text):
    """Type and name of one parameter such as `const wchar_t* label = nullptr`; the name may be empty."""
    text = re.sub(r"=.*$", "", text, flags=re.S).strip()
    text = re.sub(r"^(.*?)\s*(\w*)\s*\[\s*\]$", r"\1* \2", text).strip()
    match = re.match(r"^(.*[\s*&>])(\w+)$", text, flags=re.S)
    if match and match.group(2) not in TYPE_WORDS and match.group(1).strip() not in ("", "const"):
        return one_spelling(match.group(1)), match.group(2)
    return one_spelling(text), ""


def parameters(text):
    """Types and names of a parameter list, as two tuples of equal length."""
    pairs = [parameter(part) for part in split_parameters(text)]
    return tuple(kind for kind, _ in pairs), tuple(name for _, name in pairs)


def without_comments(text):
    """Blanks comments and preprocessor lines, keeping the line numbers."""
    def blank(match):
        return "\n" * match.group(0).count("\n") or " "
    text = re.sub(r'//[^\n]*|/\*.*?\*/', blank, text, flags=re.S)
    return re.sub(r"^[ \t]*#(?:[^\n\\]|\\.|\\\n)*", blank, text, flags=re.M | re.S)


def matching_brace(text, start):
    depth = 0
    for position in range(start, len(text)):
        if text[position] == "{":
            depth += 1
        elif text[position] == "}":
            depth -= 1
            if depth == 0:
                return position
    raise HeaderError("a brace is never closed")


class _Scope:
    def __init__(self, kind, name="", exported=False, public=True):
        self.kind, self.name, self.exported, self.public = kind, name, exported, public


def _function(statement, scopes, header, line):
    """The declaration in a statement, or None if it exports nothing."""
    inside = scopes[-1] if scopes and scopes[-1].kind == "class" else None
    marked = re.search(rf"\b{MARK}\b", statement) is not None
    by_class = inside is not None and inside.exported and inside.public
    if not marked and (not by_class or "(" not in statement):
        return None
    where = f"{header}:{line}"
    text = re.sub(r"\s+", " ", statement).strip()
    if re.search(rf"\b({HIDDEN}|using|typedef|friend|static_assert)\b", text) or re.search(r"= ?delete$", text):
        return None
    if text.startswith("template"):
        raise HeaderError(f"{where}: a template is marked {MARK}")
    if any(scope.kind == "namespace" for scope in scopes):
        raise HeaderError(f"{where}: exported names are global, this one is in a namespace: {text}")
    linkage = "C" if any(scope.kind == "C" for scope in scopes) else "C++"
    text, count = re.subn(r'\bextern "C"\s*', "", text)
    if count:
        linkage = "C"
    text = re.sub(rf"\[\[.*?\]\]|\b({MARK}|static|inline|explicit|constexpr|virtual|extern)\b", " ", text).strip()
    match = re.match(r"^(?P<returns>[\w:<>*&,\s]*?[\s*&>])?(?P<name>~?\w+)\s*\(", text)
    if not match:
        if "(" not in text and marked:
            raise HeaderError(f"{where}: exported data: {text}")
        if by_class and not marked and "=" in text.split("(")[0]:
            return None  # a member with a default value
        raise HeaderError(f"{where}: cannot read: {text}")
    depth, end = 0, None
    for position in range(match.end() - 1, len(text)):
        depth += {"(": 1, ")": -1}.get(text[position], 0)
        if depth == 0:
            end = position
            break
    if end is None:
        raise HeaderError(f"{where}: cannot read: {text}")
    types, names = parameters(text[match.end():end])
    name = match.group("name")
    if inside is not None:
        name, linkage = f"{inside.name}::{name}", "C++"
    return Declaration(name, linkage, one_spelling(match.group("returns") or ""), types, names, header, line)


def read_header(text, header):
    """All exported functions declared in the text of a header. Raises HeaderError if it cannot read them."""
    text = without_comments(text)
    declarations, scopes, start, position = [], [], 0, 0

    def statement_at(end):
        raw = text[start:end]
        lead = len(raw) - len(raw.lstrip())
        return raw.strip(), text.count("\n", 0, start + lead) + 1

    while position < len(text):
        char = text[position]
        if char == ":" and scopes and scopes[-1].kind == "class":
            word = text[start:position].strip()
            if word in ("public", "protected", "private"):
                scopes[-1].public = word == "public"
                start = position + 1
        elif char == ";":
            statement, line = statement_at(position)
            found = _function(statement, scopes, header, line)
            if found:
                declarations.append(found)
            start = position + 1
        elif char == "{":
            statement, line = statement_at(position)
            klass = re.match(r"^(class|struct)\s+((?:\w+\s+)*?)(\w+)\s*(final\s*)?$", statement)
            if re.match(r'^extern\s+"C"$', statement):
                scopes.append(_Scope("C"))
            elif re.match(r"^(inline\s+)?namespace\b", statement):
                scopes.append(_Scope("namespace"))
            elif klass:
                scopes.append(_Scope("class", klass.group(3), MARK in klass.group(2).split(),
                                     klass.group(1) == "struct"))
            else:
                position = matching_brace(text, position)
                found = None
                # an initialiser belongs to the statement, which its semicolon ends; a body ends a function
                if "(" in statement and not re.match(r"^(enum|union|class|struct|template)\b", statement):
                    body_of = re.sub(r"\)\s*:[^:].*$", ")", statement, flags=re.S)  # drop constructor initialisers
                    found = _function(body_of, scopes, header, line)
                elif statement.startswith("template") and MARK in statement:
                    raise HeaderError(f"{header}:{line}: a template is marked {MARK}")
                if found:
                    declarations.append(found)
                start = position + 1
                position += 1
                continue
            start = position + 1
        elif char == "}":
            if not scopes:
                raise HeaderError(f"{header}: a brace too many")
            scopes.pop()
            start = position + 1
        position += 1
    if scopes:
        raise HeaderError(f"{header}: a brace is never closed")
    return declarations
