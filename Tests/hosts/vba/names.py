"""Looks up the names in parsed modules: whatever is used is declared, in one place, and used as what it is."""

from source import HOSTS, VbaError
from types_of import Types
from words import CONSTANTS, FUNCTIONS, OBJECTS, ONLY_64_BIT, ONLY_VBA7, PROCEDURES, TEXT_FUNCTIONS, TYPES


class Project:
    """The modules that one host compiles together."""

    def __init__(self, modules, host):
        self.modules = modules
        constants = HOSTS[host]
        self.is_vba7 = "vba7" in constants
        self.is_64_bit = "win64" in constants
        self.public = {}
        for module in modules:
            for symbol, is_public in scope_of(module):
                if is_public:
                    other = self.public.setdefault(symbol.name.lower(), (module, symbol))
                    if other[1] is not symbol and not are_accessors(other[1], symbol):
                        raise VbaError(symbol.line, f"{symbol.name} is public in {other[0].name}, too")
        for module in modules:
            if module.name.lower() in self.public:
                symbol = self.public[module.name.lower()][1]
                raise VbaError(symbol.line, f"{symbol.name} is the name of a module")

    def check(self, module):
        Names(self, module).check()


def scope_of(module):
    """Pairs of what a module declares and whether it is public."""
    return [(symbol, symbol.is_public) for symbol in module.symbols] + [(p, p.is_public) for p in module.procedures]


def are_accessors(one, other):
    kinds = {getattr(one, "kind", ""), getattr(other, "kind", "")}
    return len(kinds) == 2 and all(kind.startswith("property") for kind in kinds)


