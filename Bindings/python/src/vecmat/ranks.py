"""Sorting, ranks, and how good forecasts were."""

from __future__ import annotations

from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, column_vector, labelled, table, values, vector, weights_of, whole

__all__ = ["argsort", "is_sorted", "mean_absolute_error", "mean_absolute_percentage_error", "mean_percentage_error",
           "rank", "root_mean_squared_error", "sort", "sort_rows", "step_size", "take_rows"]


@documented("VB_V_GetRanksDbl", "VB_V_GetRanksTiesDbl")
def rank(x: ArrayLike, *, ties: str = "average", weights: Optional[ArrayLike] = None) -> Any:
    """Ranks from 1.

    Parameters
    ----------
    {x}
    ties : {'average', 'dense'}, optional
        Equal values share the mean of their places, or the next whole number.
    weights : array_like, shape (n,), optional
        Weigh the places of a run of ties; only with ties='average'.

    Returns
    -------
    array or Series
        NaN for a missing value.

    Notes
    -----
    As scipy.stats.rankdata with nan_policy='omit', and pandas' rank.

    Examples
    --------
    >>> vm.rank([3.0, 1.0, None, 3.0])
    array([2.5, 1. , nan, 2.5])
    >>> vm.rank([3.0, 1.0, None, 3.0], ties="dense")
    array([ 2.,  1., nan,  2.])
    """
    v, labels = column_vector(x)
    n = v.size
    ranks = np.full(n, MISSING)
    if ties == "average":
        if n:
            flat.VB_V_GetRanksTiesDbl(v, n, weights_of(weights, n), ranks, np.empty(1, dtype=np.int32), np.zeros(n))
    elif ties == "dense":
        if weights is not None:
            raise ValueError("weights: only with ties='average'")
        present = v != MISSING
        kept, found = v[present], np.empty(int(present.sum()))
        flat.VB_V_GetRanksDbl(kept, kept.size, found)
        ranks[present] = found
    else:
        raise ValueError(f"ties: expected 'average' or 'dense', got {ties!r}")
    return labelled(values(ranks), labels.index, name=labels.name)


@documented("VB_SortQVectorDbl")
def sort(x: ArrayLike, *, descending: bool = False) -> Floats:
    """The values in order; missing ones at the end.

    Parameters
    ----------
    {x}
    descending : bool, optional
        From the largest to the smallest.

    Returns
    -------
    array

    Notes
    -----
    numpy.sort has no descending order; NaN stand at the end in both.

    Examples
    --------
    >>> vm.sort([3.0, None, 1.0], descending=True)
    array([ 3.,  1., nan])
    """
    v = vector(x)
    kept = v[v != MISSING]
    if kept.size:
        flat.VB_SortQVectorDbl(kept, kept.size, 1, kept.size, -1 if descending else 0)
    return np.concatenate([kept, np.full(v.size - kept.size, np.nan)])


@documented("VB_SortQDbl")
def argsort(x: ArrayLike, *, descending: bool = False) -> np.ndarray[Any, np.dtype[np.int64]]:
    """Positions, from 0, of the values in order; those of missing values at the end. Ties keep their order.

    Parameters
    ----------
    {x}
    descending : bool, optional
        From the largest to the smallest.

    Returns
    -------
    array of int

    Notes
    -----
    As numpy.argsort with kind='stable', which has no descending order.

    Examples
    --------
    >>> vm.argsort([3.0, None, 1.0])
    array([2, 0, 1])
    """
    v = vector(x)
    present = np.flatnonzero(v != MISSING)
    rows = present.astype(np.float64)
    if rows.size:
        flat.VB_SortQDbl(rows, rows.size, 1, 1, rows.size, v[present], np.zeros(rows.size), 0, -1 if descending else 0, 0)
    return np.concatenate([rows.astype(np.int64), np.flatnonzero(v == MISSING)])


