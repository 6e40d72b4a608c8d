"""Least squares, collinearity, Newton steps."""

from __future__ import annotations

import warnings
from dataclasses import dataclass
from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike, NDArray

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, column_vector, labelled, table, values, vector, weights_of
from vecmat._results import PrecisionWarning, Result

__all__ = ["Collinearity", "LeastSquares", "collinearity", "ols"]


@dataclass(frozen=True, repr=False)
class LeastSquares(Result):
    """Coefficients with the intercept last, as `terms` names them."""

    terms: list[str]
    coefficients: Any
    standard_errors: Any
    fitted: Any
    r_squared: float
    rows: int

    def predict(self, x: ArrayLike) -> Floats:
        """Fitted values of other rows; only for a fit without powers and products."""
        X, _ = table(np.reshape(vector(x), (-1, 1)) if np.ndim(x) == 1 else x)
        slopes = np.asarray(self.coefficients)[:-1]
        if X.shape[1] != slopes.size:
            raise ValueError(f"x: expected {slopes.size} columns, got {X.shape[1]}")
        present = np.where(X == MISSING, np.nan, X)
        return np.asarray(present @ slopes + float(np.asarray(self.coefficients)[-1]))


@dataclass(frozen=True, repr=False)
class Collinearity(Result):
    """For each variable: what the others do not explain of it, its inverse, and whether it is kept."""

    tolerance: Any
    vif: Any
    kept: NDArray[np.bool_]


def _terms(names: list[str], degree: int, interactions: bool) -> list[str]:
    terms = [name if power == 1 else f"{name}^{power}" for power in range(1, degree + 1) for name in names]
    if interactions and degree > 1:
        terms += [f"{a}:{b}" for i, a in enumerate(names) for b in names[i + 1:]]
    return terms + ["intercept"]


@documented("RunOLSBasic2")
def ols(x: ArrayLike, y: ArrayLike, *, weights: Optional[ArrayLike] = None, degree: int = 1, interactions: bool = False,
        intercept: bool = True, tolerance: float = 1e-8) -> LeastSquares:
    """Ordinary or weighted least squares.

    Rows with a missing cell are left out, and have NaN as fitted values. The flat functions take correlations pair by pair
    instead, and multiply missing cells where columns are widened.

    Parameters
    ----------
    x : array_like, shape (n, p) or (n,)
        Explanatory variables.
    y : array_like, shape (n,)
        The response.
    {weights}
    degree : {1, 2, 3}, optional
        Highest power of each variable.
    interactions : bool, optional
        Products of pairs of variables as well; with a degree above 1.
    intercept : bool, optional
        False fits through the origin.
    tolerance : float, optional
        A column enters where those before it leave this part of it unexplained; others get the coefficient 0.

    Returns
    -------
    LeastSquares
        `terms`, `coefficients`, `standard_errors`, `fitted`, `r_squared`, `rows`.

    Warns
    -----
    PrecisionWarning
        Where 1 - R2 is below 1e-12: the standard errors are then rounding errors; and where no degree of freedom is left.

    Notes
    -----
    statsmodels counts only columns that entered in the degrees of freedom, and takes weights as inverse variances.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> fit = vm.ols(birds["flipper_length_mm"], birds["body_mass_g"])
    >>> fit.coefficients.round(3)
    array([   49.686, -5780.831])
    """
    vector_given = np.ndim(x) == 1
    X, labels = table(np.reshape(vector(x), (-1, 1))) if vector_given else table(x)
    n, p = X.shape
    response, of_y = column_vector(y, "y")
    if response.size != n:
        raise ValueError(f"y: expected {n} values, got {response.size}")
    if degree not in (1, 2, 3):
        raise ValueError(f"degree: expected 1, 2 or 3, got {degree!r}")
    if interactions and degree == 1:
        raise ValueError("interactions: only with a degree above 1")
    w = weights_of(weights, n)
    kept = ~((X == MISSING).any(axis=1) | (response == MISSING))
    Z, z, v = np.asfortranarray(X[kept]), np.ascontiguousarray(response[kept]), np.ascontiguousarray(w[kept])
    m = Z.shape[0]
    names = [str(name) for name in labels.columns] if labels.columns is not None else \
        (["x"] if vector_given else [f"x{j + 1}" for j in range(p)])
    terms = _terms(names, degree, interactions)
    size = 1 + degree * p + (p * (p - 1) // 2 if interactions and p > 0 else 0)
    beta, errors, fitted = np.zeros(size), np.zeros(size), np.zeros(m)
    flat.RunOLSBasic2(m, p, Z, z, v, degree, -1 if interactions else 0, 0 if intercept else -1, float(tolerance), beta,
                      errors, fitted)
    r_squared = _r_squared(z, fitted, v, intercept)
    if 1.0 - r_squared < 1e-12:
        warnings.warn("1 - R2 is below 1e-12: the standard errors are rounding errors", PrecisionWarning, stacklevel=2)
    elif m <= len(terms) - (0 if intercept else 1):
        warnings.warn("no degree of freedom is left: the standard errors mean nothing", PrecisionWarning, stacklevel=2)
    whole = np.full(n, np.nan)
    whole[kept] = fitted
    index = labels.index if labels.index is not None else of_y.index
    labelled_terms = terms if labels.columns is not None else None
    return LeastSquares(terms, labelled(beta[:len(terms)], labelled_terms), labelled(errors[:len(terms)], labelled_terms),
                        labelled(whole, index), r_squared, m)


def _r_squared(y: Floats, fitted: Floats, w: Floats, intercept: bool) -> float:
    if not y.size:
        return float("nan")
    around = float(np.dot(w, y) / w.sum()) if intercept and w.sum() > 0.0 else 0.0
    of_y = float(np.dot(w, (y - around) ** 2))
    return 1.0 - float(np.dot(w, (y - fitted) ** 2)) / of_y if of_y > 0.0 else float("nan")


@documented("VB_CheckTolerance")
def collinearity(r: ArrayLike, *, tolerance: float = 1e-8) -> Collinearity:
    """Tolerance and variance inflation of variables, from their correlations.

    Parameters
    ----------
    r : array_like, shape (p, p)
        Correlations.
    tolerance : float, optional
        A variable of which the others leave less unexplained is not kept.

    Returns
    -------
    Collinearity
        `tolerance`, `vif` (NaN where the tolerance is 0), `kept`.

    Notes
    -----
    statsmodels has variance_inflation_factor, for one variable at a time.

    Examples
    --------
    >>> vm.collinearity([[1.0, 0.6], [0.6, 1.0]]).vif
    array([1.5625, 1.5625])
    """
    R, labels = table(r, "r", square=True)
    if (R == MISSING).any():
        raise ValueError("r: a correlation is missing")
    p = R.shape[0]
    status, found, vif = np.zeros(p, dtype=np.int32), np.zeros(p), np.zeros(p)
    flat.VB_CheckTolerance(R, p, 1, np.ones(1, dtype=np.int32), 0, np.ones(p, dtype=np.int32), float(tolerance), 0, -1, 0,
                           0, status, found, vif)
    return Collinearity(labelled(values(found), labels.columns), labelled(values(vif), labels.columns), (status == -1) & (found >= tolerance))
