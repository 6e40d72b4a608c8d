"""What is least, most and far out: ranges, robust deviations, scores; moments of some of the rows."""

from __future__ import annotations

from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._columns import by_column, divisor_codes, length_along
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, column_vector, flags, labelled, mask_of, values, vector, weights_of

__all__ = ["maximum", "mean_absolute_deviation", "mean_where", "median_absolute_deviation", "minimum", "total",
           "value_range", "var_where", "winsorize", "zscores"]


def _where(x: ArrayLike, where: ArrayLike) -> tuple[Floats, Floats]:
    v = vector(x)
    return v, np.abs(flags(where, v.size, "where")).astype(np.float64)


@documented("VB_V_MeanIf", "VB_V_MeanIfW")
def mean_where(x: ArrayLike, where: ArrayLike, *, weights: Optional[ArrayLike] = None) -> float:
    """Mean of the rows where a condition holds.

    Parameters
    ----------
    x : array_like, shape (n,)
        Numbers, NaN for missing.
    where : array_like of bool, shape (n,)
        The rows that enter.
    {weights}

    Returns
    -------
    float
        NaN where none is selected.

    Notes
    -----
    numpy.mean has `where`, too, but no weights and no missing values.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.mean_where(birds["body_mass_g"], np.array(birds["sex"]) == "male")
    4545.684523809524
    """
    v, group = _where(x, where)
    if weights is None:
        return values(flat.VB_V_MeanIf(v, v.size, group, 1.0))
    return values(flat.VB_V_MeanIfW(v, v.size, group, weights_of(weights, v.size), 1.0))


@documented("VB_V_VarIf", "VB_V_VarIfW")
def var_where(x: ArrayLike, where: ArrayLike, *, weights: Optional[ArrayLike] = None, ddof: int = 1) -> float:
    """Variance of the rows where a condition holds.

    Parameters
    ----------
    x : array_like, shape (n,)
        Numbers, NaN for missing.
    where : array_like of bool, shape (n,)
        The rows that enter.
    {weights}
    ddof : {0, 1}, optional
        1 divides by the sum of weights less 1, 0 by the sum of weights.

    Returns
    -------
    float
        NaN where the divisor is not above 0.

    Notes
    -----
    numpy.var has `where`, too, but no weights and no missing values. Rows of weight 0 are left out here.

    Examples
    --------
    >>> vm.var_where([1.0, 2.0, 4.0, 99.0], [True, True, True, False])
    2.3333333333333335
    """
    v, group = _where(x, where)
    sample = divisor_codes(ddof, None)[0]
    if weights is None:
        return values(flat.VB_V_VarIf(v, v.size, group, 1.0, sample))
    w = weights_of(weights, v.size)
    group = np.where(w == 0.0, 0.0, group)
    return values(flat.VB_V_VarIfW(v, v.size, group, w, 1.0, sample))


@documented("Cpp_V_MedianAbsDev")
def median_absolute_deviation(x: ArrayLike, *, centre: Optional[float] = None, weights: Optional[ArrayLike] = None,
                              exclude: Optional[ArrayLike] = None, axis: int = 0) -> Any:
    """Median of the absolute deviations from a centre.

    Parameters
    ----------
    {x}
    centre : float, optional
        The median of the values where it is left out.
    {weights}
    {exclude}
    {axis}

    Returns
    -------
    float, array or Series

    Notes
    -----
    As scipy.stats.median_abs_deviation with scale=1, which has neither weights nor a centre of one's own.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.median_absolute_deviation(birds["bill_length_mm"])
    4.75
    """
    n = length_along(x, axis)
    w, mask = weights_of(weights, n), mask_of(exclude, n)

    def one(v: Floats) -> float:
        middle = flat.VB_V_QuantileMW(v, n, mask, w, 0.5) if centre is None else centre
        return MISSING if middle == MISSING else flat.Cpp_V_MedianAbsDev(v, n, middle, mask, w)
    return by_column(x, axis, one)


@documented("Cpp_V_MeanAbsDev")
def mean_absolute_deviation(x: ArrayLike, *, centre: Optional[float] = None, weights: Optional[ArrayLike] = None,
                            exclude: Optional[ArrayLike] = None, axis: int = 0) -> Any:
    """Mean of the absolute deviations from a centre.

    Parameters
    ----------
    {x}
    centre : float, optional
        The mean of the values where it is left out.
    {weights}
    {exclude}
    {axis}

    Returns
    -------
    float, array or Series

    Notes
    -----
    pandas has dropped its `mad`; NumPy and SciPy have none.

    Examples
    --------
    >>> vm.mean_absolute_deviation([1.0, 2.0, 6.0])
    2.0
    """
    n = length_along(x, axis)
    w, mask = weights_of(weights, n), mask_of(exclude, n)

    def one(v: Floats) -> float:
        middle = flat.VB_V_Mean(v, n, mask, w) if centre is None else centre
        return MISSING if middle == MISSING else flat.Cpp_V_MeanAbsDev(v, n, middle, mask, w)
    return by_column(x, axis, one)


