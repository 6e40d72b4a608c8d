"""fuzz_flat.py SEED [--seconds S | --calls N] [--first K] [--note FILE]: calls of flat functions in which several
arguments at once do not fit, drawn from the seed. Case k is the same whatever came before it, so `--first k --calls 1`
repeats one.

The process has to survive: what is no error that a caller expects is printed, and the exit status is 1. FILE holds the
number of the case that runs, as it may not survive."""

import argparse
import faulthandler
import random
import signal
import sys
import time
import warnings
from pathlib import Path

import numpy as np

sys.path[:0] = [str(Path(__file__).resolve().parents[3] / "tools/lib"), str(Path(__file__).resolve().parent)]

from flat_values import CALLS, DTYPES, sized  # noqa: E402
from hostile_flat import EXPECTED, odd_values, wrong_memory, wrong_sizes, wrong_types  # noqa: E402

from vecmat import flat  # noqa: E402

MOST_CELLS = 20_000
SIZES = (-3, -1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 17, 33)
WHOLE = (0, 1, -1, 2, 3, 5, 7, 255, 2**15 - 1, 2**15, 2**31 - 1, -2**31, 2**31, 2**32 + 2, 2**63, -2**63, 10**30)


class Shrinking(list):
    """Is shorter whenever it is looked at."""

    def __len__(self):
        if super().__len__():
            self.pop()
        return super().__len__()


class Emptied:
    """Empties a list while it is converted itself."""

    def __init__(self, victim, number):
        self.victim, self.number = victim, number

    def __index__(self):
        self.victim.clear()
        return self.number

    def __float__(self):
        self.victim.clear()
        return float(self.number)

    def __array__(self, dtype=None, copy=None):
        self.victim.clear()
        return np.ones(self.number)


class Text(str):
    def __len__(self):
        return 2**40

    def __repr__(self):
        raise RuntimeError("no text")


class Array(np.ndarray):
    def __array_finalize__(self, other):
        pass

    @property
    def shape(self):
        raise RuntimeError("no shape")


def array_like(draw, value):
    """An array with the cells of another, laid out in some other way."""
    wide = np.zeros((2 * value.size + 2,), dtype=value.dtype)
    choices = [lambda: value[::-1], lambda: value.reshape(-1, 1), lambda: value.reshape(1, -1), lambda: memoryview(value),
               lambda: value.view(Array), lambda: np.broadcast_to(value[:1], value.shape) if value.size else value,
               lambda: wide[1:value.size + 1], lambda: wide[:2 * value.size:2], lambda: value.astype(">f8"),
               lambda: value.astype(np.float16), lambda: value.astype(object), lambda: np.asfortranarray(value.reshape(1, 1, -1)),
               lambda: np.ma.masked_array(value), lambda: tuple(value.tolist()), lambda: Shrinking(value.tolist()),
               lambda: value.astype(np.int64) if np.isfinite(value.astype(float)).all() else value,
               lambda: np.lib.stride_tricks.as_strided(value[:1].copy(), value.shape, (0,)) if value.size else value]
    return draw.choice(choices)()


def texts_like(draw, value):
    choices = [lambda: Shrinking(value), lambda: tuple(value), lambda: [Text("a")] * len(value), lambda: np.array(value, dtype=object),
               lambda: np.array(value, dtype="U1") if all(isinstance(text, str) for text in value) else value,
               lambda: [draw.choice([None, "", "\ud800", "\udc00x", "\U0010ffff" * 3, "x" * 300, "a\0", 1, b"a"]) for _ in value],
               lambda: iter(value), lambda: [value] * len(value)]
    return draw.choice(choices)()


