"""Covariances and correlations, weighted and pair by pair."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._columns import divisor_codes
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, labelled, mask_of, table, untyped, values, vector, weights_of
from vecmat._results import Result

__all__ = ["CovarianceAndMoments", "corr", "corr_of_cov", "cov", "cov_and_moments", "cross_corr", "cross_cov", "pearson"]


@dataclass(frozen=True, repr=False)
class CovarianceAndMoments(Result):
    matrix: Any
    mean: Any
    std: Any
    var: Any


def _rows_left_out(x: Floats, exclude: Optional[ArrayLike], missing: str) -> Any:
    mask = mask_of(exclude, x.shape[0])
    if missing == "pairwise":
        return mask
    if missing != "complete":
        raise ValueError(f"missing: expected 'pairwise' or 'complete', got {missing!r}")
    incomplete = -(x == MISSING).any(axis=1).astype(np.int16)
    return incomplete if mask is None else np.minimum(mask, incomplete)


def _matrix(x: ArrayLike, weights: Optional[ArrayLike], exclude: Optional[ArrayLike], missing: str, corr: int,
            codes: tuple[int, int]) -> Any:
    X, labels = table(x)
    n, p = X.shape
    out = np.empty((p, p), order="F")
    untyped.VB_M_CovCorr(X, n, p, out, corr, _rows_left_out(X, exclude, missing), weights_of(weights, n), *codes)
    return labelled(values(out), labels.columns, labels.columns)


def _divisor_of_correlations(weights: Optional[ArrayLike]) -> tuple[int, int]:
    """W with weights: they may sum to 1 or less, where W - 1 would turn all signs, or leave 0/0."""
    return divisor_codes(1 if weights is None else 0, None)


@documented("VB_M_CovCorr")
def cov(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
        ddof: Optional[int] = None, divisor: Optional[str] = None, missing: str = "pairwise") -> Any:
    """Covariances of the columns of a table.

    Parameters
    ----------
    {table}
    {weights}
    {exclude}
    {divisor}
    missing : {'pairwise', 'complete'}, optional
        A missing cell leaves its row out of the pairs of its column, or out of all.

    Returns
    -------
    array or DataFrame, shape (p, p)

    Notes
    -----
    numpy.cov has no missing values and takes variables in rows; pandas' cov has no weights. Pair by pair the result need
    not be positive definite: see `nearest_correlation`.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> bills = np.column_stack([birds["bill_length_mm"], birds["bill_depth_mm"]])
    >>> vm.cov(bills).round(3)
    array([[29.807, -2.534],
           [-2.534,  3.9  ]])
    """
    return _matrix(x, weights, exclude, missing, 0, divisor_codes(ddof, divisor))


@documented("VB_CorrelPearson", "VB_M_CovCorr")
def corr(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
         missing: str = "pairwise") -> Any:
    """Pearson's correlations of the columns of a table.

    Parameters
    ----------
    {table}
    {weights}
    {exclude}
    missing : {'pairwise', 'columns', 'complete'}, optional
        A missing cell leaves its row out of the pairs of its column. 'columns' divides the covariance of a pair by the
        deviations of the two columns, each from all of its own rows, as the flat function does: such a correlation can lie
        beyond 1. 'complete' leaves the row out everywhere.

    Returns
    -------
    array or DataFrame, shape (p, p)
        NaN for a pair of which one has no spread.

    Notes
    -----
    As pandas' corr, which has no weights; numpy.corrcoef has neither weights nor missing values.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> bills = np.column_stack([birds["bill_length_mm"], birds["bill_depth_mm"]])
    >>> vm.corr(bills).round(3)
    array([[ 1.   , -0.235],
           [-0.235,  1.   ]])
    """
    if missing == "pairwise":
        X, labels = table(x)
        if (X == MISSING).any():
            w, mask = weights_of(weights, X.shape[0]), mask_of(exclude, X.shape[0])
            return labelled(_by_pairs(X, w, mask), labels.columns, labels.columns)
    return _matrix(x, weights, exclude, "pairwise" if missing == "columns" else missing, -1,
                   _divisor_of_correlations(weights))


def _by_pairs(X: Floats, w: Floats, mask: Any) -> Floats:
    n, p = X.shape
    out = np.empty((p, p), order="F")
    for j in range(p):
        for i in range(j, p):
            out[i, j] = out[j, i] = flat.VB_CorrelPearson(X[:, i], X[:, j], n, mask, w, 0, -1)
    return values(out)


@documented("VB_M_CovCorrAndMeanStDevVar")
def cov_and_moments(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
                    ddof: Optional[int] = None, divisor: Optional[str] = None,
                    correlation: bool = False) -> CovarianceAndMoments:
    """Covariances or correlations, with means, deviations and variances from the same pass.

    Parameters
    ----------
    {table}
    {weights}
    {exclude}
    {divisor}
    correlation : bool, optional
        Correlations in place of covariances.

    Returns
    -------
    CovarianceAndMoments
        `matrix`, `mean`, `std`, `var`.

    Notes
    -----
    NumPy and pandas take four calls.

    Examples
    --------
    >>> vm.cov_and_moments([[1.0, 2.0], [2.0, 4.0], [4.0, 5.0]]).mean.round(3)
    array([2.333, 3.667])
    """
    X, labels = table(x)
    n, p = X.shape
    out, three = np.empty((p, p), order="F"), [np.empty(p) for _ in range(3)]
    untyped.VB_M_CovCorrAndMeanStDevVar(X.copy(order="F"), n, p, out, *three, -1 if correlation else 0, mask_of(exclude, n),
                                     weights_of(weights, n), *divisor_codes(ddof, divisor), 0, 0)
    return CovarianceAndMoments(labelled(values(out), labels.columns, labels.columns),
                                *(labelled(values(part), labels.columns) for part in three))


def _cross(x: ArrayLike, y: ArrayLike, weights: Optional[ArrayLike], exclude: Optional[ArrayLike], corr: int,
           codes: tuple[int, int]) -> Any:
    X, labels = table(x)
    n, p = X.shape
    Y, of_y = table(y, "y", rows=n)
    out = np.empty((p, Y.shape[1]), order="F")
    untyped.VB_M_CorrMatMat(X, n, p, Y, Y.shape[1], out, mask_of(exclude, n), weights_of(weights, n), corr, 0, *codes)
    return labelled(values(out), labels.columns, of_y.columns)


@documented("VB_M_CorrMatMat")
def cross_cov(x: ArrayLike, y: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
              ddof: Optional[int] = None, divisor: Optional[str] = None) -> Any:
    """Covariances of the columns of one table with those of another.

    Parameters
    ----------
    {table}
    y : array_like, shape (n, q)
        The other table, with the same rows.
    {weights}
    {exclude}
    {divisor}

    Returns
    -------
    array or DataFrame, shape (p, q)

    Notes
    -----
    numpy.cov computes all p + q by p + q.

    Examples
    --------
    >>> vm.cross_cov([[1.0], [2.0], [4.0]], [[2.0], [4.0], [5.0]]).round(3)
    array([[2.167]])
    """
    return _cross(x, y, weights, exclude, 0, divisor_codes(ddof, divisor))


@documented("VB_M_CorrMatMat")
def cross_corr(x: ArrayLike, y: ArrayLike, *, weights: Optional[ArrayLike] = None,
               exclude: Optional[ArrayLike] = None) -> Any:
    """Correlations of the columns of one table with those of another.

    Columns are brought to a spread of 1 first: the fallback for a product of variances up to 1e-12 is for columns without
    spread, not for small units.

    Parameters
    ----------
    {table}
    y : array_like, shape (n, q)
        The other table, with the same rows.
    {weights}
    {exclude}

    Returns
    -------
    array or DataFrame, shape (p, q)

    Notes
    -----
    numpy.corrcoef computes all p + q by p + q.

    Examples
    --------
    >>> vm.cross_corr([[1.0], [2.0], [4.0]], [[2.0], [4.0], [5.0]]).round(3)
    array([[0.929]])
    """
    X, labels = table(x)
    Y, of_y = table(y, "y", rows=X.shape[0])
    result = _cross(_of_unit_size(X), _of_unit_size(Y), weights, exclude, -1, _divisor_of_correlations(weights))
    return labelled(result, labels.columns, of_y.columns)


def _of_unit_size(X: Floats) -> Floats:
    """Each column times a power of two, which changes no digit, so that its spread is near 1."""
    present = np.where(X == MISSING, np.nan, X)
    result = X.copy(order="F")
    for j in range(X.shape[1]):
        column = present[:, j][~np.isnan(present[:, j])]
        spread = float(np.ptp(column)) if column.size else 0.0
        if spread > 0.0 and np.isfinite(spread):
            kept = X[:, j] != MISSING
            result[kept, j] = np.ldexp(X[kept, j], -int(np.frexp(spread)[1]))
    return result


@documented("VB_CorrelPearson")
def pearson(x: ArrayLike, y: ArrayLike, *, weights: Optional[ArrayLike] = None,
            exclude: Optional[ArrayLike] = None) -> float:
    """Pearson's correlation of two vectors.

    Parameters
    ----------
    {x}
    y : array_like
        As many numbers.
    {weights}
    {exclude}

    Returns
    -------
    float
        NaN where one of the two has no spread; 1.0 where neither has any.

    Notes
    -----
    scipy.stats.pearsonr also tests the correlation, and has neither weights nor missing values.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> round(vm.pearson(birds["flipper_length_mm"], birds["body_mass_g"]), 4)
    0.8712
    """
    u = vector(x)
    v = vector(y, "y", u.size)
    return values(flat.VB_CorrelPearson(u, v, u.size, mask_of(exclude, u.size), weights_of(weights, u.size), 0, -1))


@documented("VB_M_CorrMatFromCovMat")
def corr_of_cov(s: ArrayLike) -> Any:
    """Correlations from covariances.

    Parameters
    ----------
    s : array_like, shape (p, p)
        Covariances.

    Returns
    -------
    array or DataFrame, shape (p, p)
        NaN where a variance is not above 0.

    Notes
    -----
    The table is scaled as a whole first, as a variance up to 1e-12 counts as none. statsmodels has it as cov2corr.

    Examples
    --------
    >>> vm.corr_of_cov([[4.0, 1.0], [1.0, 1.0]])
    array([[1. , 0.5],
           [0.5, 1. ]])
    """
    S, labels = table(s, "s", square=True)
    p = S.shape[0]
    scaled, out = S.copy(order="F"), np.empty((p, p), order="F")
    sizes = np.array([np.frexp(d)[1] if 0.0 < d < np.inf else 0 for d in np.diag(S)]) // 2
    kept = S != MISSING
    scaled[kept] = np.ldexp(S, -(sizes[:, None] + sizes[None, :]))[kept]
    flat.VB_M_CorrMatFromCovMat(scaled, p, out)
    return labelled(values(out), labels.columns, labels.columns)
