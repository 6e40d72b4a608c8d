"""Parses a module of VBA: its options, declarations and procedures."""

from dataclasses import dataclass, field

from source import LONGEST_PROCEDURE, VbaError
from statements import Parameter, Procedure, Statements, Symbol

MOST_PARAMETERS = 60


@dataclass
class Module:
    name: str
    symbols: list = field(default_factory=list)
    procedures: list = field(default_factory=list)
    checks: list = field(default_factory=list)  # trees that must be constant


class ModuleParser(Statements):
    """Parses the tokens of a module, as one host compiles it."""

    def __init__(self, tokens):
        super().__init__(tokens)
        self.procedure = Procedure("", "", 0, [], "", False)
        self.has_explicit = False
        self.module = None

    def parse(self):
        self.heading()
        while self.at < len(self.tokens):
            self.element()
            if self.at < len(self.tokens) and not self.is_end():
                self.fail(f"end of line expected, not {self.token.text}")
            self.at += 1
        if not self.has_explicit:
            raise VbaError(1, "Option Explicit is missing")
        return self.module

    def heading(self):
        texts = [token.text for token in self.tokens[:5]]
        if texts[:3] != ["Attribute", "VB_Name", "="] or self.tokens[3].kind != "string":
            raise VbaError(1, "a module begins with Attribute VB_Name")
        self.module = Module(texts[3].strip('"'))
        self.at = 5

    def element(self):
        if self.is_word("attribute"):
            self.fail("an attribute stands behind the module's beginning")
        if self.is_word("option"):
            self.option()
            return
        line = self.line
        scope = self.skip_word("public", "private", "friend", "global", "dim")
        self.skip_word("static")
        if self.is_word("sub", "function", "property"):
            if scope in ("dim", "global"):
                self.fail("a procedure is Public or Private")
            self.body(scope != "private", line)
            return
        if self.module.procedures and self.module.procedures[-1].kind != "declare":
            self.fail("a declaration stands behind a procedure")
        self.declaration(scope)

    def option(self):
        self.take()
        if self.module.symbols or self.module.procedures:
            self.fail("an option stands behind a declaration")
        word = self.expect("explicit", "base", "compare", "private")
        self.has_explicit = self.has_explicit or word == "explicit"
        if word == "base" and self.take().text not in ("0", "1"):
            self.fail("Option Base is 0 or 1")
        if word == "compare":
            self.expect("binary", "text")
        if word == "private":
            self.expect("module")

    def declaration(self, scope):
        is_public = scope in ("public", "global")
        if self.is_word("declare"):
            self.declare(scope != "private")
        elif self.skip_word("const"):
            found = self.constants(is_public)
            self.module.checks += [symbol.value for symbol in found]
            self.module.symbols += found
        elif self.skip_word("type"):
            self.type_block(scope != "private")
        elif self.skip_word("enum"):
            self.enum_block(scope != "private")
        elif scope:
            while True:
                symbol, bounds = self.variable(is_public)
                self.module.checks += bounds
                self.module.symbols.append(symbol)
                if not self.skip_op(","):
                    return
        else:
            self.fail(f"not a declaration: {self.token.text}")

    def members(self, end):
        """Whether there is one more line before End."""
        while self.at < len(self.tokens) and self.is_end():
            self.at += 1
        if self.at >= len(self.tokens):
            raise VbaError(self.tokens[-1].line, f"no End {end}")
        if self.skip_word("end"):
            self.expect(end.lower())
            return False
        return True

    def type_block(self, is_public):
        line, name = self.line, self.new_name()
        members = {}
        while self.members("Type"):
            symbol, bounds = self.variable()
            self.module.checks += bounds
            if symbol.name.lower() in members:
                raise VbaError(symbol.line, f"{symbol.name} is twice in {name}")
            members[symbol.name.lower()] = symbol
            if not self.is_end():
                self.fail(f"end of line expected, not {self.token.text}")
        if not members:
            raise VbaError(line, f"{name} has no members")
        self.module.symbols.append(Symbol("type", name, line, name.lower(), False, is_public, members))

    def enum_block(self, is_public):
        line, name = self.line, self.new_name()
        self.module.symbols.append(Symbol("enum", name, line, "long", False, is_public))
        while self.members("Enum"):
            member = Symbol("constant", self.new_name(), self.line, "long", False, is_public)
            if self.skip_op("="):
                member.value = self.expression()
                self.module.checks.append(member.value)
            self.module.symbols.append(member)

    def declare(self, is_public):
        line = self.line
        self.take()
        is_safe = bool(self.skip_word("ptrsafe"))
        kind = self.expect("sub", "function")
        name = self.new_name()
        self.skip_word("cdecl")
        self.expect("lib")
        if self.take().kind != "string":
            self.fail("the library's name expected")
        if self.skip_word("alias") and self.take().kind != "string":
            self.fail("the function's name in the library expected")
        parameters = self.parameters(is_declare=True) if self.is_op("(") else []
        returns = self.result(kind)
        procedure = Procedure("declare", name, line, parameters, returns, is_public)
        procedure.is_safe = is_safe
        self.module.procedures.append(procedure)

    def result(self, kind):
        if kind not in ("function", "property get"):
            return ""
        if not self.skip_word("as"):
            return "variant"
        returns = self.type_name()
        if self.skip_op("("):
            self.op(")")
            returns += "()"
        return returns

    def parameters(self, is_declare=False):
        found = []
        self.op("(")
        while not self.skip_op(")"):
            if found:
                self.op(",")
            if found and found[-1].is_rest:
                self.fail("ParamArray is the last parameter")
            parameter = self.parameter(is_declare)
            if found and found[-1].is_optional and not parameter.is_optional and not parameter.is_rest:
                self.fail("a parameter without Optional stands behind one with it")
            found.append(parameter)
        if len(found) > MOST_PARAMETERS:
            self.fail("too many parameters")
        names = [parameter.symbol.name.lower() for parameter in found]
        if len(set(names)) != len(names):
            self.fail("two parameters have the same name")
        return found

    def parameter(self, is_declare):
        is_optional = bool(self.skip_word("optional"))
        word = self.skip_word("byval", "byref", "paramarray")
        line, name = self.line, self.new_name()
        is_array = self.skip_op("(")
        if is_array:
            self.op(")")
        kind = self.type_name(is_declare) if self.skip_word("as") else "variant"
        if is_array and word == "byval":
            self.fail("an array is passed ByRef")
        if is_optional and self.skip_op("="):
            self.module.checks.append(self.expression())
        symbol = Symbol("variable", name, line, kind + "()" * is_array)
        return Parameter(symbol, word == "byval", is_optional, word == "paramarray")

    def body(self, is_public, line):
        kind = self.take().word
        if kind == "property":
            kind += " " + self.expect("get", "let", "set")
        name = self.new_name()
        parameters = self.parameters() if self.is_op("(") else []
        self.procedure = Procedure(kind, name, line, parameters, self.result(kind), is_public)
        if kind in ("property let", "property set") and not parameters:
            self.fail("the property's value is missing")
        if not self.is_end() and not self.is_op(":"):
            self.fail(f"end of line expected, not {self.token.text}")
        start = self.at
        self.blocks = ()
        self.end_of(self.block(kind.split()[0], "end " + kind.split()[0]))
        if sum(len(token.text) + 1 for token in self.tokens[start:self.at]) > LONGEST_PROCEDURE:
            raise VbaError(line, f"{name} is too long")
        self.module.procedures.append(self.procedure)
