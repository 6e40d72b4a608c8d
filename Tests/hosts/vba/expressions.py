"""Parses the expressions of VBA by recursive descent. A tree is made of these tuples, each with its line at the end:

    ("literal", type)   ("name", name)   ("member", tree, name)   ("with", name)   ("index", tree, [Argument])
    ("operator", operator, [tree])   ("new", type)   ("typeof", tree, type)   ("address", name)
"""

from dataclasses import dataclass

from source import HOST_CONSTANTS, VbaError
from words import CALLABLE_WORDS, RESERVED

# From the weakest to the strongest; Not stands below And, and the signs between powers and products.
BINARY = [["imp"], ["eqv"], ["xor"], ["or"], ["and"], ["not"], ["=", "<>", "<", ">", "<=", ">=", "like", "is"], ["&"],
          ["+", "-"], ["mod"], ["\\"], ["*", "/"], ["sign"], ["^"]]
LITERALS = {"true": "boolean", "false": "boolean", "nothing": "object", "empty": "variant", "null": "variant"}


@dataclass(frozen=True)
class Argument:
    name: str   # of a named one, otherwise empty
    tree: tuple  # None where it is left out
    is_by_val: bool


class Reader:
    """A place in a list of tokens."""

    def __init__(self, tokens):
        self.tokens = tokens
        self.at = 0

    @property
    def token(self):
        return self.tokens[min(self.at, len(self.tokens) - 1)]

    @property
    def line(self):
        return self.token.line

    def ahead(self, count=1):
        return self.tokens[min(self.at + count, len(self.tokens) - 1)]

    def fail(self, message):
        raise VbaError(self.line, message)

    def is_op(self, text):
        return self.token.kind == "op" and self.token.text == text

    def is_word(self, *words):
        return self.token.word in words and self.token.kind == "name"

    def is_end(self):
        return self.token.kind == "end"

    def take(self):
        token = self.token
        self.at += 1
        return token  # at the end of all, again the last

    def skip_op(self, text):
        if self.is_op(text):
            self.at += 1
            return True
        return False

    def skip_word(self, *words):
        if self.is_word(*words):
            return self.take().word
        return ""

    def op(self, text):
        if not self.skip_op(text):
            self.fail(f"{text} expected, not {self.token.text}")

    def expect(self, *words):
        if not self.is_word(*words):
            self.fail(f"{' or '.join(words)} expected, not {self.token.text}")
        return self.take().word

    def new_name(self):
        """A name that is declared here."""
        token = self.take()
        if token.kind != "name" or token.text[-1] in "$%&!#@^":
            raise VbaError(token.line, f"a name expected, not {token.text}")
        if token.word in RESERVED:
            raise VbaError(token.line, f"{token.text} is a word of the language")
        return token.text


