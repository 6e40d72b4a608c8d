"""Where the library's sources can be changed, one small change at a time.

`places(path, arguments, wanted)` reads one source with clang and gives all mutants of it and of the headers it includes.
A change is an expression with another one in its place: so that all mutants can be compiled at once, each behind a switch
(mutation_schemata.py). What the compiler evaluates is left out: nothing could switch it."""

import re
from typing import NamedTuple

import clang.cindex
from clang.cindex import CursorKind as Kind
from clang.cindex import TypeKind

# Kinds that the compiler's library has and its Python module doesn't know.
for number in (129, 149, 150, 151, 152, 153, 154, 280, 304, 604, 605):
    try:
        Kind.from_id(number)
    except ValueError:
        Kind(number)


class Edit(NamedTuple):
    """Bytes start to end of a file, what stands there once the change is switched on, and the form of the switch:
    `value`, `statement` or `jump`."""
    start: int
    end: int
    text: str
    form: str


class Mutant(NamedTuple):
    file: str
    line: int
    function: str
    kind: str
    shown: str  # the source line with [what is there => what is put there]
    edits: tuple

    @property
    def name(self):
        return (self.file, self.function, self.kind, self.shown)


STATEMENTS = {Kind.COMPOUND_STMT, Kind.IF_STMT, Kind.FOR_STMT, Kind.WHILE_STMT, Kind.DO_STMT, Kind.CXX_FOR_RANGE_STMT,
              Kind.SWITCH_STMT, Kind.CASE_STMT, Kind.DEFAULT_STMT}
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.FUNCTION_TEMPLATE, Kind.CONSTRUCTOR, Kind.DESTRUCTOR,
             Kind.CONVERSION_FUNCTION}
# Evaluated by the compiler, or no expression of the program at all. A DECL_REF_EXPR has only its template arguments below.
NEVER_RUN = {Kind.STATIC_ASSERT, Kind.ENUM_CONSTANT_DECL, Kind.TEMPLATE_NON_TYPE_PARAMETER, Kind.TEMPLATE_TYPE_PARAMETER,
             Kind.TYPE_ALIAS_DECL, Kind.TYPEDEF_DECL, Kind.DECL_REF_EXPR, Kind.TYPE_REF, Kind.TEMPLATE_REF,
             Kind.CXX_UNARY_EXPR, Kind.CONCEPT_DECL if hasattr(Kind, "CONCEPT_DECL") else Kind.TYPE_REF}
FLOATING = {TypeKind.DOUBLE, TypeKind.FLOAT, TypeKind.LONGDOUBLE}
UNSETTLED = {TypeKind.DEPENDENT, TypeKind.UNEXPOSED, TypeKind.INVALID}  # in a template

OPERATORS = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*"}
ASSIGNMENTS = {"+=": "-=", "-=": "+=", "*=": "/=", "/=": "*="}
COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&"}


