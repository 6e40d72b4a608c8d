"""Quantiles, with and without weights."""

from __future__ import annotations

from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._columns import by_column, length_along
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, mask_of, vector, weights_of

__all__ = ["median", "quantile", "quantile_summary"]


@documented("VB_V_QuantileM", "VB_V_QuantileMW")
def quantile(x: ArrayLike, q: float, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
             missing: str = "omit", axis: int = 0) -> Any:
    """Quantile: by interpolation (rule 7 of Hyndman and Fan), with unequal weights by a step rule.

    Parameters
    ----------
    {x}
    q : float
        A probability from 0 to 1.
    {weights}
    {exclude}
    missing : {'omit', 'count'}, optional
        'count' lets missing values stand in front of all others, as the library's plain quantile does.
    {axis}

    Returns
    -------
    float, array or Series
        NaN where no value is left, and where a counted missing value is the quantile or next to it.

    Notes
    -----
    As numpy.quantile with method='linear', which has no missing values. Weights that are all equal give the interpolated
    quantile, unequal ones a step rule: the result can jump when the last two weights become equal.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.quantile(birds["body_mass_g"], 0.25)
    3550.0
    >>> vm.quantile([1.0, 2.0, 3.0], 0.5, weights=[1, 1, 5])
    3.0
    """
    if not 0.0 <= q <= 1.0:
        raise ValueError(f"q: expected a probability from 0 to 1, got {q!r}")
    if missing not in ("omit", "count"):
        raise ValueError(f"missing: expected 'omit' or 'count', got {missing!r}")
    n = length_along(x, axis)
    w, mask = None if weights is None else weights_of(weights, n), mask_of(exclude, n)

    def one(v: Floats) -> float:
        if missing == "count":
            return _counting(v, w, mask, q)
        if w is None:
            return flat.VB_V_QuantileM(v, n, mask, q)
        return flat.VB_V_QuantileMW(v, n, mask, w, q)
    return by_column(x, axis, one)


def _counting(v: Floats, w: Optional[Floats], mask: Any, q: float) -> float:
    keep = slice(None) if mask is None else mask == 0
    kept = np.ascontiguousarray(v[keep])
    if kept.size == 0:
        return MISSING
    if w is None:
        found = flat.VB_V_Quantile(kept, kept.size, q)
    else:
        found = flat.VB_V_QuantileW(kept, kept.size, np.ascontiguousarray(w[keep]), q)
    # A neighbour that is the missing value draws the interpolated result down to its size: no number is there.
    return MISSING if found < -1e300 and (kept == MISSING).any() else found


@documented("VB_V_QuantileM", "VB_V_QuantileMW")
def median(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None, axis: int = 0) -> Any:
    """Median of what is present.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {axis}

    Returns
    -------
    float, array or Series

    Notes
    -----
    As numpy.nanmedian, which has no weights and warns where nothing is left.

    Examples
    --------
    >>> vm.median([3.0, None, 1.0, 2.0])
    2.0
    """
    return quantile(x, 0.5, weights=weights, exclude=exclude, axis=axis)


@documented("Cpp_V_Quantiles13")
def quantile_summary(x: ArrayLike) -> dict[float, float]:
    """Thirteen quantiles at once, by a rule of their own that is symmetric about the median.

    Parameters
    ----------
    {x}

    Returns
    -------
    dict
        The quantile for each of 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9 and 0.95; NaN where no
        value is present. Missing values are left out.

    Notes
    -----
    No method of numpy.quantile gives these: positions are (n-1)p + 0.5 up to the middle and (n-1)p + 1 above it.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.quantile_summary(birds["body_mass_g"])[0.75]
    4750.0
    """
    v = vector(x)
    kept = v[v != MISSING]
    out = np.full(13, np.nan)
    if kept.size:
        flat.Cpp_V_Quantiles13(kept, kept.size, out)
    probabilities = (0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95)
    return dict(zip(probabilities, (float(cell) for cell in out)))
