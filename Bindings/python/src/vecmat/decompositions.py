"""Eigenvalues, singular values, triangular factors, determinants, ranks."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any

import numpy as np
from numpy.linalg import LinAlgError
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import MISSING, Floats, labelled, untyped, values
from vecmat._results import Result
from vecmat._square import complete, exponent_of, scaled_by, singular
from vecmat.matrices import matmul

__all__ = ["Eigen", "LU", "PivotedCholesky", "SingularValues", "cholesky", "cholesky_pivoted", "det", "eigh", "log_det",
           "lu", "sqrtm", "svd", "table_rank"]


@dataclass(frozen=True, repr=False)
class Eigen(Result):
    """Eigenvalues in descending order; column j of `vectors` belongs to value j."""

    values: Any
    vectors: Any


@dataclass(frozen=True, repr=False)
class SingularValues(Result):
    """u @ diag(s) @ v.T is the table."""

    u: Any
    s: Any
    v: Any


@dataclass(frozen=True, repr=False)
class LU(Result):
    """`lower` @ `upper` is the table with its rows in the order `rows`, from 0; `parity` is that of the exchanges."""

    lower: Any
    upper: Any
    rows: Any
    parity: float


@dataclass(frozen=True, repr=False)
class PivotedCholesky(Result):
    """`lower` @ `lower`.T is the table with rows and columns in the order `order`, from 0."""

    lower: Any
    order: Any


@documented("VB_M_Eigen")
def eigh(a: ArrayLike) -> Eigen:
    """Eigenvalues and eigenvectors of a symmetric table, of which the lower triangle is read.

    Parameters
    ----------
    {square}

    Returns
    -------
    Eigen
        `values` in descending order, `vectors` in columns.

    Raises
    ------
    numpy.linalg.LinAlgError
        Where the iteration does not settle.

    Notes
    -----
    As numpy.linalg.eigh, which has them in ascending order and digits that depend on the machine.

    Examples
    --------
    >>> vm.eigh([[2.0, 1.0], [1.0, 2.0]]).values.round(6)
    array([3., 1.])
    """
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    found, vectors = np.empty(n), np.empty((n, n), order="F")
    if n and flat.VB_M_Eigen(scaled_by(A, exponent), found, vectors, n, -1) != 0:
        raise LinAlgError("the eigenvalues do not settle")
    return Eigen(np.ldexp(found, exponent), vectors)


@documented("VB_M_SVDecomp")
def svd(x: ArrayLike) -> SingularValues:
    """Singular value decomposition, of the smaller size.

    Parameters
    ----------
    x : array_like, shape (n, p)
        A table.

    Returns
    -------
    SingularValues
        `u`, n by m; `s` of m = min(n, p) values in descending order; `v`, p by m.

    Raises
    ------
    numpy.linalg.LinAlgError
        Where the iteration does not settle.

    Notes
    -----
    numpy.linalg.svd gives the transpose of v, and unless full_matrices=False more columns.

    Examples
    --------
    >>> vm.svd([[3.0, 0.0], [0.0, 4.0], [0.0, 0.0]]).s
    array([4., 3.])
    """
    X, _ = complete(x, "x", square=False)
    if X.shape[0] < X.shape[1]:
        u, s, v = svd(np.asfortranarray(X.T))
        return SingularValues(v, s, u)
    n, p = X.shape
    exponent = exponent_of(X)
    s, u, v = np.zeros(min(n + 1, p)), np.zeros((n, min(n, p)), order="F"), np.zeros((p, p), order="F")
    info = np.zeros(1, dtype=np.int32)
    if p:
        flat.VB_M_SVDecomp(scaled_by(X, exponent), n, p, s, u, n, v, p, 21, info)
    if info[0] != 0:
        raise LinAlgError("the singular values do not settle")
    return SingularValues(u, np.ldexp(s[:p], exponent), v)


@documented("VB_M_Rank")
def table_rank(x: ArrayLike) -> int:
    """Number of singular values above 1e-12 of the largest cell.

    Parameters
    ----------
    x : array_like, shape (n, p)
        A table.

    Returns
    -------
    int

    Notes
    -----
    numpy.linalg.matrix_rank compares with the largest singular value times the size times the machine's precision.

    Examples
    --------
    >>> vm.table_rank([[1.0, 2.0], [2.0, 4.0]])
    1
    """
    X, _ = complete(x, "x", square=False)
    X = X if X.shape[0] >= X.shape[1] else np.asfortranarray(X.T)
    if not X.size:
        return 0
    found = untyped.VB_M_Rank(scaled_by(X, exponent_of(X)), *X.shape)
    if found < 0:
        raise LinAlgError("the singular values do not settle")
    return int(found)


@documented("VB_M_Determinant")
def det(a: ArrayLike) -> float:
    """Determinant.

    Parameters
    ----------
    {square}

    Returns
    -------
    float
        0.0 for a singular table; infinite where it is too large for a float.

    Notes
    -----
    As numpy.linalg.det.

    Examples
    --------
    >>> vm.det([[1.0, 2.0], [3.0, 4.0]])
    -2.0
    """
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    if n == 0:
        return 1.0
    found = flat.VB_M_Determinant(scaled_by(A, exponent), n, np.empty(1, dtype=np.int16))
    if 0.0 < abs(found) < 1e-15 and table_rank(A) < n:
        return 0.0
    with np.errstate(over="ignore"):
        return float(np.ldexp(found, n * exponent))


@documented("Cpp_M_LogDeterminant")
def log_det(a: ArrayLike) -> float:
    """Logarithm of a determinant.

    Parameters
    ----------
    {square}

    Returns
    -------
    float
        NaN where the determinant is negative, or a row is zeros throughout.

    Notes
    -----
    numpy.linalg.slogdet gives the sign beside it.

    Examples
    --------
    >>> round(vm.log_det([[2.0, 0.0], [0.0, 8.0]]), 6)
    2.772589
    """
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    found = flat.Cpp_M_LogDeterminant(scaled_by(A, exponent), n)
    return float("nan") if found == MISSING else found + n * exponent * float(np.log(2.0))


@documented("VB_M_CholDecomp")
def cholesky(a: ArrayLike) -> Floats:
    """Cholesky factor: the lower triangle whose product with its transpose is the table.

    Parameters
    ----------
    {square}

    Returns
    -------
    array

    Raises
    ------
    numpy.linalg.LinAlgError
        Where a pivot is below 1e-12 of the largest cell: the table is not positive definite.

    Notes
    -----
    As numpy.linalg.cholesky.

    Examples
    --------
    >>> vm.cholesky([[4.0, 2.0], [2.0, 5.0]])
    array([[2., 0.],
           [1., 2.]])
    """
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    exponent += exponent % 2
    out = np.zeros((n, n), order="F")
    if n and flat.VB_M_CholDecomp(scaled_by(A, exponent), n, out) != 0 or not np.isfinite(out).all():
        raise LinAlgError("a: the table is not positive definite")
    return np.asfortranarray(np.ldexp(out, exponent // 2))


@documented("VB_M_CholDecompPrinc")
def cholesky_pivoted(a: ArrayLike) -> PivotedCholesky:
    """Cholesky factor of the table with its rows and columns reordered, large pivots first.

    Parameters
    ----------
    {square}

    Returns
    -------
    PivotedCholesky
        `lower`, and `order` from 0.

    Raises
    ------
    numpy.linalg.LinAlgError
        Where a pivot is below 1e-12 of the largest cell.

    Notes
    -----
    NumPy and SciPy have no pivoted factor.

    Examples
    --------
    >>> vm.cholesky_pivoted([[1.0, 0.0], [0.0, 4.0]])
    PivotedCholesky
      lower: array([[2., 0.],
                    [0., 1.]])
      order: array([1, 0])
    """
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    exponent += exponent % 2
    out, order = np.zeros((n, n), order="F"), np.empty(n, dtype=np.int32)
    if n and flat.VB_M_CholDecompPrinc(scaled_by(A, exponent), n, out, order, 0) != 0:
        raise LinAlgError("a: the table is not positive definite")
    return PivotedCholesky(np.asfortranarray(np.ldexp(out, exponent // 2)), order.astype(np.int64) - 1)


@documented("VB_M_LUDecomp")
def lu(a: ArrayLike) -> LU:
    """LU decomposition with partial pivoting.

    Parameters
    ----------
    {square}

    Returns
    -------
    LU
        `lower`, `upper`, `rows`, `parity`.

    Raises
    ------
    numpy.linalg.LinAlgError
        Where a row is zeros throughout.

    Notes
    -----
    scipy.linalg.lu gives a permutation matrix in place of row numbers.

    Examples
    --------
    >>> vm.lu([[1.0, 2.0], [4.0, 2.0]]).upper
    array([[4. , 2. ],
           [0. , 1.5]])
    """
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    work, index = scaled_by(A, exponent), np.zeros(n, dtype=np.int32)
    parity, status = np.ones(1), np.zeros(1, dtype=np.int16)
    if n:
        flat.VB_M_LUDecomp(work, n, index, parity, status)
    if status[0] != 0:
        raise singular()
    rows = np.arange(n)
    for j, i in enumerate(index):
        rows[[j, i - 1]] = rows[[i - 1, j]]
    return LU(np.tril(work, -1) + np.eye(n), np.ldexp(np.triu(work), exponent), rows, float(parity[0]))


@documented("VB_M_Eigen")
def sqrtm(a: ArrayLike) -> Any:
    """Symmetric square root of a symmetric table.

    Parameters
    ----------
    {square}

    Returns
    -------
    array or DataFrame
        The root, whose product with itself is the table. `flat.Cpp_M_SquareRoot` gives another one, whose transpose times
        itself is the table.

    Raises
    ------
    numpy.linalg.LinAlgError
        Where an eigenvalue is below -1e-12 of the largest cell.

    Notes
    -----
    scipy.linalg.sqrtm takes any square table, and gives complex cells.

    Examples
    --------
    >>> vm.sqrtm([[4.0, 0.0], [0.0, 9.0]])
    array([[2., 0.],
           [0., 3.]])
    """
    A, labels = complete(a, "a")
    found = eigh(A)
    if found.values.size and found.values[-1] < -np.ldexp(1e-12, exponent_of(A)):
        raise LinAlgError("a: the table has a negative eigenvalue")
    roots = np.sqrt(np.maximum(found.values, 0.0))
    root = matmul(found.vectors * roots, found.vectors.T)
    return labelled(np.asfortranarray((root + root.T) / 2.0), labels.columns, labels.columns)