@documented("Cpp_V_Winsorize2")
def winsorize(x: ArrayLike, low: float = 0.05, high: float = 0.95) -> Any:
    """Clip a vector to its own quantiles.

    Parameters
    ----------
    {x}
    low, high : float, optional
        The probabilities of the two quantiles, from 0 to 1.

    Returns
    -------
    array or Series
        Missing values stay, and do not count in the quantiles.

    Notes
    -----
    scipy.stats.mstats.winsorize replaces a number of extreme values instead and takes the upper limit as a tail.

    Examples
    --------
    >>> vm.winsorize([1.0, 2.0, 3.0, 4.0, 100.0], 0.25, 0.75)
    array([2., 2., 3., 4., 4.])
    """
    v, labels = column_vector(x)
    for name, p in (("low", low), ("high", high)):
        if not 0.0 <= p <= 1.0:
            raise ValueError(f"{name}: expected a probability from 0 to 1, got {p!r}")
    present = v != MISSING
    kept = v[present]
    flat.Cpp_V_Winsorize2(kept, kept.size, low, high)
    result = np.full(v.size, MISSING)
    result[present] = kept
    return labelled(values(result), labels.index, name=labels.name)


@documented("Cpp_V_ZScores")
def zscores(x: ArrayLike, *, robust: bool = False) -> Any:
    """Standard scores: by mean and standard deviation, or by median and median absolute deviation.

    Parameters
    ----------
    {x}
    robust : bool, optional
        Deviation from the median, times 0.6745, over the median absolute deviation.

    Returns
    -------
    array or Series
        Missing values stay, and do not enter the statistics. Without spread all are NaN.

    Notes
    -----
    scipy.stats.zscore divides by the deviation with divisor n; here the divisor is m - 1.

    Examples
    --------
    >>> vm.zscores([1.0, 2.0, 6.0])
    array([-0.75592895, -0.37796447,  1.13389342])
    """
    v, labels = column_vector(x)
    present = v != MISSING
    kept = v[present]
    result, found = np.full(v.size, MISSING), np.empty(kept.size)
    flat.Cpp_V_ZScores(kept, kept.size, 1 if robust else 0, np.full(1, MISSING), np.full(1, MISSING), found)
    result[present] = found
    return labelled(values(result), labels.index, name=labels.name)


def _none_excluded(exclude: Optional[ArrayLike], n: int) -> Any:
    mask = mask_of(exclude, n)
    return np.zeros(n, dtype=np.int16) if mask is None else mask


@documented("VB_V_MinMax")
def value_range(x: ArrayLike, *, exclude: Optional[ArrayLike] = None) -> tuple[float, float]:
    """Smallest and largest of the values that are present.

    Parameters
    ----------
    {x}
    {exclude}

    Returns
    -------
    tuple of float
        NaN in both where there is none.

    Notes
    -----
    numpy.nanmin and numpy.nanmax take two passes and warn where there is none.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.value_range(birds["body_mass_g"])
    (2700.0, 6300.0)
    """
    v = vector(x)
    low, high = np.empty(1), np.empty(1)
    flat.VB_V_MinMax(v, v.size, low, high, _none_excluded(exclude, v.size))
    return values(float(low[0])), values(float(high[0]))


@documented()
def minimum(x: ArrayLike, *, exclude: Optional[ArrayLike] = None, axis: int = 0) -> Any:
    """Smallest of the values that are present.

    Parameters
    ----------
    {x}
    {exclude}
    {axis}

    Returns
    -------
    float, array or Series

    Notes
    -----
    numpy.nanmin raises an error for an empty input; here it is NaN.

    Examples
    --------
    >>> vm.minimum([3.0, None, 1.0])
    1.0
    """
    return by_column(x, axis, lambda v: value_range(v, exclude=exclude)[0])


@documented()
def maximum(x: ArrayLike, *, exclude: Optional[ArrayLike] = None, axis: int = 0) -> Any:
    """Largest of the values that are present.

    Parameters
    ----------
    {x}
    {exclude}
    {axis}

    Returns
    -------
    float, array or Series

    Notes
    -----
    numpy.nanmax raises an error for an empty input; here it is NaN.

    Examples
    --------
    >>> vm.maximum([3.0, None, 1.0])
    3.0
    """
    return by_column(x, axis, lambda v: value_range(v, exclude=exclude)[1])


@documented()
def total(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None, axis: int = 0) -> Any:
    """Weighted sum of what is present, in row order.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {axis}

    Returns
    -------
    float, array or Series
        0.0 where no value enters.

    Notes
    -----
    numpy.nansum adds in pairs, whose order depends on the version and the machine.

    Examples
    --------
    >>> vm.total([1.0, None, 2.5])
    3.5
    """
    n = length_along(x, axis)
    w, mask = weights_of(weights, n), mask_of(exclude, n)

    def one(v: Floats) -> float:
        keep = (v != MISSING) if mask is None else (v != MISSING) & (mask == 0)
        kept, of = np.ascontiguousarray(v[keep]), np.ascontiguousarray(w[keep])
        return flat.VB_V_ProductTrV1V2(kept, kept.size, of)
    return by_column(x, axis, one)