@documented("VB_SortMatrixSeqQP1toP2Dbl")
def sort_rows(x: ArrayLike, *, by: Optional[tuple[int, int]] = None) -> Any:
    """The rows of a table in the order of its columns, the first first.

    Parameters
    ----------
    {table}
    by : pair of int, optional
        First and last of the columns that decide, from 0; all where it is left out.

    Returns
    -------
    array or DataFrame
        Missing cells come first.

    Notes
    -----
    numpy.lexsort gives positions and takes the last key first; pandas' sort_values puts missing cells last.

    Examples
    --------
    >>> vm.sort_rows([[2.0, 1.0], [1.0, 9.0], [1.0, 3.0]])
    array([[1., 3.],
           [1., 9.],
           [2., 1.]])
    """
    X, labels = table(x)
    n, p = X.shape
    if by is None:
        first, last = 0, p - 1
    elif isinstance(by, (list, tuple)) and len(by) == 2:
        first, last = whole(by[0], "by", 0, p - 1), whole(by[1], "by", 0, p - 1)
    else:
        raise TypeError(f"by: expected a pair of columns, got {by!r}")
    if first > last:
        raise ValueError(f"by: the first column, {first}, is behind the last, {last}")
    keyed = np.asfortranarray(np.column_stack([X, np.arange(n, dtype=np.float64)]))
    if n and p:
        flat.VB_SortMatrixSeqQP1toP2Dbl(keyed, n, p + 1, first + 1, last + 1, -1)
    order = keyed[:, p].astype(np.int64)
    index = labels.index[order] if labels.index is not None else None
    return labelled(values(np.asfortranarray(keyed[:, :p])), index, labels.columns)


@documented("VB_SortApply")
def take_rows(x: ArrayLike, order: ArrayLike) -> Any:
    """The rows of a table in a given order.

    Parameters
    ----------
    {table}
    order : array_like of int, shape (n,)
        Row numbers from 0, one for each row of the result, as `argsort` gives them.

    Returns
    -------
    array or DataFrame

    Notes
    -----
    As x[order] in NumPy; a negative number is an error.

    Examples
    --------
    >>> vm.take_rows([[1.0, 2.0], [3.0, 4.0]], [1, 0])
    array([[3., 4.],
           [1., 2.]])
    """
    X, labels = table(x)
    n, p = X.shape
    rows = np.asarray(order)
    if rows.dtype.kind not in "iu" or rows.shape != (n,):
        raise ValueError(f"order: expected {n} row numbers, got an array of {rows.dtype} with the shape {rows.shape}")
    if n and (rows.min() < 0 or rows.max() >= n):
        raise ValueError(f"order: a row number is not from 0 to {n - 1}")
    out = np.empty((n, p), order="F")
    flat.VB_SortApply(X, n, p, rows.astype(np.float64) + 1.0, out)
    return labelled(values(out), labels.index[rows] if labels.index is not None else None, labels.columns)


@documented("VB_V_IsSorted")
def is_sorted(x: ArrayLike, *, strict: bool = False) -> bool:
    """Whether no value is below the one ahead of it. A missing value is below all others.

    Parameters
    ----------
    {x}
    strict : bool, optional
        Whether equal values are out of order, too.

    Returns
    -------
    bool

    Notes
    -----
    pandas has it as is_monotonic_increasing, which is false wherever a value is missing.

    Examples
    --------
    >>> vm.is_sorted([1.0, 2.0, 2.0])
    True
    """
    v = vector(x)
    return flat.VB_V_IsSorted(v, v.size, -1 if strict else 0) != 0 if v.size else True


@documented("VB_V_TimeIntervalSize")
def step_size(t: ArrayLike) -> float:
    """The step of evenly spaced times.

    Parameters
    ----------
    t : array_like
        Times in any order, at least two.

    Returns
    -------
    float
        NaN where the steps differ by more than 1e-6 of their size.

    Notes
    -----
    pandas infers the frequency of dates alone. Times are scaled first: the library's tolerance is absolute.

    Examples
    --------
    >>> vm.step_size([0.0, 0.5, 1.0, 1.5])
    0.5
    """
    v = vector(t, "t")
    if v.size < 2:
        raise ValueError(f"t: expected at least 2 times, got {v.size}")
    if (v == MISSING).any() or not np.isfinite(v).all():
        return float("nan")
    ordered = np.sort(v)
    size = float(ordered[1] - ordered[0])
    if size <= 0.0:
        return float("nan")
    exponent = int(np.frexp(size)[1])
    found = flat.VB_V_TimeIntervalSize(np.ldexp(ordered, -exponent), v.size, -1)
    return float(np.ldexp(found, exponent)) if found > 0.0 and found != MISSING else float("nan")


