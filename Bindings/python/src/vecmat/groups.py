"""Groups of rows, and what is distinct."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike, NDArray

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, labelled, one_column, table, values, vector, weights_of
from vecmat._results import Result
from vecmat.qualitative import categories
from vecmat.quantiles import median
from vecmat.spread import maximum, minimum, total
from vecmat.univariate import mean, std, var

__all__ = ["Groups", "Unique", "count_unique", "group_by", "unique", "unique_rows"]


@dataclass(frozen=True, repr=False)
class Groups(Result):
    """A row for each group: `keys` in order, `sizes`, and a table with an aggregate of each column."""

    keys: Any
    sizes: Any
    table: Any


@dataclass(frozen=True, repr=False)
class Unique(Result):
    rows: Any
    counts: Any
    first: Any


@documented("VB_V_ExtractDistinct")
def unique(x: ArrayLike) -> Floats:
    """The distinct values in ascending order, without the missing one.

    Parameters
    ----------
    {x}

    Returns
    -------
    array

    Notes
    -----
    numpy.unique keeps one NaN at the end.

    Examples
    --------
    >>> vm.unique([3.0, 1.0, None, 3.0])
    array([1., 3.])
    """
    v = vector(x)
    kept = v[v != MISSING]
    if not kept.size:
        return np.asarray(kept)
    out, count = np.empty(kept.size), np.empty(1, dtype=np.int32)
    flat.VB_V_ExtractDistinct(kept, kept.size, out, count)
    return np.sort(out[:count[0]])


@documented("VB_V_NbDistinct", "Cpp_V_NbDistinctStr")
def count_unique(x: Any) -> int:
    """Number of distinct values, of numbers or strings. Missing ones do not count.

    Parameters
    ----------
    x : array_like, shape (n,)
        Numbers or strings.

    Returns
    -------
    int

    Notes
    -----
    As pandas' nunique.

    Examples
    --------
    >>> vm.count_unique(["a", "b", None, "a"])
    2
    """
    try:
        v = vector(x)
    except TypeError:
        given = one_column(x)
        kept = [cell for cell in given.cells if cell]
        return flat.Cpp_V_NbDistinctStr(kept, len(kept)) if kept else 0
    present = v[v != MISSING]
    return flat.VB_V_NbDistinct(present, present.size) if present.size else 0


@documented("VB_M_Dedupe")
def unique_rows(x: ArrayLike) -> Unique:
    """The distinct rows of a table, in the order in which they first come.

    Parameters
    ----------
    {table}

    Returns
    -------
    Unique
        `rows`, how often each comes as `counts`, and where it comes `first`, from 0. Missing cells equal each other.

    Notes
    -----
    numpy.unique(axis=0) sorts the rows and takes each NaN for another; pandas' drop_duplicates has no counts.

    Examples
    --------
    >>> vm.unique_rows([[1.0, 2.0], [3.0, 4.0], [1.0, 2.0]])
    Unique
      rows: array([[1., 2.],
                   [3., 4.]])
      counts: array([2, 1])
      first: array([0, 1])
    """
    X, labels = table(x)
    n, p = X.shape
    keyed = np.asfortranarray(np.column_stack([X, np.arange(n, dtype=np.float64)]))
    out, kept = np.zeros((n, p + 3), order="F"), np.zeros(1, dtype=np.int32)
    if n:
        flat.VB_M_Dedupe(keyed, n, p, kept, out)
    rows = out[:kept[0]]
    return Unique(labelled(values(np.asfortranarray(rows[:, :p])), None, labels.columns), rows[:, p].astype(np.int64),
                  rows[:, p + 1].astype(np.int64))


AGGREGATES = {"sum": total, "mean": mean, "median": median, "std": std, "var": var, "min": minimum, "max": maximum}


@documented("VB_M_GroupBy")
def group_by(x: ArrayLike, keys: Any, aggregate: str = "mean", *, weights: Optional[ArrayLike] = None) -> Groups:
    """One row for each group, with an aggregate of each column over the rows of the group.

    Missing cells are left out of every aggregate, and each row keeps its own weight; the flat functions count missing
    cells in medians, and give every group the weights of the first rows.

    Parameters
    ----------
    {x}
    keys : array_like, shape (n,)
        The group of each row: numbers or strings. Rows without one are left out.
    aggregate : {'sum', 'mean', 'median', 'std', 'var', 'min', 'max'}, optional
        What is made of the rows.
    {weights}

    Returns
    -------
    Groups
        `keys` in ascending order, `sizes`, `table`.

    Notes
    -----
    As pandas' groupby, which has no weights.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.group_by(birds["body_mass_g"], birds["species"], "median")
    Groups
      keys: ['Adelie', 'Chinstrap', 'Gentoo']
      sizes: array([152,  68, 124])
      table: array([3700., 3700., 5000.])
    """
    if aggregate not in AGGREGATES:
        raise ValueError(f"aggregate: expected one of {', '.join(map(repr, AGGREGATES))}, got {aggregate!r}")
    if aggregate in ("min", "max") and weights is not None:
        raise ValueError("weights: have no meaning for 'min' and 'max'")
    X, labels = table(np.reshape(vector(x), (-1, 1))) if np.ndim(x) == 1 else table(x)
    place, names = places_of_keys(keys, X.shape[0])
    w = None if weights is None else weights_of(weights, X.shape[0])
    function: Any = AGGREGATES[aggregate]
    out, sizes = np.empty((len(names), X.shape[1]), order="F"), np.bincount(place[place >= 0], minlength=len(names))
    # Stable, so that the rows of a group stay in their order.
    by_group, start = np.argsort(place, kind="stable"), int((place < 0).sum())
    for k, size in enumerate(sizes):
        rows = by_group[start:start + size]
        start += size
        more = {} if w is None else {"weights": w[rows]}
        out[k] = function(np.asfortranarray(X[rows]), **more)
    result = out[:, 0] if np.ndim(x) == 1 else out
    if labels.columns is None:
        return Groups(names, sizes, result)
    return Groups(names, sizes, labelled(result, names, labels.columns))


def places_of_keys(keys: Any, n: int) -> tuple[NDArray[np.int64], Any]:
    """The place of each row's key among the distinct ones, -1 for none, and these in ascending order."""
    try:
        v = vector(keys, "keys")
        names: Any = unique(v)
        place = np.searchsorted(names, v) if names.size else np.zeros(v.size, dtype=np.int64)
        place = np.where(v == MISSING, -1, place)
    except TypeError:
        cells = one_column(keys).cells
        names = categories(list(dict.fromkeys(cells))).names
        places = {name: k for k, name in enumerate(names)}
        place = np.array([places.get(cell or "", -1) for cell in cells], dtype=np.int64)
    if place.size != n:
        raise ValueError(f"keys: expected {n} keys, got {place.size}")
    return place.astype(np.int64), names
