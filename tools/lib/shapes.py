"""The expressions and shapes of arguments.tsv: read, evaluated, and translated to other languages.

Docs/arguments.md describes the grammar. An expression becomes a tree of tuples:

    ("number", 3)   ("name", "rows")   ("binary", "+", left, right)   ("call", "max", [tree, ...])

Integers are unbounded here; `/` and `%` round towards zero, as in C.
"""

import math
import re
from dataclasses import dataclass

TOKEN = re.compile(r"\s*(?:(\d+)|([A-Za-z_]\w*)|(==|!=|<=|>=|[-+*/%()<>,]))")
LEVELS = [("==", "!=", "<", ">", "<=", ">="), ("+", "-"), ("*", "/", "%")]

# How many arguments a function takes (None: any), and which of them are names of arrays, with the type of these.
FUNCTIONS = {
    "min": (None, {}),
    "max": (None, {}),
    "if": (3, {}),
    "span": (2, {}),
    "packed": (1, {}),
    "value": (1, {0: "int*"}),
    "largest": (2, {0: "int*"}),
    "sum": (2, {0: "double*"}),
    "clamped_sum": (3, {0: "double*"}),
}

MISSING = -float.fromhex("0x1.fffffffffffe2p+1023")


class ShapeError(ValueError):
    """A text that is not an expression, a shape or a domain."""


# ---- read -----------------------------------------------------------------------------------------------------------


class _Reader:
    def __init__(self, text):
        self.text = text
        self.tokens = []
        position = 0
        while text[position:].strip():
            match = TOKEN.match(text, position)
            if not match:
                raise ShapeError(f"not an expression: {text}")
            self.tokens.append(match.group().strip())
            position = match.end()
        self.next = 0

    def peek(self):
        return self.tokens[self.next] if self.next < len(self.tokens) else ""

    def take(self, expected=None):
        token = self.peek()
        if not token or (expected and token != expected):
            raise ShapeError(f"{expected or 'more'} expected in: {self.text}")
        self.next += 1
        return token

    def expression(self, level=0):
        if level == len(LEVELS):
            return self.operand()
        tree = self.expression(level + 1)
        while self.peek() in LEVELS[level]:
            tree = ("binary", self.take(), tree, self.expression(level + 1))
        return tree

    def operand(self):
        token = self.take()
        if token.isdigit():
            return ("number", int(token))
        if token == "-":
            return ("binary", "-", ("number", 0), self.operand())
        if token == "(":
            tree = self.expression()
            self.take(")")
            return tree
        if not re.fullmatch(r"[A-Za-z_]\w*", token):
            raise ShapeError(f"{token} where an operand is expected: {self.text}")
        if self.peek() != "(":
            return ("name", token)
        return self.call(token)

    def call(self, function):
        if function not in FUNCTIONS:
            raise ShapeError(f"no function {function}: {self.text}")
        self.take("(")
        arguments = [self.expression()]
        while self.peek() == ",":
            self.take()
            arguments.append(self.expression())
        self.take(")")
        count, arrays = FUNCTIONS[function]
        if count is not None and len(arguments) != count:
            raise ShapeError(f"{function} takes {count} arguments: {self.text}")
        for place in arrays:
            if arguments[place][0] != "name":
                raise ShapeError(f"{function} takes the name of an array: {self.text}")
        return ("call", function, arguments)


def read_expression(text):
    reader = _Reader(text)
    tree = reader.expression()
    if reader.peek():
        raise ShapeError(f"{reader.peek()} after the end of: {text}")
    return tree


def names_of(tree):
    """The names in the tree: those of numbers, and those of arrays with their required types."""
    numbers, arrays = set(), {}
    _collect(tree, numbers, arrays)
    return numbers, arrays


def _collect(tree, numbers, arrays):
    if tree[0] == "name":
        numbers.add(tree[1])
    elif tree[0] == "binary":
        _collect(tree[2], numbers, arrays)
        _collect(tree[3], numbers, arrays)
    elif tree[0] == "call":
        for place, argument in enumerate(tree[2]):
            if place in FUNCTIONS[tree[1]][1]:
                arrays[argument[1]] = FUNCTIONS[tree[1]][1][place]
            else:
                _collect(argument, numbers, arrays)


# ---- evaluated ------------------------------------------------------------------------------------------------------