class Names(Types):
    def __init__(self, project, module):
        self.project = project
        self.module = module
        self.own = {}
        self.local = {}
        self.procedure = None
        self.withs = []

    def check(self):
        for symbol, _ in scope_of(self.module):
            other = self.own.get(symbol.name.lower())
            if other is not None and not are_accessors(other, symbol):
                raise VbaError(symbol.line, f"{symbol.name} is declared twice")
            if other is None or symbol.kind == "property get":  # of the accessors, what stands for a value
                self.own[symbol.name.lower()] = symbol
        for symbol in self.module.symbols:
            members = symbol.value.values() if symbol.kind == "type" else [symbol]
            for member in members:
                self.check_type(member.type, member.line, symbol.is_public)
        for tree in self.module.checks:
            self.check_constant(tree)
        for procedure in self.module.procedures:
            self.check_procedure(procedure)

    def find(self, name):
        """The symbol or procedure of a name, or None."""
        key = name.lower()
        if key in self.local:
            return self.local[key]
        if key in self.own:
            return self.own[key]
        return self.project.public.get(key, (None, None))[1]

    def is_offered(self, key, line):
        """Whether this host's library has it: names of others are told apart from unknown ones."""
        if key in ONLY_64_BIT and not self.project.is_64_bit or key in ONLY_VBA7 and not self.project.is_vba7:
            raise VbaError(line, f"{key} is not known to this host")
        return True

    def check_type(self, name, line, is_public=False):
        key = name.removesuffix("()")
        if key == "any" or key in TYPES and self.is_offered(key, line):
            return
        symbol = self.find(key)
        if symbol is None or symbol.kind not in ("type", "enum"):
            raise VbaError(line, f"{key} is not a type")
        if is_public and not symbol.is_public:
            raise VbaError(line, f"{symbol.name} is private, and is used in what is public")

    def check_constant(self, tree):
        if tree[0] == "operator":
            for part in tree[2]:
                self.check_constant(part)
        elif tree[0] == "name":
            symbol = self.find(tree[1])
            if tree[1].lower() not in CONSTANTS and (symbol is None or symbol.kind != "constant"):
                raise VbaError(tree[-1], f"{tree[1]} is not a constant")
        elif tree[0] != "literal":
            raise VbaError(tree[-1], "not a constant expression")
        self.visit(tree)

    # ---- procedures ----

    def check_procedure(self, procedure):
        self.procedure = procedure
        self.local, self.withs = {}, []
        for parameter in procedure.parameters:
            symbol = parameter.symbol
            self.check_type(symbol.type, symbol.line, procedure.is_public)
            if parameter.is_by_val and self.is_record(symbol.type):
                raise VbaError(symbol.line, f"{symbol.name} is of a Type, and those are passed ByRef")
            self.declare(symbol)
        if procedure.returns:
            self.check_type(procedure.returns, procedure.line, procedure.is_public)
        if procedure.kind == "declare":
            self.check_declare(procedure)
            return
        self.is_answered = not procedure.returns
        for kind, *parts, line in procedure.events:
            getattr(self, "on_" + kind.replace(" ", "_"))(*parts, line)
        if not self.is_answered:
            raise VbaError(procedure.line, f"{procedure.name} never gets its value")

    def check_declare(self, procedure):
        if procedure.is_safe != self.project.is_vba7:
            raise VbaError(procedure.line, f"{procedure.name}: PtrSafe belongs to VBA7, and VBA6 does not know it")
        if procedure.returns.endswith("()"):
            raise VbaError(procedure.line, f"{procedure.name}: a library's function returns no array")

    def declare(self, symbol):
        key = symbol.name.lower()
        if key in self.local or key == self.procedure.key and self.procedure.kind != "declare":
            raise VbaError(symbol.line, f"{symbol.name} is declared twice")
        self.local[key] = symbol

    def on_declare(self, symbol, _line):
        self.check_type(symbol.type, symbol.line)
        self.declare(symbol)

    def on_constant(self, tree, _line):
        self.check_constant(tree)

    def on_use(self, tree, _line):
        self.visit(tree)

    def on_jump(self, label, line):
        if label.lower() not in self.procedure.labels:
            raise VbaError(line, f"there is no label {label}")

    def on_with(self, tree, line):
        self.visit(tree)
        kind = self.type_of(tree)
        if kind and not self.is_record(kind) and kind not in ("variant", "object", "collection"):
            raise VbaError(line, "With takes an object or a Type")
        self.withs.append(kind)

    def on_end_with(self, _line):
        self.withs.pop()

    def on_count(self, tree, line):
        self.visit(tree)
        if tree[0] != "name" or self.type_of(tree) not in (
                "variant", "byte", "integer", "long", "longlong", "single", "double", "currency"):
            raise VbaError(line, "For takes a variable of numbers")

    def on_each(self, tree, group, line):
        self.visit(tree)
        self.visit(group)
        if self.type_of(tree) not in ("variant", "object", "collection"):
            raise VbaError(line, "For Each takes a Variant")
        if self.is_record(str(self.type_of(group)).removesuffix("()")):
            raise VbaError(line, "For Each does not take an array of a Type")

    def on_redim(self, tree, arguments, kind, line):
        self.visit(tree)
        for argument in arguments:
            if argument.tree is None:
                raise VbaError(line, "ReDim takes all bounds")
            self.visit(argument.tree)
        symbol = self.find(tree[1]) if tree[0] == "name" else None
        found = self.type_of(tree)
        if found not in (None, "variant") and not found.endswith("()") or symbol is not None and symbol.is_fixed:
            raise VbaError(line, "ReDim takes an array without bounds of its own")
        if kind and found != "variant" and self.real(kind) != self.real(found).removesuffix("()"):
            raise VbaError(line, "ReDim does not change the type")

    def on_erase(self, tree, line):
        self.visit(tree)
        if not str(self.type_of(tree)).endswith("()") and self.type_of(tree) != "variant":
            raise VbaError(line, "Erase takes an array")

    def on_assign(self, target, value, is_set, line):
        self.visit(value)
        is_answer = target[0] == "name" and target[1].lower() == self.procedure.key
        if is_answer and not self.procedure.returns:
            raise VbaError(line, f"{target[1]} returns nothing")
        if is_answer:
            self.is_answered = True
            kind = self.procedure.returns
        else:
            symbol = self.find(target[1]) if target[0] == "name" else None
            if not getattr(symbol, "kind", "").startswith("property"):
                self.visit(target)
            self.check_target(target, line)
            kind = self.type_of(target)
        found = self.type_of(value)
        if is_set:
            if kind not in (None, "variant", "object", "collection"):
                raise VbaError(line, "Set takes an object")
        elif not self.is_assignable(kind, found):
            raise VbaError(line, f"{found} is assigned to {kind}")

    def check_target(self, target, line):
        root = target
        while root[0] in ("index", "member"):
            root = root[1]
        if root[0] == "with" or root[1].lower() in OBJECTS:
            return
        symbol = self.find(root[1])
        is_of_result = target[0] == "member" and getattr(symbol, "returns", "") in ("object", "variant")
        if symbol is None or symbol.kind not in ("variable", "property get", "property let") and not is_of_result:
            raise VbaError(line, f"{root[1]} cannot be assigned to")
        if target[0] == "name" and symbol.kind == "variable" and symbol.is_fixed:
            raise VbaError(line, f"{root[1]} is an array with bounds, which is not assigned as a whole")

    def on_call(self, target, arguments, line):
        if target[0] == "name":
            procedure = self.find(target[1])
            if procedure is None and target[1].lower() in PROCEDURES | FUNCTIONS:
                self.visit(("index", target, arguments, line))
                return
            if procedure is None:
                raise VbaError(line, f"{target[1]} is not declared")
            if not hasattr(procedure, "parameters"):
                raise VbaError(line, f"{target[1]} is no procedure")
            self.check_arguments(procedure, arguments, line)
            return
        self.visit(target)
        if self.type_of(target) is not None:
            raise VbaError(line, "a value is no procedure")
        for argument in arguments:
            if argument.tree is not None:
                self.visit(argument.tree)

    # ---- expressions ----

    def visit(self, tree):
        """Checks every name in an expression."""
        getattr(self, "visit_" + tree[0])(*tree[1:])

    def visit_literal(self, kind, line):
        if kind == "longlong" and not self.project.is_64_bit:
            raise VbaError(line, "a LongLong is not known to this host")

    def visit_operator(self, operator, parts, line):
        for part in parts:
            self.visit(part)
            if operator != "()" and (self.is_record(self.type_of(part)) or str(self.type_of(part)).endswith("()")):
                raise VbaError(line, f"{operator} takes no arrays and no Types")

    def visit_new(self, kind, line):
        self.check_type(kind.lower(), line)

    def visit_typeof(self, tree, kind, line):
        self.visit(tree)
        self.check_type(kind.lower(), line)

    def visit_address(self, name, line):
        if not hasattr(self.find(name), "parameters"):
            raise VbaError(line, f"{name} is no procedure")

    def visit_with(self, name, line):
        if not self.withs:
            raise VbaError(line, f".{name} stands outside of With")
        self.member_type(self.withs[-1], name, line)

    def visit_member(self, tree, name, line):
        if tree[0] == "name" and self.find(tree[1]) is None:
            key = tree[1].lower()
            module = next((m for m in self.project.modules if m.name.lower() == key), None)
            if module is not None:
                if name.lower() not in [symbol.name.lower() for symbol, is_public in scope_of(module) if is_public]:
                    raise VbaError(line, f"{module.name} has no {name}")
                return
            if key in OBJECTS:
                if name.lower() not in OBJECTS[key]:
                    raise VbaError(line, f"{tree[1]} has no {name}")
                return
        self.visit(tree)
        self.member_type(self.type_of(tree), name, line)

    def visit_name(self, name, line):
        symbol, key = self.find(name), name.lower()
        if symbol is None:
            if key in CONSTANTS | {"err"} and self.is_offered(key, line):
                return
            self.check_library(name, [], line)
        elif symbol.kind in ("type", "enum", "sub"):
            raise VbaError(line, f"{name} is no value")
        elif hasattr(symbol, "parameters") and symbol is not self.procedure:
            self.check_arguments(symbol, [], line)

    def visit_index(self, tree, arguments, line):
        if tree[0] == "name":
            symbol = self.find(tree[1])
            if symbol is None:
                self.check_library(tree[1], arguments, line)
            elif hasattr(symbol, "parameters"):
                if not symbol.returns:
                    raise VbaError(line, f"{tree[1]} is no value")
                if symbol.parameters or not symbol.returns.endswith("()"):
                    self.check_arguments(symbol, arguments, line)
                    return
        if tree[0] != "name" or self.find(tree[1]) is not None:
            self.visit(tree)
            kind = self.type_of(tree)
            if kind and not kind.endswith("()") and kind not in ("variant", "object", "collection"):
                raise VbaError(line, f"what has an index is {kind}, no array")
        for argument in arguments:
            if argument.tree is not None:
                self.visit(argument.tree)

    def check_library(self, name, arguments, line):
        key = name.lower()
        plain = key.removesuffix("$")
        counts = FUNCTIONS.get(key) or (FUNCTIONS.get(plain) if plain in TEXT_FUNCTIONS else None) or PROCEDURES.get(key)
        if counts is None:
            raise VbaError(line, f"{name} is not declared")
        self.is_offered(key, line)
        if not counts[0] <= len(arguments) <= counts[1]:
            raise VbaError(line, f"{name} takes {counts[0]} to {counts[1]} arguments, not {len(arguments)}")

    def check_arguments(self, procedure, arguments, line):
        parameters, given = procedure.parameters, set()
        by_name = {parameter.symbol.name.lower(): at for at, parameter in enumerate(parameters)}
        for at, argument in enumerate(arguments):
            if argument.name:
                at = by_name.get(argument.name.lower())
                if at is None:
                    raise VbaError(line, f"{procedure.name} has no parameter {argument.name}")
            if parameters and parameters[-1].is_rest:
                at = min(at, len(parameters) - 1)
            elif at >= len(parameters):
                raise VbaError(line, f"{procedure.name} takes {len(parameters)} arguments, not {len(arguments)}")
            if argument.tree is None:
                continue
            if at in given and not parameters[at].is_rest:
                raise VbaError(line, f"{parameters[at].symbol.name} is passed twice")
            given.add(at)
            self.visit(argument.tree)
            self.check_passed(procedure, parameters[at], argument, line)
        for at, parameter in enumerate(parameters):
            if at not in given and not parameter.is_optional and not parameter.is_rest:
                raise VbaError(line, f"{procedure.name} is called without {parameter.symbol.name}")