def odd(draw, argument, value, others):
    """Something else in the place of a value that fits."""
    lists = [other for other in others if type(other) is list]
    if lists and draw.random() < 0.1:
        return Emptied(draw.choice(lists), draw.choice((0, 1, 4)))
    kinds = [wrong_types(argument), odd_values(argument, value), wrong_sizes(argument, value), wrong_memory(argument, value)]
    if argument.type in ("int", "short"):
        kinds.append(WHOLE)
    if argument.domain.kind in ("count", "rows", "columns"):  # a billion empty columns are looped over, one by one
        kinds = [wrong_types(argument), [number for number in WHOLE if not 255 < number < 2**31]]
    candidates = draw.choice([kind for kind in kinds if kind])
    other = draw.choice(candidates)
    if isinstance(value, np.ndarray) and draw.random() < 0.4:
        return array_like(draw, value)
    if isinstance(value, list) and value and draw.random() < 0.4:
        return texts_like(draw, value)
    return other


def is_small(values):
    return sum(len(value) for value in values if isinstance(value, (list, np.ndarray))) <= MOST_CELLS


def random_cells(draw, argument, value):
    """Cells of any bits. What other arguments' sizes are read from is refused where it does not fit."""
    bits = np.frombuffer(draw.randbytes(value.nbytes), dtype=DTYPES[argument.type])
    return np.where(np.array([draw.random() < 0.7 for _ in range(value.size)], dtype=bool), value, bits).astype(value.dtype)


def arguments_of(draw, call):
    values = sized(call, draw.choice(SIZES))
    if not is_small(values):
        values = sized(call, 2)
    for k, argument in enumerate(call.arguments):
        if argument.type in DTYPES and draw.random() < 0.3:
            values[k] = random_cells(draw, argument, values[k])
    for _ in range(draw.choice((0, 1, 1, 2, 3))):
        if values:
            k = draw.randrange(len(values))
            if isinstance(values[k], (np.ndarray, list, int, float, str)):
                values[k] = odd(draw, call.arguments[k], values[k], values) if plain(call.arguments[k], values[k]) else None
    if draw.random() < 0.1 and len(values) > 1:
        values[draw.randrange(len(values))] = values[draw.randrange(len(values))]
    if draw.random() < 0.02:
        del values[draw.randrange(len(values) + 1):]
    return values


def plain(argument, value):
    """Whether it is still what `sized` made."""
    return isinstance(value, np.ndarray) if argument.type in DTYPES else True


def attempt(seed, k, names):
    """The complaint about case k; nothing where there is none."""
    draw = random.Random(f"{seed} {k}")
    name = draw.choice(names)
    try:
        values = arguments_of(draw, CALLS[name])
    except (ValueError, IndexError, ZeroDivisionError, TypeError, OverflowError, RuntimeError, MemoryError, AttributeError):
        return ""  # there is no such argument
    try:
        getattr(flat, name)(*values)
    except EXPECTED:
        return ""
    except RuntimeError as error:
        return "" if str(error) in ("no number", "no text", "no shape") else f"case {k}: {name}: RuntimeError: {error}"
    except Exception as error:
        return f"case {k}: {name}: {type(error).__name__}: {error}"
    return ""


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("seed", type=int)
    parser.add_argument("--seconds", type=float, default=float("inf"))
    parser.add_argument("--calls", type=int, default=sys.maxsize)
    parser.add_argument("--first", type=int, default=0)
    parser.add_argument("--note", type=Path)
    options = parser.parse_args()

    warnings.simplefilter("ignore")  # of NumPy, about odd arguments that are made here
    faulthandler.enable()
    signal.alarm(int(min(options.seconds, 3600)) + 300)  # a call that does not come back
    names = sorted(CALLS)
    end = time.monotonic() + options.seconds
    complaints, k = [], options.first
    while k < options.first + options.calls and time.monotonic() < end:
        if options.note:
            options.note.write_text(f"seed {options.seed}, case {k}\n")
        if complaint := attempt(options.seed, k, names):
            complaints.append(complaint)
        k += 1
    print("\n".join(complaints), end="\n" if complaints else "")
    print(f"python_arguments: {k - options.first} calls, seed {options.seed}, "
          + (f"{len(complaints)} findings" if complaints else "no finding"))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