class Expressions(Reader):
    def expression(self, level=0):
        if level == len(BINARY):
            return self.operand()
        operators = BINARY[level]
        if operators == ["not"]:
            if self.is_word("not"):
                line = self.take().line
                return ("operator", "not", [self.expression(level)], line)
            return self.expression(level + 1)
        if operators == ["sign"]:
            if self.is_op("-") or self.is_op("+"):
                token = self.take()
                return ("operator", "sign", [self.expression(level)], token.line)
            return self.expression(level + 1)
        tree = self.expression(level + 1)
        while self.token.kind in ("op", "name") and self.token.text.lower() in operators:
            operator = self.take()
            # a sign or a Not may follow any operator
            deeper = BINARY.index(["sign"]) if self.is_op("-") or self.is_op("+") else level + 1
            if self.is_word("not"):
                deeper = BINARY.index(["not"])
            tree = ("operator", operator.text.lower(), [tree, self.expression(deeper)], operator.line)
        return tree

    def operand(self):
        token = self.token
        if token.kind == "number":
            return ("literal", self.number_type(self.take()), token.line)
        if token.kind in ("string", "date"):
            self.take()
            return ("literal", token.kind, token.line)
        if token.word in LITERALS:
            self.take()
            return ("literal", LITERALS[token.word], token.line)
        if token.word == "new":
            self.take()
            return ("new", self.take().text, token.line)
        if token.word == "typeof":
            self.take()
            tree = self.primary()
            self.expect("is")
            return ("typeof", tree, self.take().text, token.line)
        if token.word == "addressof":
            self.take()
            return ("address", self.new_name(), token.line)
        if self.skip_op("("):
            tree = self.expression()
            self.op(")")
            return ("operator", "()", [tree], token.line)
        return self.primary()

    @staticmethod
    def number_type(token):
        text = token.text.lower()
        if text.startswith(("&h", "&o")):
            digits = text[2:].rstrip("&%^")
            value = int(digits, 16 if text[1] == "h" else 8)
            if value >= 2 ** (64 if text.endswith("^") else 32):
                raise VbaError(token.line, f"{token.text} is too large")
            return "longlong" if text.endswith("^") else "long" if text.endswith("&") or value > 0xFFFF else "integer"
        if text[-1] in "&%^!#@":
            kind = {"&": "long", "%": "integer", "^": "longlong", "!": "single", "#": "double", "@": "currency"}[text[-1]]
            limits = {"long": 2 ** 31, "integer": 2 ** 15, "longlong": 2 ** 63}
            if kind in limits and float(text[:-1]) >= limits[kind]:
                raise VbaError(token.line, f"{token.text} is too large")
            return kind
        if not text.isdigit() or int(text) >= 2 ** 31:
            if float(text.replace("d", "e")) == float("inf"):
                raise VbaError(token.line, f"{token.text} is too large")
            return "double"
        return "integer" if int(text) < 2 ** 15 else "long"

    def primary(self, is_statement=False):
        """A name with its members and arguments. In a statement `name (` begins what is passed, not an index."""
        token = self.take()
        if token.kind == "op" and token.text == ".":
            tree = ("with", self.member_name(), token.line)
        elif token.kind == "foreign":
            tree = ("name", token.text[1:-1], token.line)
        elif token.kind == "name" and (token.word not in RESERVED or token.word.rstrip("$") in CALLABLE_WORDS):
            tree = ("name", token.text, token.line)
        else:
            raise VbaError(token.line, f"an expression expected, not {token.text}")
        while not (self.token.is_spaced and (is_statement or not self.is_op("("))):
            if self.is_op("("):
                tree = ("index", tree, self.arguments(), token.line)
            elif self.skip_op(".") or self.skip_op("!"):
                tree = ("member", tree, self.member_name(), token.line)
            else:
                break
        return tree

    def member_name(self):
        token = self.take()
        if token.kind not in ("name", "foreign"):
            raise VbaError(token.line, f"a member's name expected, not {token.text}")
        return token.text

    def arguments(self):
        self.op("(")
        found = [] if self.is_op(")") else self.argument_list()
        self.op(")")
        return found

    def argument_list(self):
        found = [self.argument()]
        while self.skip_op(","):
            found.append(self.argument())
        named = [bool(argument.name) for argument in found]
        if named != sorted(named):
            self.fail("an argument without a name stands after a named one")
        return found

    def argument(self):
        if self.is_op(",") or self.is_op(")") or self.is_end():
            return Argument("", None, False)
        if self.token.kind == "name" and self.ahead().text == ":=":
            name = self.take().text
            self.op(":=")
            return Argument(name, self.expression(), False)
        is_by_val = bool(self.skip_word("byval"))
        return Argument("", self.expression(), is_by_val)


def value_of(tokens, constants):
    """The value of a condition of conditional compilation."""
    reader = Expressions(tokens)
    tree = reader.expression()
    if not reader.is_end():
        reader.fail(f"an operator expected, not {reader.token.text}")
    values = iter([int(t.text) for t in tokens if t.kind == "number"])

    def value(node):
        kind, line = node[0], node[-1]
        if kind == "literal":
            return next(values) if node[1] in ("integer", "long") else 0
        if kind == "name":
            if node[1].lower() not in constants and node[1].lower() not in HOST_CONSTANTS:
                raise VbaError(line, f"{node[1]} is not defined by the hosts")
            return constants.get(node[1].lower(), 0)
        if kind == "operator":
            numbers = [value(part) for part in node[2]]
            rules = {"and": lambda a, b: a & b, "or": lambda a, b: a | b, "xor": lambda a, b: a ^ b, "not": lambda a: ~a,
                     "=": lambda a, b: -(a == b), "<>": lambda a, b: -(a != b), ">": lambda a, b: -(a > b),
                     "<": lambda a, b: -(a < b), "<=": lambda a, b: -(a <= b), ">=": lambda a, b: -(a >= b),
                     "()": lambda a: a, "sign": lambda a: -a}
            if node[1] in rules:
                return rules[node[1]](*numbers)
        raise VbaError(line, "not a condition of conditional compilation")

    return value(tree)