def without_comments(source):
    """The source with comments and preprocessor lines blank, at their old places."""
    blank = lambda match: re.sub(r"[^\n]", " ", match[0])
    source = re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', lambda m: m[0] if m[0][0] == '"' else blank(m), source,
                    flags=re.S)
    return re.sub(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", blank, source, flags=re.M)


class File:
    """One file's text and the mutants found in it."""

    def __init__(self, path, name):
        self.name = name
        self.raw = path.read_bytes().decode("latin-1")  # so that offsets are those of bytes
        self.code = without_comments(self.raw)
        self.found = {}

    def text(self, start, end):
        return re.sub(r"\s+", " ", self.code[start:end]).strip()

    def add(self, kind, function, edits, region=None, into=None):
        """The change is shown as the first edit's, unless told otherwise."""
        start, end = region or edits[0][:2]
        # Where a comment or a line of the preprocessor stands inside, no copy of the text can be made.
        if any('"' in edit.text or self.code[edit.start:edit.end] != self.raw[edit.start:edit.end] for edit in edits):
            return
        first = self.code.rfind("\n", 0, start) + 1
        last = self.code.find("\n", end)
        into = edits[0].text if into is None else into
        shown = (f"{self.text(first, start)} [{self.text(start, end)} => {into}] {self.text(end, last)}").strip()
        line = self.raw.count("\n", 0, start) + 1
        mutant = Mutant(self.name, line, function, kind, shown, tuple(Edit(*edit) for edit in edits))
        self.found.setdefault(mutant.edits, mutant)


class Reader:
    """Walks the tree of one source and notes its mutants in the files."""

    def __init__(self, files, done):
        self.files, self.done = files, done
        self.file = None

    def read(self, unit):
        for cursor in unit.cursor.get_children():
            path = cursor.location.file and cursor.location.file.name
            if path in self.files and path not in self.done:
                self.file = self.files[path]
                self.walk(cursor, None, "")

    def walk(self, cursor, parent, function):
        kind = cursor.kind
        if kind in NEVER_RUN or kind.is_attribute():
            return
        if kind in FUNCTIONS:
            function = cursor.spelling
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        if kind in (Kind.VAR_DECL, Kind.FIELD_DECL) and re.match(r"(?:static |inline )*constexpr\b", self.file.code[start:end]):
            return
        self.expression(cursor, parent, function, start, end)
        children = list(cursor.get_children())
        if kind == Kind.CASE_STMT or (kind == Kind.IF_STMT and re.match(r"if\s+constexpr", self.file.code[start:])):
            children = children[1:]
        if kind == Kind.MEMBER_REF_EXPR:  # what follows are template arguments
            children = children[:1]
        for child in children:
            self.walk(child, cursor, function)

    def expression(self, cursor, parent, function, start, end):
        kind = cursor.kind
        if kind == Kind.BINARY_OPERATOR or kind == Kind.COMPOUND_ASSIGNMENT_OPERATOR:
            self.binary(cursor, function, start, end)
        elif kind == Kind.INTEGER_LITERAL or kind == Kind.FLOATING_LITERAL:
            self.constant(parent, function, start, end)
        elif kind == Kind.FOR_STMT:
            self.direction(cursor, function, start)
        elif kind in (Kind.CONTINUE_STMT, Kind.BREAK_STMT) or (kind == Kind.RETURN_STMT and end - start == len("return")):
            if self.file.code[end:end + 1] == ";" and kind != Kind.BREAK_STMT:
                self.file.add("statement", function, [Edit(start, end + 1, "", "jump")], into="nothing")
        if (kind.is_expression() or kind == Kind.CALL_EXPR) and parent is not None and parent.kind in STATEMENTS:
            self.dropped(parent, function, start, end)

    def operands(self, cursor):
        """The operator of a binary expression, its place, and its operands."""
        children = list(cursor.get_children())
        if len(children) != 2:
            return None
        left, right = children
        begin, end = left.extent.end.offset, right.extent.start.offset
        symbol = self.file.code[begin:end].strip()
        return (symbol, left, right) if symbol and re.fullmatch(r"[-+*/%<>=!&|]+", symbol) else None

    def text(self, cursor):
        return self.file.text(cursor.extent.start.offset, cursor.extent.end.offset)

    def binary(self, cursor, function, start, end):
        found = self.operands(cursor)
        if not found:
            return
        symbol, left, right = found
        a, b = self.text(left), self.text(right)
        pointers = any(c.type.get_canonical().kind in (TypeKind.POINTER, TypeKind.CONSTANTARRAY) for c in (cursor, left, right))
        if symbol in OPERATORS and not pointers:
            self.mutant("operator", function, start, end, f"{a} {OPERATORS[symbol]} {b}")
        elif symbol in ASSIGNMENTS and not pointers:
            self.mutant("operator", function, start, end, f"{a} {ASSIGNMENTS[symbol]} {b}")
        elif symbol in COMPARISONS:
            self.mutant("comparison", function, start, end, f"{a} {COMPARISONS[symbol]} {b}")
        if self.rounds(cursor):
            self.order(function, start, end, symbol, left, right)

    def mutant(self, kind, function, start, end, text):
        self.file.add(kind, function, [Edit(start, end, text, "value")])

    def rounds(self, cursor):
        kind = cursor.type.get_canonical().kind
        return kind in FLOATING or kind in UNSETTLED or kind == TypeKind.VECTOR

    def order(self, function, start, end, symbol, left, right):
        """Other orders of the same sum or product, and the product that is fused with its sum."""
        a, b = self.text(left), self.text(right)
        inner = self.operands(left) if left.kind == Kind.BINARY_OPERATOR else None
        if inner:
            x, y = self.text(inner[1]), self.text(inner[2])
            other = {("+", "+"): f"{x} + ({y} + {b})", ("+", "-"): f"{x} + ({y} - {b})", ("-", "-"): f"{x} - ({y} + {b})",
                     ("-", "+"): f"{x} - ({y} - {b})", ("*", "*"): f"{x} * ({y} * {b})", ("*", "/"): f"{x} * ({y} / {b})",
                     ("/", "*"): f"{x} / ({y} / {b})", ("/", "/"): f"{x} / ({y} * {b})"}.get((inner[0], symbol))
            if other:
                self.mutant("order", function, start, end, f"vecmat_mutants::rounded({other})")
        bare = right
        while bare.kind in (Kind.PAREN_EXPR, Kind.UNEXPOSED_EXPR) and len(list(bare.get_children())) == 1:
            bare = next(bare.get_children())
        inner = self.operands(bare) if bare.kind == Kind.BINARY_OPERATOR else None
        if not inner:
            return
        x, y = self.text(inner[1]), self.text(inner[2])
        if symbol in ("+=", "-=") and inner[0] in "+-":
            other = inner[0] if symbol == "+=" else {"+": "-", "-": "+"}[inner[0]]
            self.mutant("order", function, start, end, f"{a} = vecmat_mutants::rounded({a} {symbol[0]} ({x}) {other} ({y}))")
        if inner[0] == "*" and symbol in ("+", "-", "+=", "-="):
            minus = "-" if symbol[0] == "-" else ""
            fused = f"vecmat_mutants::fused({minus}({x}), {y}, {a})"
            self.mutant("order", function, start, end, f"{a} = {fused}" if symbol.endswith("=") else fused)

    def constant(self, parent, function, start, end):
        text = self.file.code[start:end]
        if parent is not None and parent.kind in (Kind.VAR_DECL, Kind.FIELD_DECL) and self.file.code[:start].rstrip()[-1:] in "[:":
            return  # the extent of an array, the bits of a field
        if re.fullmatch(r"\d+[uUlLzZ]*", text):
            digits = re.match(r"\d+", text)[0]
            suffix = text[len(digits):]
            less = int(digits) > 0 and start % 2
            self.mutant("constant", function, start, end, f"{int(digits) + (-1 if less else 1)}{suffix}")
        elif re.fullmatch(r"\d+\.\d*(?:[eE][-+]?\d+)?", text):
            if float(text) == 1.0:
                self.mutant("constant", function, start, end, "0.0" if start % 2 else "2.0")
            else:
                self.mutant("constant", function, start, end, f"({text} + 1.0)" if float(text) else "1.0")

    def dropped(self, parent, function, start, end):
        code = self.file.code
        before = code[max(0, start - 200):start].rstrip()
        if not re.match(r"\s*;", code[end:end + 40]) or not (before[-1:] in "){};:" or re.search(r"\b(?:else|do)$", before)):
            return
        if re.match(r"throw\b|delete\b", code[start:]) or (before[-1] == ";" and parent.kind != Kind.COMPOUND_STMT):
            return
        self.file.add("statement", function, [Edit(start, end, "", "statement")], into="nothing")

    def direction(self, cursor, function, start):
        """The other direction of a loop that adds up in one place."""
        code = self.file.code
        head = re.match(r"for\s*\(\s*(?:int|unsigned|std::size_t|auto)\s+(\w+)\s*=\s*([^;,()]+);\s*(\w+)\s*(<=?|>=?)\s*([^;,()&|]+);"
                        r"\s*(\+\+|--)(\w+)\s*\)", code[start:])
        if not head or not head[1] == head[3] == head[7] or (head[6] == "++") != (head[4][0] == "<"):
            return
        name, first, limit = head[1], head[2].strip(), head[5].strip()
        body = code[start + head.end():cursor.extent.end.offset]
        sums = [place for place in re.findall(r"([\w.\->\[\]()]+)\s*[-+]=\s", body) if not re.search(rf"\b{name}\b", place)]
        if not sums:
            return
        at = lambda group: (start + head.start(group), start + head.end(group))
        up = head[6] == "++"
        last = f"({limit})" if "=" in head[4] else f"({limit}) {'-' if up else '+'} 1"
        condition = (start + head.start(3), start + head.end(5))
        step = (start + head.start(6), start + head.end(7))
        self.file.add("direction", function, [Edit(*at(2), last, "value"),
                                              Edit(*condition, f"{name} {'>=' if up else '<='} ({first})", "value"),
                                              Edit(*step, f"{'--' if up else '++'}{name}", "value")],
                      region=(start, start + head.end()), into="the other way round")


def places(path, arguments, files, done, clang_arguments=()):
    """Reads one source. `files` has a File for each path whose mutants are wanted; those in `done` are known already.
    Returns the paths of the wanted files that it includes."""
    index = clang.cindex.Index.create()
    unit = index.parse(str(path), args=[*arguments, *clang_arguments])
    errors = [d.spelling for d in unit.diagnostics if d.severity >= clang.cindex.Diagnostic.Error]
    if errors:
        raise RuntimeError(f"{path}: {errors[0]}")
    Reader(files, done).read(unit)
    return {include.include.name for include in unit.get_includes()} & set(files) | {str(path)}
