"""Parses the statements of VBA's procedures. What the names in them mean is looked at later, in the order of these events:

    ("use", tree)   ("assign", tree, value, is_set)   ("call", tree, [Argument])   ("declare", Symbol)
    ("redim", tree, [Argument], type)   ("erase", tree)   ("constant", tree)   ("count", tree)   ("each", tree, group)
    ("jump", label)   ("with", tree)   ("end with",)

Each has its line at the end.
"""

from dataclasses import dataclass, field

from expressions import Expressions
from source import VbaError


@dataclass
class Symbol:
    kind: str                # variable, constant, procedure, type, enum, module
    name: str
    line: int
    type: str = "variant"    # in lower case; ends with () for an array
    is_fixed: bool = False   # an array with bounds
    is_public: bool = True
    value: object = None     # the tree of a constant, the members of a type, the Procedure


@dataclass
class Parameter:
    symbol: Symbol
    is_by_val: bool = False
    is_optional: bool = False
    is_rest: bool = False    # a ParamArray


@dataclass
class Procedure:
    kind: str                # sub, function, property get, property let, property set, declare
    name: str
    line: int
    parameters: list
    returns: str
    is_public: bool
    events: list = field(default_factory=list)
    labels: dict = field(default_factory=dict)

    @property
    def key(self):
        return self.name.lower()


