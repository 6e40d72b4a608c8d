"""The types of expressions, as far as they are certain, and what may be passed and assigned.

A type is a word in lower case, with () behind it for an array; None where it is not known.
"""

from source import VbaError
from words import OBJECTS, TYPES


class Types:
    """What Names knows about types."""

    def real(self, kind):
        """LongPtr is another name of a type."""
        if kind is None:
            return None
        plain = kind.removesuffix("()")
        if plain == "longptr":
            plain = "longlong" if self.project.is_64_bit else "long"
        elif plain not in TYPES and getattr(self.find(plain), "kind", "") == "enum":
            plain = "long"
        return plain + kind[len(kind.removesuffix("()")):]

    def is_record(self, kind):
        return (bool(kind) and not kind.endswith("()") and kind not in TYPES
                and getattr(self.find(kind), "kind", "") == "type")

    def type_of(self, tree):
        kind = tree[0]
        if kind == "name":
            symbol = self.find(tree[1])
            if hasattr(symbol, "parameters"):
                return symbol.returns or None
            return symbol.type if symbol is not None and symbol.kind in ("variable", "constant") else None
        if kind == "index":
            return self.indexed_type(tree[1], tree[2])
        if kind == "member" and not (tree[1][0] == "name" and self.find(tree[1][1]) is None):
            return self.member_type(self.type_of(tree[1]), tree[2], tree[-1])
        if kind == "with":
            return self.member_type(self.withs[-1], tree[1], tree[-1]) if self.withs else None
        if kind == "literal":
            return tree[1]
        if kind == "operator" and tree[1] == "()":
            return self.type_of(tree[2][0])
        return None

    def indexed_type(self, tree, arguments):
        symbol = self.find(tree[1]) if tree[0] == "name" else None
        found = self.type_of(tree)
        if hasattr(symbol, "parameters") and (symbol.parameters or not arguments or not (found or "").endswith("()")):
            return found
        return found.removesuffix("()") if found and found.endswith("()") else "variant" if found == "variant" else None

    def member_type(self, kind, name, line):
        if kind in (None, "variant", "object"):
            return None
        if kind in OBJECTS:
            if name.lower() not in OBJECTS[kind]:
                raise VbaError(line, f"{kind} has no {name}")
            return None
        if not self.is_record(kind):
            raise VbaError(line, f"{name} is asked of {kind}, which has no members")
        members = self.find(kind).value
        if name.lower() not in members:
            raise VbaError(line, f"{kind} has no {name}")
        return members[name.lower()].type

    def is_variable(self, tree):
        """Whether it is passed by reference: what is no variable is passed as a copy of the right type."""
        while tree[0] in ("index", "member"):
            if tree[0] == "index" and self.type_of(tree[1]) == "variant":
                return False
            tree = tree[1]
        return tree[0] == "with" or tree[0] == "name" and getattr(self.find(tree[1]), "kind", "") == "variable"

    def check_passed(self, procedure, parameter, argument, line):
        expected, found = self.real(parameter.symbol.type), self.real(self.type_of(argument.tree))
        where = f"{procedure.name}: {parameter.symbol.name}"
        if argument.is_by_val and expected != "any":
            raise VbaError(line, f"{where}: ByVal is said only for Any")
        if found is None or expected == "any":
            return
        if expected == "variant" or parameter.is_rest:
            if self.is_record(found) or self.is_record(found.removesuffix("()")):
                raise VbaError(line, f"{where} takes a Variant, which holds no Type")
            return
        if found.endswith("()") != expected.endswith("()") and found != "variant" or (
                self.is_record(found) != self.is_record(expected)):
            raise VbaError(line, f"{where} takes {expected}, not {found}")
        if found != expected and not parameter.is_by_val and (self.is_variable(argument.tree) or expected.endswith("()")):
            raise VbaError(line, f"{where} is passed ByRef as {expected}, not {found}")

    def is_assignable(self, kind, found):
        kind, found = self.real(kind), self.real(found)
        if kind is None or found is None:
            return True
        if self.is_record(kind) or self.is_record(found):
            return kind == found
        if kind == "variant":
            return not self.is_record(found.removesuffix("()"))
        if kind.endswith("()") or found.endswith("()"):
            return kind == found or found == "variant"
        return True
