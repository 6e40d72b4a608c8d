"""Docstrings: what many functions share stands once, and what the library's contracts say is not typed again."""

from __future__ import annotations

import inspect
from typing import Any, Callable, TypeVar

from vecmat._contracts import CONTRACTS

Anything = TypeVar("Anything", bound=Callable[..., Any])

SHARED = {
    "x": "x : array_like\n    Numbers; NaN, None and pandas' NA are missing. A Series, and a DataFrame where a table is taken,\n"
         "    give their labels to the result.",
    "table": "x : array_like, shape (n, p)\n    A table with a variable in each column; NaN, None and pandas' NA are missing.",
    "square": "a : array_like, shape (n, n)\n    A square table.",
    "weights": "weights : array_like, shape (n,), optional\n    A weight for each row, not negative; 1 each where it is left out.",
    "exclude": "exclude : array_like of bool, shape (n,), optional\n    Rows to leave out: true drops, as in masked arrays.",
    "axis": "axis : {0, 1}, optional\n    Of a table: 0 gives a result for each column, 1 for each row.",
    "divisor": "ddof : {0, 1}, optional\n    0 divides by the sum of weights W, 1 by less: the short form of `divisor`.\n"
               "divisor : {'frequency', 'reliability', 'population'}, optional\n"
               "    W - 1 (weights count rows), W - W/m (weights are relative; m rows), or W.",
    "zero_weights": "zero_weights : {'counted', 'skipped'}, optional\n"
                    "    Whether a row of weight 0 counts in m, the number of rows.",
    "seed": "seed : int, optional\n    Starts the series of random numbers; the same seed gives the same series on every machine.\n"
            "    Left out, one is drawn. `next_seed` of the result goes on where this call ended.",
}
TITLES = {"missing": "Missing cell", "mask": "Excluded row", "weights": "Weight", "divisor": "Divisor",
          "empty": "Empty input", "failure": "Failure", "weak": "Known weakness", "source": "Source"}


def documented(*flat: str) -> Callable[[Anything], Anything]:
    """Completes the docstring: `{weights}` and the like in place, and the contracts of flat functions at the end."""

    def complete(function: Anything) -> Anything:
        text = inspect.cleandoc(function.__doc__ or "")
        for word, told in SHARED.items():
            text = text.replace("{" + word + "}", told)
        lines = []
        for name in flat:
            lines += ["", f"`vecmat.flat.{name}`", ""]
            lines += [f"- {title}: {CONTRACTS[name][tag]}." for tag, title in TITLES.items() if CONTRACTS[name].get(tag)]
        if lines:
            before, separator, examples = text.partition("\nExamples\n--------")
            if "\nNotes\n-----" not in before:
                before += "\n\nNotes\n-----"
            before = before.rstrip() + "\n\nThe contract of what is called, in whose words a missing cell is one that this" \
                " layer makes of a NaN:\n"
            text = before + "\n".join(lines) + "\n" + (separator and "\n" + separator.lstrip() + examples)
        function.__doc__ = text
        return function

    return complete
