"""Arguments for flat functions, from the project's tables: made from the recorded calls, or drawn."""

import numpy as np
from arguments import read_calls

CALLS = read_calls()
DTYPES = {"double*": np.float64, "int*": np.int32, "short*": np.int16}


def floats(text):
    """Doubles from the digits of their bits."""
    return np.frombuffer(bytes.fromhex(text), dtype=">f8").astype(np.float64)


def array_of(argument, held):
    """What Python passes for an array that held this."""
    if held is None or isinstance(held, str) and argument.type.startswith("const "):
        return held
    if argument.type == "SAFEARRAY**":
        return [list(column) if argument.shape.strings else floats(column) for column in held]
    if argument.type == "double*":
        return floats(held)
    if argument.type == "wchar_t**":
        return list(held)
    return np.array(held, dtype=DTYPES[argument.type])


def same(argument, found, expected):
    """Whether two arrays hold the same bits; a null string is the empty one, one NaN is like another."""
    if expected is None:
        return found is None
    if isinstance(found, str):
        return found == expected
    if argument.type == "SAFEARRAY**":
        return len(found) == len(expected) and all(same_cells(a, b) for a, b in zip(found, expected))
    return same_cells(found, expected)


def same_cells(found, expected):
    if isinstance(found, list):
        return [text or "" for text in found] == [text or "" for text in expected]
    if found.dtype == np.float64:
        return same_bits(found, floats(expected))
    return found.tolist() == list(expected)


def same_bits(a, b):
    a, b = np.atleast_1d(np.asarray(a, dtype=np.float64)), np.atleast_1d(np.asarray(b, dtype=np.float64))
    return a.shape == b.shape and bool(np.all((a.view(np.int64) == b.view(np.int64)) | (np.isnan(a) & np.isnan(b))))


def sized(call, size=4):
    """Values for a call that is as plain as can be: arrays of the sizes that the table tells, numbers of `size`."""
    values = {}
    for argument in call.arguments:
        domain = argument.domain
        if argument.type == "double":
            values[argument.name] = 0.5
        elif argument.type in ("int", "short"):
            options = {"option": domain.options, "flags": domain.options}.get(domain.kind)
            whole = size if domain.kind in ("count", "rows", "columns") else -1 if domain.kind == "seed flag" else 1
            values[argument.name] = options[0] if options else whole
    sizes = {name for argument in call.arguments for tree in argument.shape.expressions() for name in arrays_in(tree)}
    for argument in sorted(call.arguments, key=lambda argument: argument.name not in sizes):
        if argument.name not in values:
            values[argument.name] = filled(argument, values, argument.name in sizes)
    return [values[argument.name] for argument in call.arguments]


def arrays_in(tree):
    from shapes import names_of
    return names_of(tree)[1]


def filled(argument, values, tells_size):
    if argument.shape.layout in ("text", "bstr"):
        return "a"
    lengths = argument.shape.lengths(values)
    if argument.type == "SAFEARRAY**":
        return [["a"] * n if argument.shape.strings else np.arange(1.0, n + 1.0) for n in lengths]
    n = lengths[0]
    if argument.type == "wchar_t**":
        return ["a"] * n
    whole = argument.domain.kind in ("positions", "codes", "counts", "flags") or tells_size
    return np.ones(n, dtype=DTYPES[argument.type]) if whole else np.arange(1, n + 1).astype(DTYPES[argument.type])