class Statements(Expressions):
    """Parses the body of one procedure after another."""

    procedure = None
    blocks = ()

    def event(self, *parts):
        self.procedure.events.append((*parts, self.line))

    # ---- types and variables ----

    def type_name(self, is_declare=False):
        """What follows As."""
        is_new = bool(self.skip_word("new"))
        token = self.take()
        if token.kind != "name":
            raise VbaError(token.line, f"a type expected, not {token.text}")
        name = token.word
        if name == "any" and not is_declare:
            raise VbaError(token.line, "Any stands only in a declaration of a library's function")
        while self.skip_op("."):
            name = self.take().word
        if is_new and name not in ("collection",):
            raise VbaError(token.line, f"New cannot make {name}")
        if name == "string" and self.skip_op("*"):
            self.expression()
        return name

    def variable(self, is_public=False):
        """name [(bounds)] [As type]"""
        line, name = self.line, self.new_name()
        is_array, bounds = False, []
        if self.skip_op("("):
            is_array = True
            if not self.is_op(")"):
                bounds = self.bounds()
            self.op(")")
        kind = self.type_name() if self.skip_word("as") else "variant"
        return Symbol("variable", name, line, kind + "()" * is_array, bool(bounds), is_public), bounds

    def bounds(self):
        found = []
        while True:
            found.append(self.expression())
            if self.skip_word("to"):
                found.append(self.expression())
            if not self.skip_op(","):
                return found

    def constants(self, is_public):
        """name [As type] = value, ..."""
        found = []
        while True:
            line, name = self.line, self.new_name()
            kind = self.type_name() if self.skip_word("as") else "variant"
            self.op("=")
            found.append(Symbol("constant", name, line, kind, False, is_public, self.expression()))
            if not self.skip_op(","):
                return found

    # ---- blocks ----

    def end_of_statement(self):
        if not self.skip_op(":") and not self.is_end():
            self.fail(f"end of statement expected, not {self.token.text}")

    def block(self, kind, *ends):
        """Statements up to one of the words that may end the block, which is not taken."""
        self.blocks = (*self.blocks, kind)
        while True:
            while self.is_end() or self.is_op(":"):
                self.take()
                if self.at >= len(self.tokens):
                    raise VbaError(self.tokens[-1].line, f"no end of {kind}")
            word = self.token.word
            if word == "end" and self.ahead().kind == "name":
                word += " " + self.ahead().word
            if word in ends:
                self.blocks = self.blocks[:-1]
                return word
            if word in ("next", "loop", "wend", "else", "elseif", "case") or word.startswith("end "):
                self.fail(f"{word} without its beginning: in {kind}")
            self.statement()

    def end_of(self, word):
        for _ in word.split():
            self.take()

    def statement(self):
        token = self.token
        is_first = self.at == 0 or self.tokens[self.at - 1].kind == "end"
        if is_first and token.kind == "name" and self.ahead().text == ":" and not hasattr(self, "do_" + token.word):
            self.label(self.new_name(), token.line)
            self.take()
            return
        if is_first and token.kind == "number":
            self.label(self.take().text, token.line)
            return
        handler = getattr(self, "do_" + token.word, None) if token.kind == "name" else None
        if handler:
            handler()
        else:
            self.assignment_or_call()
        if not self.is_word("else"):
            self.end_of_statement()

    def label(self, name, line):
        if name.lower() in self.procedure.labels:
            raise VbaError(line, f"the label {name} stands twice")
        self.procedure.labels[name.lower()] = line

    def assignment_or_call(self):
        target = self.primary(is_statement=True)
        if self.is_op("="):
            self.take()
            self.event("assign", target, self.expression(), False)
        elif target[0] == "member" and [str(part).lower() for part in (target[1][1], target[2])] == ["debug", "print"]:
            self.printed()
        else:
            self.call(target)

    def printed(self):
        while not self.is_end() and not self.is_op(":") and not self.is_word("else"):
            if not self.skip_op(";") and not self.skip_op(","):
                self.event("use", self.expression())

    def call(self, target):
        if self.is_end() or self.is_op(":") or self.is_word("else"):
            if target[0] == "index" and len(target[2]) != 1:
                self.fail("= expected, or no parentheses, or Call")
            self.event("call", *(target[1:3] if target[0] == "index" else (target, [])))
            return
        self.event("call", target, self.argument_list())

    def do_call(self):
        self.take()
        target = self.primary()
        self.event("call", *(target[1:3] if target[0] == "index" else (target, [])))

    def do_set(self):
        self.take()
        target = self.primary()
        self.op("=")
        self.event("assign", target, self.expression(), True)

    def do_let(self):
        self.take()
        target = self.primary()
        self.op("=")
        self.event("assign", target, self.expression(), False)

    def do_dim(self):
        self.take()
        while True:
            symbol, bounds = self.variable()
            for bound in bounds:
                self.event("constant", bound)
            self.event("declare", symbol)
            if not self.skip_op(","):
                return

    do_static = do_dim

    def do_const(self):
        self.take()
        for symbol in self.constants(False):
            self.event("constant", symbol.value)
            self.event("declare", symbol)

    def do_redim(self):
        self.take()
        self.skip_word("preserve")
        while True:
            tree = self.primary()
            if tree[0] != "index":
                self.fail("ReDim takes an array with its bounds")
            kind = self.type_name() if self.skip_word("as") else ""
            self.event("redim", tree[1], tree[2], kind)
            if not self.skip_op(","):
                return

    def argument(self):
        """Bounds are read here, too: `1 To n` stands in parentheses in ReDim alone."""
        found = super().argument()
        if self.is_word("to") and self.in_redim():
            self.take()
            self.event("use", self.expression())
        return found

    def in_redim(self):
        at = self.at
        while at and self.tokens[at - 1].kind != "end":
            at -= 1
            if self.tokens[at].word == "redim":
                return True
        return False

    def do_erase(self):
        self.take()
        while True:
            self.event("erase", self.primary())
            if not self.skip_op(","):
                return

    def do_if(self):
        self.take()
        self.event("use", self.expression())
        self.expect("then")
        if not self.is_end():
            self.one_line_if()
            return
        word = self.block("If", "elseif", "else", "end if")
        while word == "elseif":
            self.take()
            self.event("use", self.expression())
            self.expect("then")
            if not self.is_end():
                self.fail("end of line expected after Then")
            word = self.block("If", "elseif", "else", "end if")
        if word == "else":
            self.take()
            word = self.block("If", "end if")
        self.end_of(word)

    def one_line_if(self):
        while not self.is_end() and not self.is_word("else"):
            self.statement()
        if self.skip_word("else"):
            while not self.is_end():
                self.statement()

    def do_select(self):
        self.take()
        self.expect("case")
        self.event("use", self.expression())
        if not self.is_end():
            self.fail("end of line expected")
        while self.is_end():
            self.take()
        word, has_else = self.token.word, False
        if word not in ("case", "end"):
            self.fail("Case expected")
        if word == "end":
            word = "end select"
        while word == "case":
            self.take()
            if has_else:
                self.fail("Case after Case Else")
            if self.skip_word("else"):
                has_else = True
            else:
                self.case_values()
            word = self.block("Select", "case", "end select")
        self.end_of(word)

    def case_values(self):
        while True:
            if self.skip_word("is"):
                if self.take().text not in ("=", "<>", "<", ">", "<=", ">="):
                    self.fail("Is takes a comparison")
            self.event("use", self.expression())
            if self.skip_word("to"):
                self.event("use", self.expression())
            if not self.skip_op(","):
                return

    def do_for(self):
        self.take()
        is_each = self.skip_word("each")
        counter = self.primary(is_statement=True)
        if is_each:
            self.expect("in")
            self.event("each", counter, self.expression())
        else:
            self.op("=")
            first = self.expression()
            self.expect("to")
            self.event("use", first)
            self.event("use", self.expression())
            if self.skip_word("step"):
                self.event("use", self.expression())
            self.event("count", counter)
        self.block("For", "next")
        self.take()
        if self.token.kind == "name":
            if self.token.word != str(counter[1]).lower():
                self.fail(f"Next {self.token.text} ends the loop of {counter[1]}")
            self.take()

    def do_do(self):
        self.take()
        is_tested = self.skip_word("while", "until")
        if is_tested:
            self.event("use", self.expression())
        self.end_of_statement()
        self.block("Do", "loop")
        self.take()
        if self.skip_word("while", "until"):
            if is_tested:
                self.fail("the loop has a condition at both ends")
            self.event("use", self.expression())

    def do_while(self):
        self.take()
        self.event("use", self.expression())
        self.block("While", "wend")
        self.take()

    def do_with(self):
        self.take()
        self.event("with", self.expression())
        self.end_of(self.block("With", "end with"))
        self.event("end with")

    def do_on(self):
        self.take()
        self.expect("error")
        if self.expect("goto", "resume") == "resume":
            self.expect("next")
        elif self.is_op("-") and self.ahead().text == "1":
            self.at += 2
        elif self.token.text == "0":
            self.take()
        else:
            self.event("jump", self.take().text)

    def do_resume(self):
        self.take()
        if not self.is_end() and not self.is_op(":") and not self.skip_word("next"):
            self.event("jump", self.take().text)

    def do_goto(self):
        self.take()
        self.event("jump", self.take().text)

    def do_exit(self):
        self.take()
        word = self.expect("sub", "function", "property", "for", "do")
        if word in ("for", "do"):
            if word.capitalize() not in self.blocks:
                self.fail(f"Exit {word.capitalize()} outside of its loop")
        elif not self.procedure.kind.startswith(word):
            self.fail(f"Exit {word.capitalize()} in a {self.procedure.kind}")

    def do_stop(self):
        self.take()
