"""Centring, standardising, rescaling."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._columns import divisor_codes
from vecmat._documents import documented
from vecmat._inputs import (MISSING, Floats, Labels, column_vector, labelled, mask_of, numbers, table, untyped, values,
                            vector, weights_of)
from vecmat._results import Result

__all__ = ["Standardized", "apply_standardization", "center", "normalize", "rescale", "scale", "standardize",
           "standardize_by_group"]


@dataclass(frozen=True, repr=False)
class Standardized(Result):
    """The scores, and what `apply_standardization` takes to do the same to other rows."""

    scores: Any
    mean: Any
    std: Any


def _as_table(x: ArrayLike) -> tuple[Floats, Labels, bool]:
    """A table; a vector becomes one of one column."""
    if np.ndim(x) == 1:
        v, labels = column_vector(x)
        return v.reshape(-1, 1), labels, True
    X, labels = table(x)
    return X, labels, False


def _back(Z: Floats, labels: Labels, is_vector: bool) -> Any:
    Z = values(np.asfortranarray(Z))
    return labelled(Z[:, 0], labels.index, name=labels.name) if is_vector else labelled(Z, labels.index, labels.columns)


def _keeping_missing(X: Floats, Z: Floats) -> Floats:
    Z[X == MISSING] = MISSING
    return Z


@documented("VB_M_CenterW")
def center(x: ArrayLike, *, weights: Optional[ArrayLike] = None) -> Any:
    """Subtract the mean of each column.

    Missing cells stay missing here; the flat function shifts them like any number.

    Parameters
    ----------
    {x}
    {weights}

    Returns
    -------
    array, Series or DataFrame

    Notes
    -----
    scikit-learn's scale(with_std=False), with weights.

    Examples
    --------
    >>> vm.center([1.0, None, 3.0])
    array([-1., nan,  1.])
    """
    X, labels, is_vector = _as_table(x)
    n, p = X.shape
    Z = np.empty((n, p), order="F")
    flat.VB_M_CenterW(X, n, p, weights_of(weights, n), Z)
    return _back(_keeping_missing(X, Z), labels, is_vector)


@documented("VB_M_ReduceW")
def scale(x: ArrayLike, *, weights: Optional[ArrayLike] = None, ddof: Optional[int] = None,
          divisor: Optional[str] = None) -> Any:
    """Divide each column by its standard deviation, without centring.

    Missing cells stay missing here; the flat function divides them like any number.

    Parameters
    ----------
    {x}
    {weights}
    {divisor}

    Returns
    -------
    array, Series or DataFrame
        0.0 in a column without spread.

    Notes
    -----
    scikit-learn's scale(with_mean=False) divides by the deviation with divisor n, and leaves columns without spread.

    Examples
    --------
    >>> vm.scale([2.0, 4.0, 6.0])
    array([1., 2., 3.])
    """
    X, labels, is_vector = _as_table(x)
    n, p = X.shape
    Z = np.empty((n, p), order="F")
    untyped.VB_M_ReduceW(X, n, p, weights_of(weights, n), Z, *divisor_codes(ddof, divisor))
    return _back(_keeping_missing(X, Z), labels, is_vector)


@documented("VB_M_StandardizeW3")
def standardize(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None,
                ddof: Optional[int] = None, divisor: Optional[str] = None) -> Standardized:
    """Centre each column and divide it by its standard deviation.

    Parameters
    ----------
    {x}
    {weights}
    exclude : array_like of bool, shape (n,), optional
        Rows that do not enter the means and deviations. They are standardised like the others.
    {divisor}

    Returns
    -------
    Standardized
        `scores`, `mean`, `std`. A column without spread becomes 0.0, missing cells too.

    Notes
    -----
    scikit-learn's StandardScaler divides by the deviation with divisor n.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.standardize(birds["bill_length_mm"]).scores[:3].round(3)
    array([-0.883, -0.81 , -0.663])
    """
    X, labels, is_vector = _as_table(x)
    n, p = X.shape
    w, codes = weights_of(weights, n), divisor_codes(ddof, divisor)
    mask = mask_of(exclude, n)
    Z, mean, std = X.copy(order="F"), np.empty(p), np.empty(p)
    if mask is None:
        untyped.VB_M_StandardizeW3(Z, n, p, w, mean, std, *codes)
    else:
        untyped.VB_M_MeanStDev(X, n, p, mean, std, mask, w, *codes, 0)
        flat.Cpp_M_StandardizeApply2(Z, n, p, mean, std)
        _keeping_missing(X, Z)
    scores = _back(Z, labels, is_vector)
    if is_vector:
        return Standardized(scores, values(float(mean[0])), values(float(std[0])))
    return Standardized(scores, labelled(values(mean), labels.columns), labelled(values(std), labels.columns))


@documented("Cpp_M_StandardizeApply2")
def apply_standardization(x: ArrayLike, mean: ArrayLike, std: ArrayLike) -> Any:
    """Standardise rows by means and deviations that are known.

    Parameters
    ----------
    {x}
    mean, std : float or array_like, shape (p,)
        As `standardize` gives them.

    Returns
    -------
    array, Series or DataFrame
        NaN throughout in a column whose deviation is not above 0. Missing cells stay missing here; the flat function
        computes them like any number.

    Notes
    -----
    As the method `transform` of scikit-learn's StandardScaler.

    Examples
    --------
    >>> vm.apply_standardization([3.0, 5.0], mean=1.0, std=2.0)
    array([1., 2.])
    """
    X, labels, is_vector = _as_table(x)
    n, p = X.shape
    Z = X.copy(order="F")
    centre = vector(np.atleast_1d(numbers(mean, "mean")), "mean", p)
    spread = vector(np.atleast_1d(numbers(std, "std")), "std", p)
    flat.Cpp_M_StandardizeApply2(Z, n, p, centre, spread)
    Z[:, centre == MISSING] = MISSING
    return _back(_keeping_missing(X, Z), labels, is_vector)


@documented("Cpp_M_StandardizeByGroup")
def standardize_by_group(x: ArrayLike, groups: ArrayLike, *, scale: bool = True, ddof: int = 1) -> Any:
    """Centre each column within each group, and divide by the deviation of the group.

    Parameters
    ----------
    {x}
    groups : array_like, shape (n,)
        A label for each row.
    scale : bool, optional
        False centres only.
    ddof : {0, 1}, optional
        1 divides by m - 1, 0 by m.

    Returns
    -------
    array, Series or DataFrame
        Without spread 0.0.

    Notes
    -----
    pandas takes a groupby and a transform of one's own.

    Examples
    --------
    >>> vm.standardize_by_group([1.0, 3.0, 10.0, 20.0], ["a", "a", "b", "b"], scale=False)
    array([-1.,  1., -5.,  5.])
    """
    X, labels, is_vector = _as_table(x)
    n, p = X.shape
    found, codes = np.unique(np.asarray([str(group) for group in np.asarray(groups, dtype=object).ravel()]),
                             return_inverse=True)
    if codes.size != n:
        raise ValueError(f"groups: expected {n} labels, got {codes.size}")
    Z = X.copy(order="F")
    flat.Cpp_M_StandardizeByGroup(Z, n, p, codes.astype(np.float64) + 1.0, found.size, -1 if scale else 0,
                                  divisor_codes(ddof, None)[0])
    return _back(_keeping_missing(X, Z), labels, is_vector)


@documented("VB_M_Normalize")
def normalize(x: ArrayLike, *, weights: Optional[ArrayLike] = None, exclude: Optional[ArrayLike] = None) -> Any:
    """Divide each column by its Euclidean norm times the root of n / (n - 1).

    Parameters
    ----------
    {x}
    {weights}
    exclude : array_like of bool, shape (n,), optional
        Rows that stay as they are and do not enter the norm.

    Returns
    -------
    array, Series or DataFrame
        NaN in a column of zeros.

    Notes
    -----
    scikit-learn's normalize(axis=0) lacks the factor, and leaves a column of zeros.

    Examples
    --------
    >>> vm.normalize([3.0, 4.0]).round(4)
    array([0.8485, 1.1314])
    """
    X, labels, is_vector = _as_table(x)
    n, p = X.shape
    Z = X.copy(order="F")
    flat.VB_M_Normalize(Z, n, p, np.empty(p), mask_of(exclude, n), weights_of(weights, n))
    return _back(Z, labels, is_vector)


@documented("VB_V_Rescale")
def rescale(x: ArrayLike, low: float = 0.0, high: float = 1.0, *, exclude: Optional[ArrayLike] = None) -> Any:
    """Bring a vector to a range.

    Parameters
    ----------
    {x}
    low, high : float, optional
        Ends of the range.
    {exclude}

    Returns
    -------
    array or Series
        The middle of the range throughout where there is no spread. Missing values and excluded rows are NaN.

    Notes
    -----
    As scikit-learn's minmax_scale, which gives `low` where there is no spread.

    Examples
    --------
    >>> vm.rescale([1.0, None, 3.0, 5.0])
    array([0. , nan, 0.5, 1. ])
    """
    v, labels = column_vector(x)
    mask = mask_of(exclude, v.size)
    mask = np.zeros(v.size, dtype=np.int16) if mask is None else mask
    mask[v == MISSING] = -1
    out = np.empty(v.size)
    flat.VB_V_Rescale(v, v.size, float(low), float(high), mask, out)
    return labelled(values(out), labels.index, name=labels.name)
