"""Calls every flat function with arguments that do not fit, each in turn. Run by test_flat_hostile.py in a process of its
own, which has to survive; what should have been an error and was none is printed."""

import sys
from pathlib import Path

import numpy as np

sys.path[:0] = [str(Path(__file__).resolve().parents[3] / "tools/lib"), str(Path(__file__).resolve().parent)]

from flat_values import CALLS, sized  # noqa: E402

from vecmat import flat  # noqa: E402

KINDS = {"double*": np.float64, "int*": np.int32, "short*": np.int16}
EXPECTED = (TypeError, ValueError, MemoryError)
# These go on for as long as they are told to, or take as much memory.
LONG = {"TestAllocMatrix", "GetStatusMemory", "Cpp_GetStatusMemory"}


class Odd:
    def __float__(self):
        raise RuntimeError("no number")

    __index__ = __float__


def read_only(array):
    copy = array.copy()
    copy.setflags(write=False)
    return copy


def wrong_types(argument):
    common = [object(), {}, 3 + 4j, b"a", Odd(), lambda: 1]
    if argument.type in ("int", "short"):
        return [*common, "1", 1.5, None, [1], np.ones(2)]
    if argument.type == "double":
        return [*common, "1", None, [1.0], np.ones(2)]
    if argument.type in KINDS:
        return [*common, "abc", ["a", "b"], np.array([object()]), np.array([1j]), np.array(["a"]), np.ones((1, 1, 1))]
    if argument.type.startswith("const "):
        return [*common, 1, ["a"]]
    return [*common, 1, "abc", [1, 2, 3], [object()]]


def wrong_sizes(argument, value):
    if argument.type in KINDS:
        n = value.size
        sizes = [value[:-1].copy(), np.concatenate([value, value[:1]])] if n else [np.ones(1, dtype=value.dtype)]
        return [*sizes, np.empty(0, dtype=value.dtype)][:3 if n > 0 else 1]
    if argument.type in ("wchar_t**", "SAFEARRAY**"):
        return [list(value[:-1]), []] if value else []
    return []


def wrong_memory(argument, value):
    if argument.type not in KINDS or not argument.is_written() or not value.size:
        return []
    spread = np.zeros(2 * value.size, dtype=value.dtype)[::2]
    shifted = np.frombuffer(bytearray(value.nbytes + 1), dtype=np.uint8)[1:].view(value.dtype)
    swapped = value.astype(value.dtype.newbyteorder())
    return [read_only(value), swapped, list(value), value.astype(np.complex128), shifted,
            *([spread] if value.size > 1 else [])]


def odd_values(argument, value):
    if argument.type == "int":
        return [0, -1, 2, 2**31 - 1, -2**31, 2**31, 2**70, -2**70, True, np.int8(3)]
    if argument.type == "short":
        return [0, -1, 1, 2**15 - 1, -2**15, 2**15, True, False]
    if argument.type == "double":
        return [0.0, -1.0, 1e308, -1e308, float("nan"), float("inf"), -float("inf"), flat.MISSING, 10**400]
    if argument.type == "double*":
        return [np.full(value.size, odd) for odd in (np.nan, np.inf, -np.inf, 1e308, -1.0, 0.0, 1e9, flat.MISSING)]
    if argument.type in ("int*", "short*"):
        most = np.iinfo(value.dtype).max
        return [np.full(value.size, odd, dtype=value.dtype) for odd in (0, -1, most, -most - 1)]
    if argument.type == "wchar_t**":
        return [[odd] * len(value) for odd in (None, "", "x" * 5000, "\ud800", "\U0010ffff", "a\0b")]
    if argument.type.startswith("const "):
        return ["", "x" * 5000, "\ud800", "a\0b"]
    return []


def attempt(function, values, note, must_fail, wrong):
    print(note, file=sys.stderr)
    try:
        function(*values)
    except EXPECTED as error:
        if must_fail and must_fail not in str(error) and not isinstance(error, MemoryError):
            wrong.append(f"{note}: the message does not name the argument: {error}")
        return
    except Exception as error:
        wrong.append(f"{note}: {type(error).__name__}: {error}")
        return
    if must_fail:
        wrong.append(f"{note}: no error")


def may_be_longer(argument):
    from shapes import names_of
    return any(names_of(tree)[0] for tree in argument.shape.expressions())


def overlapping(call):
    """All arrays of a kind in one run of memory."""
    values = sized(call)
    for kind, dtype in KINDS.items():
        places = [k for k, argument in enumerate(call.arguments) if argument.type == kind]
        if len(places) > 1:
            memory = np.ones(max(values[k].size for k in places), dtype=dtype)
            for k in places:
                values[k] = memory[:values[k].size]
    return values


def besiege(call, wrong):
    function = getattr(flat, call.name)
    name = lambda argument: f"'{argument.name}"
    for k, argument in enumerate(call.arguments):
        for what, odds, fails in (("type", wrong_types(argument), True),
                                  ("size", wrong_sizes(argument, sized(call)[k]), True),
                                  ("memory", wrong_memory(argument, sized(call)[k]), True),
                                  ("value", odd_values(argument, sized(call)[k]), False)):
            for j, odd in enumerate(odds):
                values = sized(call)
                values[k] = odd
                ends_elsewhere = what == "size" and (argument.shape.layout != "table" or any(word in str(call.arguments) for word in ("position", "within")))
                attempt(function, values, f"{call.name} {argument.name} {what} {j}",
                        name(argument) if fails and not ends_elsewhere and argument.null is not True else "", wrong)
        if argument.null is False:
            values = sized(call)
            values[k] = None
            attempt(function, values, f"{call.name} {argument.name} None", name(argument), wrong)
    attempt(function, overlapping(call), f"{call.name} overlapping", "", wrong)
    attempt(function, sized(call)[:-1], f"{call.name} too few", "argument" if call.arguments else "", wrong)
    attempt(function, [*sized(call), 1], f"{call.name} too many", "arguments", wrong)
    for size in (0, 1, -3):
        try:
            values = sized(call, size)
        except (ValueError, IndexError, ZeroDivisionError):
            continue
        attempt(function, values, f"{call.name} size {size}", "", wrong)


def main():
    wrong = []
    for name, call in CALLS.items():
        if name not in LONG:
            besiege(call, wrong)
    print("\n".join(wrong))
    print(f"survived: {len(CALLS) - len(LONG)} functions")


if __name__ == "__main__":
    main()
