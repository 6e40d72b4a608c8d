"""Means, variances, shape: what a column of numbers is like."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._columns import by_column, divisor_codes, length_along
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, cells, is_vector, mask_of, untyped, values, vector, weights_of
from vecmat._results import Result

__all__ = ["CentreAndSpread", "GeometricMean", "Moments", "geometric_mean", "harmonic_mean", "kurtosis", "mean",
           "mean_absolute", "mean_std", "mean_var", "moments", "skewness", "std", "var"]


@dataclass(frozen=True, repr=False)
class CentreAndSpread(Result):
    mean: Any
    spread: Any


@dataclass(frozen=True, repr=False)
class GeometricMean(Result):
    mean: float
    std: float


@dataclass(frozen=True, repr=False)
class Moments(Result):
    """Both forms of skewness and excess kurtosis, with the standard errors of the sample forms."""

    mean: float
    var: float
    population_skewness: float
    population_kurtosis: float
    skewness: float
    kurtosis: float
    skewness_error: float
    kurtosis_error: float


def _with_zeros(weights: Floats, exclude: Optional[ArrayLike], zero_weights: str) -> Optional[Any]:
    mask = mask_of(exclude, weights.size)
    if zero_weights == "counted":
        return mask
    if zero_weights != "skipped":
        raise ValueError(f"zero_weights: expected 'counted' or 'skipped', got {zero_weights!r}")
    skipped = (weights == 0.0).astype(np.int16) * np.int16(-1)
    return skipped if mask is None else np.minimum(mask, skipped)


@documented("VB_V_Mean2", "VB_V_Mean")
def mean(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None, axis: int = 0) -> Any:
    """Arithmetic mean of what is present.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {axis}

    Returns
    -------
    float, array or Series
        NaN where no value enters.

    Notes
    -----
    Unlike numpy.mean and numpy.average, leaves out missing values and their weights; sums in row order, so that the
    digits are the same on every machine. Of a table it gives a mean for each column, as pandas does.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.mean(birds["bill_length_mm"])
    43.92192982456142
    >>> vm.mean([4.0, None, 5.0], weights=[1, 7, 3])
    4.75
    """
    if weights is None and exclude is None:
        if is_vector(x):
            v = cells(x)
            return values(flat.VB_V_Mean2(v, len(v)))
        return by_column(x, axis, lambda v: flat.VB_V_Mean2(v, len(v)))
    n = length_along(x, axis)
    w, mask = weights_of(weights, n), mask_of(exclude, n)
    return by_column(x, axis, lambda v: flat.VB_V_Mean(v, n, mask, w))


@documented("VB_V_MeanAbs")
def mean_absolute(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
                  axis: int = 0) -> Any:
    """Mean of the absolute values.

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
    NumPy has it as mean(abs(x)), without weights and missing values.

    Examples
    --------
    >>> vm.mean_absolute([-1.0, 2.0, None])
    1.5
    """
    n = length_along(x, axis)
    w, mask = weights_of(weights, n), mask_of(exclude, n)
    return by_column(x, axis, lambda v: flat.VB_V_MeanAbs(v, n, mask, w))


@documented("Cpp_V_GMeanGSD")
def geometric_mean(x: ArrayLike, *, weights: Optional[ArrayLike] = None,
                   exclude: Optional[ArrayLike] = None) -> GeometricMean:
    """Geometric mean and geometric standard deviation of positive values.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}

    Returns
    -------
    GeometricMean
        `mean` and `std`; both NaN where a value is 0 or below.

    Notes
    -----
    scipy.stats.gmean has no missing values, and gives 0 where one value is 0.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.geometric_mean(birds["body_mass_g"])
    GeometricMean
      mean: 4127.79
      std: 1.20684
    """
    v = vector(x)
    centre, spread = np.empty(1), np.empty(1)
    flat.Cpp_V_GMeanGSD(v, v.size, mask_of(exclude, v.size), weights_of(weights, v.size), centre, spread)
    return GeometricMean(values(float(centre[0])), values(float(spread[0])))


@documented("Cpp_V_HarmonicMean")
def harmonic_mean(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
                  axis: int = 0) -> Any:
    """Harmonic mean.

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
    scipy.stats.hmean refuses negative values and knows no missing ones.

    Examples
    --------
    >>> vm.harmonic_mean([40.0, 60.0])
    47.99999999999999
    """
    n = length_along(x, axis)
    w, mask = weights_of(weights, n), mask_of(exclude, n)
    return by_column(x, axis, lambda v: flat.Cpp_V_HarmonicMean(v, n, mask, w))


@documented("VB_V_Var")
def var(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
        ddof: Optional[int] = None, divisor: Optional[str] = None, zero_weights: str = "counted", axis: int = 0) -> Any:
    """Variance.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {divisor}
    {zero_weights}
    {axis}

    Returns
    -------
    float, array or Series
        NaN where the divisor is 0 or no value enters.

    Notes
    -----
    numpy.var divides by n unless ddof=1 is asked for, and has no weights; pandas divides by n - 1, as here.

    Examples
    --------
    >>> vm.var([1.0, 2.0, None, 4.0])
    2.3333333333333335
    >>> vm.var([1.0, 2.0, 4.0], weights=[1, 2, 3], divisor="reliability")
    2.2083333333333335
    """
    n = length_along(x, axis)
    w = weights_of(weights, n)
    mask, codes = _with_zeros(w, exclude, zero_weights), divisor_codes(ddof, divisor)
    return by_column(x, axis, lambda v: float(untyped.VB_V_Var(v, n, mask, w, *codes)))


@documented("VB_V_Stdev")
def std(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
        ddof: Optional[int] = None, divisor: Optional[str] = None, zero_weights: str = "counted", axis: int = 0) -> Any:
    """Standard deviation.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {divisor}
    {zero_weights}
    {axis}

    Returns
    -------
    float, array or Series

    Notes
    -----
    numpy.std divides by n unless ddof=1 is asked for, and has no weights.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.std(birds["bill_depth_mm"])
    1.9747931568167807
    """
    n = length_along(x, axis)
    w = weights_of(weights, n)
    mask, codes = _with_zeros(w, exclude, zero_weights), divisor_codes(ddof, divisor)
    return by_column(x, axis, lambda v: float(untyped.VB_V_Stdev(v, n, mask, w, *codes)))


def _two(function: Any, x: ArrayLike, weights: Optional[ArrayLike], exclude: Optional[ArrayLike], ddof: Optional[int],
         divisor: Optional[str]) -> CentreAndSpread:
    v = vector(x)
    first, second = np.empty(1), np.empty(1)
    function(v, v.size, first, second, mask_of(exclude, v.size), weights_of(weights, v.size), *divisor_codes(ddof, divisor))
    return CentreAndSpread(values(float(first[0])), values(float(second[0])))


@documented("VB_V_MeanVar")
def mean_var(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
             ddof: Optional[int] = None, divisor: Optional[str] = None) -> CentreAndSpread:
    """Mean and variance of a vector in one pass.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {divisor}

    Returns
    -------
    CentreAndSpread
        `mean`, and the variance as `spread`.

    Notes
    -----
    NumPy takes two calls, which read the data three times.

    Examples
    --------
    >>> vm.mean_var([1.0, 2.0, 4.0])
    CentreAndSpread
      mean: 2.33333
      spread: 2.33333
    """
    return _two(flat.VB_V_MeanVar, x, weights, exclude, ddof, divisor)


@documented("VB_V_MeanStdev")
def mean_std(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
             ddof: Optional[int] = None, divisor: Optional[str] = None) -> CentreAndSpread:
    """Mean and standard deviation of a vector in one pass.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {divisor}

    Returns
    -------
    CentreAndSpread
        `mean`, and the standard deviation as `spread`.

    Notes
    -----
    NumPy takes two calls, which read the data three times.

    Examples
    --------
    >>> vm.mean_std([1.0, 2.0, 4.0])
    CentreAndSpread
      mean: 2.33333
      spread: 1.52753
    """
    return _two(flat.VB_V_MeanStdev, x, weights, exclude, ddof, divisor)


@documented("VB_V_MeanVarSkewPKurtP")
def moments(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
            ddof: Optional[int] = 0, divisor: Optional[str] = None) -> Moments:
    """Mean, variance, skewness and excess kurtosis, with standard errors.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {divisor}

    Returns
    -------
    Moments
        `skewness` and `kurtosis` are the sample forms (G1 and G2 of Joanes and Gill for ddof=0).

    Notes
    -----
    scipy.stats.skew and kurtosis have neither weights nor standard errors; bias=False is the sample form here.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.moments(birds["body_mass_g"])
    Moments
      mean: 4201.75
      var: 641251
      population_skewness: 0.468264
      population_kurtosis: -0.726243
      skewness: 0.470329
      kurtosis: -0.719222
      skewness_error: 0.131877
      kurtosis_error: 0.263002
    """
    v = vector(x)
    n = v.size
    w, mask = weights_of(weights, n), mask_of(exclude, n)
    codes = divisor_codes(None if divisor else ddof, divisor)
    out = [np.full(1, MISSING) for _ in range(8)]
    untyped.VB_V_MeanVarSkewPKurtP(v, n, *out, mask, w, *codes)
    kept = (v != MISSING) if mask is None else (v != MISSING) & (mask == 0)
    if not kept.any():
        out[0][0] = MISSING
    return Moments(*(values(float(cell[0])) for cell in out))


@documented()
def skewness(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
             axis: int = 0, population: bool = False) -> Any:
    """Skewness: the sample form G1, or the population form.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {axis}
    population : bool, optional
        The form divided by powers of the variance with divisor W.

    Returns
    -------
    float, array or Series

    Notes
    -----
    scipy.stats.skew gives the population form unless bias=False is asked for.

    Examples
    --------
    >>> vm.skewness([1.0, 2.0, 3.0, 10.0])
    1.763632614803888
    """
    def one(v: Floats) -> float:
        found = moments(v, weights=weights, exclude=exclude)
        return found.population_skewness if population else found.skewness
    return by_column(x, axis, one)


@documented()
def kurtosis(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
             axis: int = 0, population: bool = False) -> Any:
    """Excess kurtosis: the sample form G2, or the population form.

    Parameters
    ----------
    {x}
    {weights}
    {exclude}
    {axis}
    population : bool, optional
        The form divided by powers of the variance with divisor W.

    Returns
    -------
    float, array or Series

    Notes
    -----
    scipy.stats.kurtosis gives the population form unless bias=False is asked for.

    Examples
    --------
    >>> vm.kurtosis([1.0, 2.0, 3.0, 4.0, 10.0])
    3.1520000000000032
    """
    def one(v: Floats) -> float:
        found = moments(v, weights=weights, exclude=exclude)
        return found.population_kurtosis if population else found.kurtosis
    return by_column(x, axis, one)
