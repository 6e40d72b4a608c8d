"""Categories: their names, frequencies and codes, and dummy columns."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Optional, Union

import numpy as np
from numpy.typing import ArrayLike, NDArray

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import (MISSING, Floats, labelled, one_column, strings, table, untyped, values, vector, weights_of,
                            whole)
from vecmat._results import Result

__all__ = ["Categories", "Dummies", "binarize", "categories", "codes", "cross_table", "dummies", "frequency",
           "is_indicator", "is_weights", "join_labels", "make_unique", "mode"]


@dataclass(frozen=True, repr=False)
class Categories(Result):
    """The categories of one column, their weights, and which is the most frequent."""

    names: list[str]
    weights: Any
    mode: str


@dataclass(frozen=True, repr=False)
class Dummies(Result):
    table: Any
    names: list[str]


@documented("VB_M_InfoQuali")
def categories(x: Any, *, weights: Optional[ArrayLike] = None, sort: bool = True) -> Categories:
    """The categories of a column with their weights.

    Parameters
    ----------
    x : array_like of str, shape (n,)
        None, NaN and the empty string are missing.
    {weights}
    sort : bool, optional
        By value where every category begins with a number, else as texts; False keeps the order of appearance.

    Returns
    -------
    Categories
        `names`, `weights`, `mode`.

    Notes
    -----
    As pandas' value_counts, which has no weights and sorts by count.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.categories(birds["species"])
    Categories
      names: ['Adelie', 'Chinstrap', 'Gentoo']
      weights: array([152.,  68., 124.])
      mode: 'Adelie'
    """
    given = one_column(x)
    n = given.rows
    w = weights_of(weights, n)
    if not any(given.cells):
        return Categories([], np.empty(0), "")
    modes: list[Any] = [None]
    names: list[Any] = [None] * n
    sizes, count = np.empty((1, n), order="F"), np.empty(1, dtype=np.int32)
    flat.VB_M_InfoQuali(given.cells, n, 1, modes, np.empty(1), np.empty(1, dtype=np.int32), count, names, sizes, 0, w,
                        -1 if sort else 0)
    return Categories([str(name) for name in names[:count[0]]], sizes[0, :count[0]].copy(), str(modes[0]))


@documented("VB_V_Mode")
def mode(x: Any, *, weights: Optional[ArrayLike] = None) -> Optional[str]:
    """The category with the largest weight, the first of equals.

    Parameters
    ----------
    x : array_like of str, shape (n,)
        None, NaN and the empty string are missing.
    {weights}

    Returns
    -------
    str or None
        None where every cell is missing.

    Notes
    -----
    scipy.stats.mode takes numbers alone, and of equals the smallest.

    Examples
    --------
    >>> vm.mode(["b", "a", None, "a"])
    'a'
    """
    given = one_column(x)
    return flat.VB_V_Mode(given.cells, given.rows, 0, weights_of(weights, given.rows)) or None


@documented("VB_V_Freq", "VB_V_FreqStr")
def frequency(x: Any, value: Union[str, float], *, weights: Optional[ArrayLike] = None, tolerance: float = 1e-12) -> float:
    """Weight of the cells that have a value.

    Parameters
    ----------
    x : array_like, shape (n,)
        Numbers, or strings where `value` is one.
    value : float or str
        The value to look for.
    {weights}
    tolerance : float, optional
        A number matches where it differs by less.

    Returns
    -------
    float

    Notes
    -----
    numpy.count_nonzero(x == value) has no weights.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.frequency(birds["species"], "Gentoo")
    124.0
    """
    if isinstance(value, str):
        given = one_column(x)
        return flat.VB_V_FreqStr(given.cells, given.rows, weights_of(weights, given.rows), value)
    v = vector(x)
    return flat.VB_V_Freq(v, v.size, weights_of(weights, v.size), float(value), float(tolerance))


CODINGS = {"indicator": (0, 2), "baseline": (1, 0), "effect": (2, 0), "weighted_effect": (3, 0)}


@documented("VB_BuildDisjunctiveTable")
def dummies(x: Any, *, coding: str = "indicator") -> Dummies:
    """Dummy columns for the categories of a table.

    Parameters
    ----------
    x : array_like of str, shape (n,) or (n, p)
        Categories; None, NaN and the empty string are missing.
    coding : {'indicator', 'baseline', 'effect', 'weighted_effect'}, optional
        A column for each category; or none for the first of each variable, whose rows are 0, -1, or minus the ratio of
        frequencies in the other columns.

    Returns
    -------
    Dummies
        `table` of floats, and `names` of its columns. A missing cell makes all columns of its variable NaN.

    Notes
    -----
    As pandas.get_dummies, which gives 0 for a missing cell and has neither effect coding.

    Examples
    --------
    >>> vm.dummies(["a", "b", None]).table
    array([[ 1.,  0.],
           [ 0.,  1.],
           [nan, nan]])
    """
    if coding not in CODINGS:
        raise ValueError(f"coding: expected one of {', '.join(map(repr, CODINGS))}, got {coding!r}")
    given = strings(x)
    n, p = given.rows, given.cols
    found = [categories(given.column(j)) for j in range(p)]
    names_of = given.labels.columns if given.labels.columns is not None else [given.labels.name or ""] * p
    most = max([len(column.names) for column in found], default=0)
    texts, sizes = [""] * (p * most), np.zeros((p, most), order="F")
    for j, column in enumerate(found):
        for k, name in enumerate(column.names):
            texts[j + p * k] = name
            sizes[j, k] = column.weights[k]
    counts = np.array([len(column.names) for column in found], dtype=np.int32)
    number, baseline = CODINGS[coding]
    dropped = 0 if number == 0 else 1
    width = int(counts.sum())
    out = np.zeros((n, width), order="F")
    if n and width:
        flat.VB_BuildDisjunctiveTable(given.cells, n, p, width, counts, texts, sizes, most, out, number, baseline)
    baselines = np.concatenate([[0], np.cumsum(counts)[:-1]]) if p else np.empty(0)
    kept = np.array([not dropped or k not in baselines for k in range(width)], dtype=bool)
    out = np.asfortranarray(out[:, kept])
    names = [f"{prefix}_{name}" if prefix != "" else name
             for prefix, column in zip(names_of, found) for name in column.names[dropped:]]
    return Dummies(labelled(values(out), given.labels.index, names if given.labels.index is not None else None), names)


@documented("VB_M_ReplaceStrByCodes")
def codes(x: Any, *, first: int = 0) -> tuple[Floats, list[str]]:
    """The place of each cell in the sorted list of its column's categories.

    Parameters
    ----------
    x : array_like of str, shape (n,)
        Categories; None, NaN and the empty string are missing.
    first : int, optional
        The code of the first category.

    Returns
    -------
    tuple
        The codes, NaN where the cell is missing, and the names of the categories.

    Notes
    -----
    As pandas.factorize with sort=True, which gives -1 for a missing cell.

    Examples
    --------
    >>> vm.codes(["b", "a", None, "b"])
    (array([ 1.,  0., nan,  1.]), ['a', 'b'])
    """
    given = one_column(x)
    names = categories(given.cells).names
    out = np.full((given.rows, 1), MISSING, order="F")
    if names:
        flat.VB_M_ReplaceStrByCodes(given.cells, given.rows, 1, np.array([len(names)], dtype=np.int32), names, None,
                                    whole(first, "first"), out)
    out[[not cell for cell in given.cells], 0] = MISSING
    return values(np.asfortranarray(out[:, 0])), names


@documented("VB_M_Binarize")
def binarize(x: ArrayLike) -> Any:
    """0 for what is 0, 1 for the rest; missing cells stay.

    Parameters
    ----------
    {table}

    Returns
    -------
    array or DataFrame

    Notes
    -----
    scikit-learn's binarize asks whether a value is above a threshold.

    Examples
    --------
    >>> vm.binarize([[0.0, -3.0], [None, 2.0]])
    array([[ 0.,  1.],
           [nan,  1.]])
    """
    X, labels = table(x)
    out = np.empty(X.shape, order="F")
    untyped.VB_M_Binarize(X, *X.shape, out)
    return labelled(values(out), labels.index, labels.columns)


@documented("Cpp_M_MergeStringsByRow")
def join_labels(x: Any, separator: str = " ") -> list[str]:
    """The texts of each row, joined.

    Parameters
    ----------
    x : array_like of str, shape (n, p)
        Texts.
    separator : str, optional
        What stands between them.

    Returns
    -------
    list of str

    Notes
    -----
    pandas has it as str.cat, for two columns at a time.

    Examples
    --------
    >>> vm.join_labels([["a", "b"], ["c", "d"]], "-")
    ['a-b', 'c-d']
    """
    given = strings(x)
    out: list[Any] = [None] * given.rows
    flat.Cpp_M_MergeStringsByRow(given.cells, given.rows, given.cols, separator, out)
    return [str(text) for text in out]


@documented("VB_V_ReplaceDoubles")
def make_unique(labels: Any) -> list[str]:
    """Labels with a number behind those that repeat one.

    Parameters
    ----------
    labels : array_like of str
        Labels.

    Returns
    -------
    list of str

    Notes
    -----
    pandas does it when it reads a file; R has it as make.unique.

    Examples
    --------
    >>> vm.make_unique(["a", "b", "a", "a"])
    ['a', 'b', 'a2', 'a3']
    """
    given = one_column(labels)
    cells: list[Any] = list(given.cells)
    flat.VB_V_ReplaceDoubles(cells, len(cells))
    return [str(cell) for cell in cells]


@documented("VB_V_IsWeights")
def is_weights(x: ArrayLike) -> bool:
    """Whether values can be weights: none negative, their sum above 0.

    Parameters
    ----------
    {x}

    Returns
    -------
    bool

    Notes
    -----
    NumPy finds out while it divides.

    Examples
    --------
    >>> vm.is_weights([0.0, 2.5])
    True
    """
    v = vector(x)
    return flat.VB_V_IsWeights(v, v.size) != 0


@documented("VB_V_IsIndicator")
def is_indicator(x: ArrayLike) -> bool:
    """Whether values are an indicator: 0 and 1 alone, as the contract below tells.

    Parameters
    ----------
    {x}

    Returns
    -------
    bool

    Notes
    -----
    NumPy has none.

    Examples
    --------
    >>> vm.is_indicator([0.0, 1.0, 1.0])
    True
    """
    v = vector(x)
    return flat.VB_V_IsIndicator(v, v.size) != 0


@documented("VB_M_ProductTrAA")
def cross_table(x: Any, y: Any) -> tuple[NDArray[np.int64], list[str], list[str]]:
    """How often the categories of two columns come together.

    Parameters
    ----------
    x, y : array_like of str, shape (n,)
        Categories; a row with a missing one is left out.

    Returns
    -------
    tuple
        The counts, the categories of `x` by row, those of `y` by column.

    Notes
    -----
    As pandas.crosstab.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.cross_table(birds["species"], birds["sex"])
    (array([[73, 73],
           [34, 34],
           [58, 61]]), ['Adelie', 'Chinstrap', 'Gentoo'], ['female', 'male'])
    """
    a, b = dummies(one_column(x).cells), dummies(one_column(y).cells)
    A, B = table(a.table)[0], table(b.table, "y", rows=a.table.shape[0])[0]
    kept = ~((A == MISSING).any(axis=1) | (B == MISSING).any(axis=1))
    A, B = np.asfortranarray(A[kept]), np.asfortranarray(B[kept])
    out = np.empty((A.shape[1], B.shape[1]), order="F")
    flat.VB_M_ProductTrAB(A, A.shape[0], A.shape[1], B, B.shape[1], out)
    return out.astype(np.int64), a.names, b.names
