"""What a binding checks before it calls a flat function: the same in every language that has one."""

from shapes import names_of

KINDS = {"double": "number", "int": "integer", "short": "flag", "double*": "doubles", "int*": "ints", "short*": "flags",
         "wchar_t**": "strings", "const wchar_t*": "text", "const void*": "bstr"}


def kind_of(argument):
    if argument.type == "SAFEARRAY**":
        return "stringColumns" if argument.shape.strings else "columns"
    return KINDS[argument.type]


def range_of(argument):
    """The range that is checked, or nothing. A range between two constants is one from which tests draw: of it, only
    that a count is not negative concerns the memory that the call touches."""
    domain = argument.domain
    if domain.high is None or domain.high[0] != "number":
        return domain.low, domain.high
    return (domain.low, ("number", 2**31 - 1)) if domain.kind == "counts" else (None, None)


def range_word(argument):
    """How a message names what lies in the range."""
    kind = argument.domain.kind
    return kind if kind_of(argument) not in ("integer", "flag") else "a " + kind.rstrip("s")


def options_of(argument):
    """The numbers of which one is expected, in ascending order; none where any will do."""
    return sorted(argument.domain.options) if kind_of(argument) in ("integer", "flag") else []


def size_tellers(call):
    """The names of the arrays whose cells tell sizes of others."""
    return {name for argument in call.arguments for tree in argument.shape.expressions() for name in names_of(tree)[1]}


def is_at_least(call, argument):
    """Whether a position among the numbers decides the size: more cells may stand behind it."""
    return any(call.argument(name).domain.kind in ("position", "within")
               for tree in argument.shape.expressions() for name in names_of(tree)[0])


def is_address(call, argument):
    """Whether the cells are positions or sizes: nothing may change them during the call."""
    is_array = kind_of(argument) in ("doubles", "ints", "flags")
    return is_array and (argument.name in size_tellers(call) or range_of(argument)[0] is not None)


def reading_order(call):
    """The places of the arguments: those that tell sizes come first."""
    first = size_tellers(call)
    places = range(len(call.arguments))
    return sorted(places, key=lambda place: (call.arguments[place].name not in first, place))
