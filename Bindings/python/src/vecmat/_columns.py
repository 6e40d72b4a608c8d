"""One number for each column of a table, or for a vector."""

from __future__ import annotations

from typing import Any, Callable, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat._inputs import Floats, cells, is_vector, labelled, labels_of, numbers, values


def by_column(x: ArrayLike, axis: int, one: Callable[[Floats], float]) -> Any:
    """`one` of a vector, or of each column (axis 0) or row (axis 1) of a table; labels kept, NaN where it is missing."""
    if is_vector(x):
        return values(one(cells(x)))
    array = numbers(x, "x")
    if array.ndim == 1:
        return values(one(cells(array)))
    if array.ndim != 2:
        raise ValueError(f"x: expected one or two dimensions, got the shape {array.shape}")
    if axis not in (0, 1):
        raise ValueError(f"axis: expected 0 or 1, got {axis!r}")
    labels = labels_of(x)
    table = cells(array if axis == 0 else array.T)
    result = np.array([one(table[:, j]) for j in range(table.shape[1])], dtype=np.float64)
    return labelled(values(result), labels.columns if axis == 0 else labels.index)


def length_along(x: ArrayLike, axis: int) -> int:
    """How many values enter each result."""
    shape = np.shape(x)
    return int(shape[axis]) if len(shape) == 2 and axis in (0, 1) else int(shape[0]) if shape else 0


def divisor_codes(ddof: Optional[int], divisor: Optional[str]) -> tuple[int, int]:
    """The library's `sample` and `freqWeights` for a divisor by its name."""
    if ddof is not None:
        if divisor is not None:
            raise ValueError("ddof: say either ddof or divisor")
        if ddof not in (0, 1):
            raise ValueError(f"ddof: expected 0 or 1, got {ddof!r}")
        divisor = "frequency" if ddof == 1 else "population"
    codes = {"frequency": (-1, -1), "reliability": (-1, 0), "population": (0, 0), None: (-1, -1)}
    if divisor not in codes:
        raise ValueError(f"divisor: expected 'frequency', 'reliability' or 'population', got {divisor!r}")
    return codes[divisor]