def evaluate(tree, values):
    """The integer value of the expression; `values` has a number or an array for each name."""
    kind = tree[0]
    if kind == "number":
        return tree[1]
    if kind == "name":
        return int(values[tree[1]])
    if kind == "binary":
        return _BINARY[tree[1]](evaluate(tree[2], values), evaluate(tree[3], values))
    function, arguments = tree[1], tree[2]
    if function == "if":
        return evaluate(arguments[1] if evaluate(arguments[0], values) else arguments[2], values)
    if FUNCTIONS[function][1]:
        numbers = [evaluate(argument, values) for argument in arguments[1:]]
        return _OF_ARRAYS[function](values[arguments[0][1]], *numbers)
    return _OF_NUMBERS[function](*[evaluate(argument, values) for argument in arguments])


def _quotient(a, b):
    return abs(a) // abs(b) * (1 if (a < 0) == (b < 0) else -1)


_BINARY = {
    "+": lambda a, b: a + b,
    "-": lambda a, b: a - b,
    "*": lambda a, b: a * b,
    "/": _quotient,
    "%": lambda a, b: a - b * _quotient(a, b),
    "==": lambda a, b: int(a == b),
    "!=": lambda a, b: int(a != b),
    "<": lambda a, b: int(a < b),
    ">": lambda a, b: int(a > b),
    "<=": lambda a, b: int(a <= b),
    ">=": lambda a, b: int(a >= b),
}

_OF_NUMBERS = {
    "min": min,
    "max": max,
    "span": lambda first, last: max(last - first + 1, 0),
    "packed": lambda n: n * (n + 1) // 2 if n > 0 else 0,
}


def _truncated(x):
    return int(x) if -2147483649.0 < x < 2147483648.0 else -2147483648


def _sum(cells, n):
    total = 0.0
    for cell in list(cells[:max(n, 0)]):
        if cell != MISSING:
            total += float(cell)
    return _truncated(total)


def _clamped_sum(cells, n, most):
    return sum(math.floor(min(cell, most)) for cell in cells[:max(n, 0)] if cell >= 1.0) if most > 0 else 0


_OF_ARRAYS = {
    "value": lambda cells: int(cells[0]),
    "largest": lambda cells, n: max([0, *(int(cell) for cell in cells[:max(n, 0)])]),
    "sum": _sum,
    "clamped_sum": _clamped_sum,
}


# ---- shapes ---------------------------------------------------------------------------------------------------------


@dataclass(frozen=True)
class Shape:
    layout: str      # value, table, columns, falling, text, bstr
    strings: bool    # of an array of columns: its strings, not its numbers
    rows: tuple      # the trees of the expressions; None for a value and for a text
    cols: tuple

    def expressions(self):
        return [tree for tree in (self.rows, self.cols) if tree]

    def lengths(self, values):
        """The numbers of cells of the arrays: one for a table, one for each column of an array of columns."""
        if self.layout in ("value", "text", "bstr"):
            return []
        rows, cols = (max(evaluate(tree, values), 0) for tree in (self.rows, self.cols))
        if self.layout == "table":
            return [rows * cols]
        return [max(rows - (k if self.layout == "falling" else 0), 0) for k in range(cols)]


ONE = ("number", 1)


def read_shape(text):
    if text == "-":
        return Shape("value", False, None, None)
    if text in ("text", "bstr"):
        return Shape(text, True, None, None)
    words = text.split(" ")
    kinds = [word for word in words if word in ("strings", "falling")]
    text = " ".join(word for word in words if word not in kinds)
    if " x " in text:
        cols, rows = text.split(" x ")
        layout = "falling" if "falling" in kinds else "columns"
        return Shape(layout, "strings" in kinds, read_expression(rows), read_expression(cols))
    if kinds:
        raise ShapeError(f"{kinds[0]} without columns: {text}")
    parts = split_at_commas(text)
    if len(parts) > 2:
        raise ShapeError(f"more than rows and columns: {text}")
    return Shape("table", False, read_expression(parts[0]), read_expression(parts[1]) if len(parts) == 2 else ONE)


def split_at_commas(text):
    parts, depth = [""], 0
    for character in text:
        depth += (character == "(") - (character == ")")
        if character == "," and depth == 0:
            parts.append("")
        else:
            parts[-1] += character
    return [part.strip() for part in parts]
