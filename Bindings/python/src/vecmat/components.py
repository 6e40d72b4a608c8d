"""Principal components, past missing cells too; biplots; letters for groups that do not differ."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Callable, Optional, Union

import numpy as np
from numpy.linalg import LinAlgError
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, labelled, table, untyped, values, vector, weights_of, whole
from vecmat._results import Result
from vecmat.covariance import corr, cov
from vecmat.decompositions import eigh
from vecmat.scaling import apply_standardization, standardize

__all__ = ["Biplot", "Components", "axes_to_keep", "biplot", "compact_letters", "nipals_impute", "principal_components",
           "squared_cosines"]


@dataclass(frozen=True, repr=False)
class Components(Result):
    """Eigenvalues, their shares in per cent, loadings in columns, and scores of the rows."""

    eigenvalues: Any
    percent: Any
    loadings: Any
    scores: Any


@dataclass(frozen=True, repr=False)
class Biplot(Result):
    observations: Any
    variables: Any


@documented("VB_M_Eigen")
def principal_components(x: ArrayLike, *, weights: Optional[ArrayLike] = None, scale: bool = True) -> Components:
    """Principal components of a table by the eigenvalues of its correlations or covariances.

    Parameters
    ----------
    {table}
    {weights}
    scale : bool, optional
        Correlations; False takes covariances.

    Returns
    -------
    Components
        `eigenvalues`, `percent`, `loadings`, `scores`. A row with a missing cell has NaN as scores.

    Notes
    -----
    scikit-learn's PCA takes neither missing cells nor weights, and does not scale.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> bills = np.column_stack([birds["bill_length_mm"], birds["bill_depth_mm"]])
    >>> vm.principal_components(bills).percent.round(2)
    array([61.75, 38.25])
    """
    X, labels = table(x)
    matrix = np.asarray(corr(X, weights=weights) if scale else cov(X, weights=weights))
    if np.isnan(matrix).any():
        raise ValueError("x: a column has no spread, or two have no row in common")
    found = eigh(matrix)
    fitted = standardize(X, weights=weights)
    spread = fitted.std if scale else np.ones(X.shape[1])
    Z = np.asarray(apply_standardization(X, np.nan_to_num(fitted.mean), spread))
    scores = np.full((X.shape[0], X.shape[1]), np.nan, order="F")
    kept = ~np.isnan(Z).any(axis=1)
    rows = np.asfortranarray(Z[kept])
    product = np.empty(rows.shape, order="F")
    untyped.VB_M_ProductAB(rows, *rows.shape, found.vectors, rows.shape[1], product)
    scores[kept] = product
    axes = [f"axis{k + 1}" for k in range(X.shape[1])] if labels.columns is not None else None
    return Components(found.values, 100.0 * found.values / found.values.sum(),
                      labelled(found.vectors, labels.columns, axes), labelled(scores, labels.index, axes))


@documented("VB_FilterEigen")
def axes_to_keep(eigenvalues: ArrayLike, *, floor: float = 1e-12, percent: float = 0.0, most: Optional[int] = None,
                 above: float = 0.0) -> int:
    """How many axes to keep.

    Parameters
    ----------
    eigenvalues : array_like
        In descending order.
    floor : float, optional
        Values below it count as none.
    percent : float, optional
        Enough axes for this share of the sum, if it is above 0.
    most : int, optional
        No more than this.
    above : float, optional
        Only values at or above this, if it is above 0: 1.0 is Kaiser's rule.

    Returns
    -------
    int

    Notes
    -----
    scikit-learn's PCA takes the share alone, as n_components.

    Examples
    --------
    >>> vm.axes_to_keep([2.0, 1.5, 0.4, 0.1], percent=80.0)
    2
    """
    v = vector(eigenvalues, "eigenvalues").copy()
    n = v.size
    if not n:
        return 0
    limit = n if most is None else whole(most, "most", 0)
    kept, selected = np.zeros(1, dtype=np.int32), np.zeros(1, dtype=np.int32)
    flat.VB_FilterEigen(v, n, -1, float(floor), float(percent), min(limit, n), float(above), kept, selected, np.empty(n))
    return int(selected[0])


@documented("Cpp_NIPALS")
def nipals_impute(x: ArrayLike, components: int = 2, *, weights: Optional[ArrayLike] = None, tolerance: float = 1e-6,
                  most_in_column: float = 0.5, most_in_table: float = 0.5) -> Any:
    """What principal components rebuild in place of each missing cell (NIPALS).

    Parameters
    ----------
    {table}
    components : int, optional
        How many components rebuild the cells.
    {weights}
    tolerance : float, optional
        When a component is settled.
    most_in_column, most_in_table : float, optional
        The largest shares of missing cells, of a column and of the table.

    Returns
    -------
    array or DataFrame

    Raises
    ------
    ValueError
        Where more cells are missing than the shares allow.
    numpy.linalg.LinAlgError
        Where a column is constant, or the table carries fewer components.

    Notes
    -----
    Columns are brought to a spread near 1 by powers of two first: the library's test for a constant column is absolute.
    scikit-learn has no NIPALS past missing cells; statsmodels' PCA fills by another iteration.

    Examples
    --------
    >>> vm.nipals_impute([[1.0, 2.0], [2.0, 4.1], [3.0, None], [4.0, 8.0]], 1).round(2)
    array([[1.  , 2.  ],
           [2.  , 4.1 ],
           [3.  , 5.69],
           [4.  , 8.  ]])
    """
    X, labels = table(x)
    n, p = X.shape
    whole(components, "components", 0)
    for name, share in (("most_in_column", most_in_column), ("most_in_table", most_in_table)):
        if not 0.0 <= share <= 1.0:
            raise ValueError(f"{name}: expected a share from 0 to 1, got {share!r}")
    present = np.where(X == MISSING, np.nan, X)
    filled, largest = X.copy(order="F"), 0
    if X.size and not np.isnan(present).all():
        largest = int(np.frexp(float(np.nanmax(np.abs(present))))[1])
    missing_cells = X == MISSING
    filled[~missing_cells] = np.ldexp(X[~missing_cells], -largest)
    found = flat.Cpp_NIPALS(n, p, filled, weights_of(weights, n), float(tolerance), components, float(most_in_column),
                            float(most_in_table))
    if found == -6:
        raise ValueError("x: more cells are missing than most_in_column or most_in_table allows")
    if found != 0:
        raise LinAlgError("x: a column is constant, or the table carries fewer components")
    result = X.copy(order="F")
    result[missing_cells] = np.ldexp(filled[missing_cells], largest)
    return labelled(values(result), labels.index, labels.columns)


@documented("VB_BiplotTransData")
def biplot(scores: ArrayLike, loadings: ArrayLike, eigenvalues: ArrayLike, *, alpha: float = 1.0, factor: float = 1.0,
           supplementary: Optional[ArrayLike] = None) -> Biplot:
    """Coordinates of observations and variables for one picture (Gabriel 1971).

    Parameters
    ----------
    scores : array_like, shape (n, k)
        Observations on k axes.
    loadings : array_like, shape (m, k)
        Variables on the same axes.
    eigenvalues : array_like, shape (k,)
        Eigenvalues of the axes, above 0.
    alpha : float, optional
        From 0, which leaves the variables, to 1, which leaves the observations.
    factor : float, optional
        Its root multiplies the variables.
    supplementary : array_like, shape (q, k), optional
        More observations, behind the others in the result.

    Returns
    -------
    Biplot
        `observations`, `variables`.

    Notes
    -----
    NumPy, SciPy and scikit-learn have none.

    Examples
    --------
    >>> vm.biplot([[2.0, 1.0]], [[1.0, 0.0]], [4.0, 1.0], alpha=0.0).observations
    array([[1., 1.]])
    """
    A, labels = table(scores, "scores")
    n, k = A.shape
    V, of_v = table(loadings, "loadings", cols=k)
    e = vector(eigenvalues, "eigenvalues", k)
    if not (e > 0.0).all():
        raise ValueError("eigenvalues: one is not above 0")
    if not 0.0 <= alpha <= 1.0:
        raise ValueError(f"alpha: expected a number from 0 to 1, got {alpha!r}")
    S = np.empty((0, k), order="F") if supplementary is None else table(supplementary, "supplementary", cols=k)[0]
    obs, var = np.zeros((n + S.shape[0], k), order="F"), np.zeros((V.shape[0], k), order="F")
    if n and k and V.shape[0]:
        flat.VB_BiplotTransData(A, S, V, n, S.shape[0], V.shape[0], k, e, float(factor), float(alpha), obs, var)
    index = labels.index if supplementary is None else None
    return Biplot(labelled(values(obs), index), labelled(values(var), of_v.index))


@documented("ComputeCosines")
def squared_cosines(x: ArrayLike) -> Any:
    """How well each axis represents each row: its squared coordinate over the sum of them.

    Parameters
    ----------
    x : array_like, shape (n, k)
        Coordinates on all axes.

    Returns
    -------
    array or DataFrame
        NaN in a row with a missing cell, and in one without length.

    Notes
    -----
    NumPy, SciPy and scikit-learn have none.

    Examples
    --------
    >>> vm.squared_cosines([[3.0, 4.0]])
    array([[0.36, 0.64]])
    """
    X, labels = table(x)
    n, k = X.shape
    out = np.full((n, k), MISSING, order="F")
    scaled = X.copy(order="F")
    for i in range(n):
        row = X[i][X[i] != MISSING]
        size = float(np.abs(row).max()) if row.size else 0.0
        if size > 0.0 and np.isfinite(size):
            scaled[i][X[i] != MISSING] = np.ldexp(row, -int(np.frexp(size)[1]))
    flat.ComputeCosines(scaled, n, k, out)
    return labelled(values(out), labels.index, labels.columns)


@documented("Cpp_GetCompMatrices")
def compact_letters(means: ArrayLike, differ: Union[ArrayLike, Callable[[int, int], bool]]) -> list[str]:
    """Letters for groups: two that share a letter do not differ.

    Parameters
    ----------
    means : array_like, shape (n,)
        The means by which groups are put in order.
    differ : array_like of bool, shape (n, n), or a function of two places
        Whether two groups differ.

    Returns
    -------
    list of str
        The letters of each group, in the order of `means`; empty for a missing mean.

    Notes
    -----
    NumPy, SciPy and statsmodels have none; R has it as multcompLetters.

    Examples
    --------
    >>> vm.compact_letters([1.0, 2.0, 5.0], lambda i, j: 5.0 in ((1.0, 2.0, 5.0)[i], (1.0, 2.0, 5.0)[j]))
    ['A', 'A', 'B']
    """
    v = vector(means, "means")
    n = v.size
    if n > 255:
        raise ValueError(f"means: at most 255 groups, got {n}")
    if callable(differ):
        different = np.array([[bool(i != j and differ(i, j)) for j in range(n)] for i in range(n)], dtype=bool)
    else:
        different = np.asarray(differ)
    if n and (different.shape != (n, n) or different.dtype != np.bool_ or (different != different.T).any()):
        raise ValueError(f"differ: expected a symmetric table of booleans with the shape {(n, n)}")
    labels: list[Any] = [""] * (256 * n)
    if n:
        flat.Cpp_GetCompMatrices(v.copy().reshape(-1, 1), n, 0, np.asfortranarray(different.astype(np.int32)), -1,
                                 np.zeros(n, dtype=np.int32), labels, np.zeros(1, dtype=np.int32))
    return ["".join(str(labels[i + n * k]).strip() for k in range(n)) for i in range(n)]