def _errors(function: Any, y: ArrayLike, forecast: ArrayLike, weights: Optional[ArrayLike], start: int) -> float:
    actual = vector(y, "y")
    n = actual.size
    predicted = vector(forecast, "forecast", n)
    if n == 0:
        return float("nan")
    whole(start, "start", 0, n - 1)
    kept = (actual[start:] != MISSING) & (predicted[start:] != MISSING)
    if not kept.any():
        return float("nan")
    return values(float(function(actual, predicted, n, weights_of(weights, n), start + 1)))


@documented("VB_MAPE")
def mean_absolute_percentage_error(y: ArrayLike, forecast: ArrayLike, *, weights: Optional[ArrayLike] = None,
                                   start: int = 0) -> float:
    """Mean of the absolute errors in per cent of what came, where that is not 0.

    Parameters
    ----------
    y, forecast : array_like, shape (n,)
        What came, and what was forecast.
    {weights}
    start : int, optional
        The first row that counts, from 0.

    Returns
    -------
    float

    Notes
    -----
    scikit-learn gives a share, not per cent, and divides by a tiny number where y is 0.

    Examples
    --------
    >>> vm.mean_absolute_percentage_error([10.0, 20.0], [11.0, 18.0])
    10.000000000000004
    """
    return _errors(flat.VB_MAPE, y, forecast, weights, start)


@documented("VB_MPE")
def mean_percentage_error(y: ArrayLike, forecast: ArrayLike, *, weights: Optional[ArrayLike] = None,
                          start: int = 0) -> float:
    """Mean of the errors in per cent of what came, where that is not 0: above 0 where forecasts were too low.

    Parameters
    ----------
    y, forecast : array_like, shape (n,)
        What came, and what was forecast.
    {weights}
    start : int, optional
        The first row that counts, from 0.

    Returns
    -------
    float

    Notes
    -----
    NumPy, SciPy and scikit-learn have none.

    Examples
    --------
    >>> vm.mean_percentage_error([10.0, 20.0], [9.0, 18.0])
    10.0
    """
    return _errors(flat.VB_MPE, y, forecast, weights, start)


@documented("VB_MAE")
def mean_absolute_error(y: ArrayLike, forecast: ArrayLike, *, weights: Optional[ArrayLike] = None, start: int = 0) -> float:
    """Mean of the absolute errors.

    Parameters
    ----------
    y, forecast : array_like, shape (n,)
        What came, and what was forecast.
    {weights}
    start : int, optional
        The first row that counts, from 0.

    Returns
    -------
    float

    Notes
    -----
    As scikit-learn's mean_absolute_error, which has no missing values.

    Examples
    --------
    >>> vm.mean_absolute_error([1.0, 2.0, None], [2.0, 2.0, 9.0])
    0.5
    """
    return _errors(flat.VB_MAE, y, forecast, weights, start)


@documented("VB_RMSE")
def root_mean_squared_error(y: ArrayLike, forecast: ArrayLike, *, divisor: Optional[int] = None) -> float:
    """Root of the mean squared error.

    Parameters
    ----------
    y, forecast : array_like, shape (n,)
        What came, and what was forecast.
    divisor : int, optional
        Divides the sum of squares; the count of complete rows where it is left out.

    Returns
    -------
    float

    Notes
    -----
    scikit-learn has no missing values and no divisor of one's own, such as n less the number of parameters.

    Examples
    --------
    >>> vm.root_mean_squared_error([1.0, 2.0], [2.0, 4.0])
    1.5811388300841898
    """
    actual = vector(y, "y")
    predicted = vector(forecast, "forecast", actual.size)
    kept = (actual != MISSING) & (predicted != MISSING)
    count = int(kept.sum()) if divisor is None else whole(divisor, "divisor", 1)
    if count < 1:
        return float("nan")
    a, b = actual[kept], predicted[kept]
    return float(flat.VB_RMSE(a, a.size, 1, b, count)) if a.size else float("nan")
