"""Calls every function of the package with arguments that do not fit. Run in a process of its own, which has to survive."""

import inspect
import sys
import warnings

import numpy as np

import vecmat as vm

try:
    import pandas as pd
    FRAMES = [pd.Series([1.0, None, 3.0]), pd.DataFrame({"a": [1.0, 2.0], "b": ["x", None]}), pd.Series([pd.NA, "x"]),
              pd.DataFrame(), pd.Series([], dtype=float)]
except ImportError:
    FRAMES = []

READ_ONLY = np.arange(6.0).reshape(3, 2)
READ_ONLY.setflags(write=False)
ODD = [None, "abc", b"a", object(), {}, [], [[]], 1, 1.5, -1, 2**40, float("nan"), float("inf"), True, 3 + 4j, [1, "a"],
       [[1.0, 2.0], [3.0]], ["a", None, "b"], [None, None], [float("nan")] * 3, [float("inf"), 1.0, 2.0], np.empty((0, 3)),
       np.empty((3, 0)), np.empty(0), np.ones((2, 2, 2)), np.array(1.0), np.array([1j]), np.array([object()]),
       np.arange(10.0)[::3], np.arange(12.0).reshape(3, 4), np.arange(12.0).reshape(3, 4).T[::2], READ_ONLY,
       np.full((3, 3), np.nan), np.zeros((3, 3)), np.eye(3) * 1e300, np.eye(3) * 1e-300, np.full((2, 2), np.inf),
       np.arange(5.0).astype(">f8"), np.array(["2020-01-01"], dtype="datetime64[D]"), np.array([1, 2], dtype=np.uint64),
       np.ma.array([1.0, 2.0], mask=[True, False]), [True, False], [-1.0, 2.0], [vm.flat.MISSING, 1.0], *FRAMES]
EXPECTED = (TypeError, ValueError, MemoryError, np.linalg.LinAlgError)
# A permutation of 2**40 is refused, one of 2**30 is only large.
SKIPPED = {"flat", "Result", "PrecisionWarning", "read_table"}


def attempt(name, function, positional, named, wrong):
    print(name, [type(value).__name__ for value in positional], list(named), file=sys.stderr)
    try:
        function(*positional, **named)
    except EXPECTED:
        pass
    except Exception as error:
        wrong.append(f"{name}: {type(error).__name__}: {error}; {[repr(value)[:60] for value in positional]} {named}")


def main():
    warnings.simplefilter("ignore")
    wrong, count = [], 0
    plain = [1.0, 2.0, 4.0]
    for name in vm.__all__:
        function = getattr(vm, name)
        if name in SKIPPED or inspect.isclass(function):
            continue
        parameters = inspect.signature(function).parameters.values()
        first = [p for p in parameters if p.kind == p.POSITIONAL_OR_KEYWORD and p.default is p.empty]
        options = [p.name for p in parameters if p.default is not p.empty]
        for odd in ODD:
            for j in range(len(first)):
                for usual in (plain, np.eye(3), ["a", "b", "a"], 3):
                    values = [usual] * len(first)
                    values[j] = odd
                    attempt(name, function, values, {}, wrong)
                    count += 1
            for option in options:
                for usual in (plain, np.eye(3)):
                    attempt(name, function, [usual] * len(first), {option: odd}, wrong)
                    count += 1
    print("\n".join(wrong))
    print(f"survived: {count} calls")


if __name__ == "__main__":
    main()
