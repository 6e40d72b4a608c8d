"""What functions of a whole table, often a square one, share.

The library's tolerances are absolute. So each table is first multiplied by a power of two, which changes no digit, that
brings its largest cell near 1, and the result is scaled back: a table in other units gives the same result in other units.
"""

from __future__ import annotations

import numpy as np
from numpy.linalg import LinAlgError
from numpy.typing import ArrayLike

from vecmat._inputs import MISSING, Floats, Labels, table


def complete(given: ArrayLike, name: str, square: bool = True) -> tuple[Floats, Labels]:
    X, labels = table(given, name, square=square)
    if (X == MISSING).any():
        raise ValueError(f"{name}: a cell is missing; a decomposition needs all of them")
    if not np.isfinite(X).all():
        raise ValueError(f"{name}: a cell is infinite; a decomposition needs finite ones")
    return X, labels


def exponent_of(X: Floats) -> int:
    """The power of two nearest to the largest cell."""
    largest = float(np.abs(X).max()) if X.size else 0.0
    return int(np.frexp(largest)[1]) if largest > 0.0 else 0


def scaled_by(X: Floats, exponent: int) -> Floats:
    return X.copy(order="F") if exponent == 0 else np.asfortranarray(np.ldexp(X, -exponent))


def singular(name: str = "a") -> LinAlgError:
    return LinAlgError(f"{name}: the table is singular, or nearly so")
