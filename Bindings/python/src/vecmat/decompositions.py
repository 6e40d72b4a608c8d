"""Eigenvalues, singular values, factors, inverses, nearest correlations.

The library's tolerances are absolute. So each table is first multiplied by a power of two, which changes no digit, that
brings its largest cell near 1, and the result is scaled back: a table in other units gives the same result in other units.
"""

from __future__ import annotations

import warnings
from dataclasses import dataclass
from typing import Any, Optional

import numpy as np
from numpy.linalg import LinAlgError
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import untyped
from vecmat._inputs import MISSING, Floats, Labels, labelled, numbers, table, values, vector, whole
from vecmat._results import PrecisionWarning, Result

__all__ = ["Eigen", "LU", "PivotedCholesky", "SingularValues", "cholesky", "cholesky_pivoted", "det", "distances", "eigh",
           "frobenius", "g2_inverse", "hermite_form", "inv", "inv_triangular", "kron", "log_det", "lu", "matmul",
           "nearest_correlation", "norm2", "pinv", "reorder_correlations", "solve", "sqrtm", "svd", "sweep", "table_rank",
           "trace"]


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


def _complete(given: ArrayLike, name: str, square: bool = True) -> tuple[Floats, Labels]:
    X, labels = table(given, name, square=square)
    if (X == MISSING).any():
        raise ValueError(f"{name}: a cell is missing; a decomposition needs all of them")
    if not np.isfinite(X).all():
        raise ValueError(f"{name}: a cell is infinite; a decomposition needs finite ones")
    return X, labels


def _exponent(X: Floats) -> int:
    """The power of two nearest to the largest cell."""
    largest = float(np.abs(X).max()) if X.size else 0.0
    return int(np.frexp(largest)[1]) if largest > 0.0 else 0


def _scaled(X: Floats, exponent: int) -> Floats:
    return X.copy(order="F") if exponent == 0 else np.asfortranarray(np.ldexp(X, -exponent))


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
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    found, vectors = np.empty(n), np.empty((n, n), order="F")
    if n and flat.VB_M_Eigen(_scaled(A, exponent), found, vectors, n, -1) != 0:
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
    X, _ = _complete(x, "x", square=False)
    if X.shape[0] < X.shape[1]:
        u, s, v = svd(np.asfortranarray(X.T))
        return SingularValues(v, s, u)
    n, p = X.shape
    exponent = _exponent(X)
    s, u, v = np.zeros(min(n + 1, p)), np.zeros((n, min(n, p)), order="F"), np.zeros((p, p), order="F")
    info = np.zeros(1, dtype=np.int32)
    if p:
        flat.VB_M_SVDecomp(_scaled(X, exponent), n, p, s, u, n, v, p, 21, info)
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
    X, _ = _complete(x, "x", square=False)
    X = X if X.shape[0] >= X.shape[1] else np.asfortranarray(X.T)
    if not X.size:
        return 0
    found = untyped.VB_M_Rank(_scaled(X, _exponent(X)), *X.shape)
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
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    if n == 0:
        return 1.0
    found = flat.VB_M_Determinant(_scaled(A, exponent), n, np.empty(1, dtype=np.int16))
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
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    found = flat.Cpp_M_LogDeterminant(_scaled(A, exponent), n)
    return float("nan") if found == MISSING else found + n * exponent * float(np.log(2.0))


def _singular(name: str = "a") -> LinAlgError:
    return LinAlgError(f"{name}: the table is singular, or nearly so")


@documented("VB_M_Inverse1")
def inv(a: ArrayLike) -> Any:
    """Inverse.

    Parameters
    ----------
    {square}

    Returns
    -------
    array or DataFrame

    Raises
    ------
    numpy.linalg.LinAlgError
        Where a pivot is up to 1e-15 of the largest cell.

    Warns
    -----
    PrecisionWarning
        Where the product of the norms of the table and of its inverse is above 1e12: fewer than four digits are left.

    Notes
    -----
    numpy.linalg.inv gives an inverse without digits where this warns, and one of a table that is nearly singular.

    Examples
    --------
    >>> vm.inv([[2.0, 0.0], [0.0, 4.0]])
    array([[0.5 , 0.  ],
           [0.  , 0.25]])
    """
    A, labels = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    out = np.empty((n, n), order="F")
    scaled = _scaled(A, exponent)
    if n and flat.VB_M_Inverse1(scaled, n, out, 0.0) != 0:
        raise _singular()
    if n and np.abs(scaled).sum(axis=1).max() * np.abs(out).sum(axis=1).max() > 1e12:
        warnings.warn("the table is nearly singular: its inverse has fewer than four digits", PrecisionWarning, stacklevel=2)
    return labelled(np.asfortranarray(np.ldexp(out, -exponent)), labels.columns, labels.index)


@documented("VB_M_InverseTriang")
def inv_triangular(a: ArrayLike, *, lower: bool = True) -> Floats:
    """Inverse of a triangular table; the other triangle is not read.

    Parameters
    ----------
    {square}
    lower : bool, optional
        Whether the lower triangle is meant.

    Returns
    -------
    array

    Raises
    ------
    numpy.linalg.LinAlgError
        Where a cell of the diagonal is below 1e-15 of the largest cell.

    Notes
    -----
    SciPy has it as solve_triangular with the identity.

    Examples
    --------
    >>> vm.inv_triangular([[2.0, 0.0], [1.0, 4.0]])
    array([[ 0.5  ,  0.   ],
           [-0.125,  0.25 ]])
    """
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    out = np.zeros((n, n), order="F")
    if n and flat.VB_M_InverseTriang(_scaled(A, exponent), n, -1 if lower else 0, out, 1e-15) != 0:
        raise _singular()
    return np.asfortranarray(np.ldexp(out, -exponent))


@documented("VB_M_InvGeneralized", "VB_M_InvGeneralizedSym")
def pinv(a: ArrayLike, *, tolerance: float = 1e-12, symmetric: bool = False) -> Any:
    """Generalised (Moore-Penrose) inverse of a square table.

    Parameters
    ----------
    {square}
    tolerance : float, optional
        Singular values below this part of the largest cell count as 0.
    symmetric : bool, optional
        Take the symmetric form, by eigenvalues.

    Returns
    -------
    array or DataFrame

    Notes
    -----
    numpy.linalg.pinv takes tables of any shape, and compares with the largest singular value.

    Examples
    --------
    >>> vm.pinv([[1.0, 1.0], [1.0, 1.0]]).round(6)
    array([[0.25, 0.25],
           [0.25, 0.25]])
    """
    A, labels = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    out, found = np.zeros((n, n), order="F"), np.empty(1, dtype=np.int32)
    function = flat.VB_M_InvGeneralizedSym if symmetric else flat.VB_M_InvGeneralized
    if n and function(_scaled(A, exponent), n, out, float(tolerance), found) != 0:
        raise LinAlgError("the singular values do not settle")
    return labelled(np.asfortranarray(np.ldexp(out, -exponent)), labels.columns, labels.index)


@documented("Cpp_M_InverseG2")
def g2_inverse(a: ArrayLike, *, tolerance: float = 1e-12) -> Floats:
    """g2-inverse of a symmetric table by sweeps; collinear rows and columns become 0.

    Parameters
    ----------
    {square}
    tolerance : float, optional
        A pivot below this part of the largest cell zeroes its row and column.

    Returns
    -------
    array

    Notes
    -----
    NumPy and SciPy have none. Unlike `pinv`, the result depends on the order of the columns: the first ones stay.

    Examples
    --------
    >>> vm.g2_inverse([[1.0, 1.0], [1.0, 1.0]])
    array([[1., 0.],
           [0., 0.]])
    """
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    out = np.zeros((n, n), order="F")
    flat.Cpp_M_InverseG2(_scaled(A, exponent), n, float(tolerance), out)
    return np.asfortranarray(np.ldexp(out, -exponent))


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
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    exponent += exponent % 2
    out = np.zeros((n, n), order="F")
    if n and flat.VB_M_CholDecomp(_scaled(A, exponent), n, out) != 0 or not np.isfinite(out).all():
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
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    exponent += exponent % 2
    out, order = np.zeros((n, n), order="F"), np.empty(n, dtype=np.int32)
    if n and flat.VB_M_CholDecompPrinc(_scaled(A, exponent), n, out, order, 0) != 0:
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
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    work, index = _scaled(A, exponent), np.zeros(n, dtype=np.int32)
    parity, status = np.ones(1), np.zeros(1, dtype=np.int16)
    if n:
        flat.VB_M_LUDecomp(work, n, index, parity, status)
    if status[0] != 0:
        raise _singular()
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
    A, labels = _complete(a, "a")
    found = eigh(A)
    if found.values.size and found.values[-1] < -np.ldexp(1e-12, _exponent(A)):
        raise LinAlgError("a: the table has a negative eigenvalue")
    roots = np.sqrt(np.maximum(found.values, 0.0))
    root = matmul(found.vectors * roots, found.vectors.T)
    return labelled(np.asfortranarray((root + root.T) / 2.0), labels.columns, labels.columns)


@documented("VB_M_Gauss")
def solve(a: ArrayLike, b: ArrayLike) -> Floats:
    """Solution of a @ x = b by Gauss-Jordan elimination with full pivoting.

    Parameters
    ----------
    {square}
    b : array_like, shape (n,) or (n, m)
        Right-hand sides.

    Returns
    -------
    array
        With the shape of `b`.

    Raises
    ------
    numpy.linalg.LinAlgError
        Where no pivot is above 1e-12 of the largest cell.

    Notes
    -----
    numpy.linalg.solve pivots by rows alone, and solves tables that are nearly singular.

    Examples
    --------
    >>> vm.solve([[2.0, 0.0], [0.0, 4.0]], [2.0, 2.0])
    array([1. , 0.5])
    """
    A, _ = _complete(a, "a")
    n, exponent = A.shape[0], _exponent(A)
    given = numbers(b, "b")
    B, _ = _complete(given.reshape(-1, 1) if given.ndim == 1 else given, "b", square=False)
    if B.shape[0] != n:
        raise ValueError(f"b: expected {n} rows, got {B.shape[0]}")
    out = B.copy(order="F")
    if n and flat.VB_M_Gauss(_scaled(A, exponent), n, out.shape[1], out) != 0:
        raise _singular()
    out = np.asfortranarray(np.ldexp(out, -exponent))
    return out[:, 0] if given.ndim == 1 else out


@documented("VB_M_Sweep")
def sweep(a: ArrayLike, *columns: int) -> Floats:
    """Sweep a symmetric table on some of its columns.

    Parameters
    ----------
    {square}
    *columns : int
        The columns, from 0, one after the other.

    Returns
    -------
    array
        Symmetric; where a pivot is 0, infinities and NaN.

    Notes
    -----
    NumPy and SciPy have none.

    Examples
    --------
    >>> vm.sweep([[2.0, 1.0], [1.0, 3.0]], 0)
    array([[-0.5,  0.5],
           [ 0.5,  2.5]])
    """
    A, _ = _complete(a, "a")
    n = A.shape[0]
    for k in columns:
        whole(k, "columns", 0, n - 1)
    lower = np.tril_indices(n)
    packed = np.ascontiguousarray(A[lower])
    for k in columns:
        flat.VB_M_Sweep(packed, n, int(k) + 1)
    out = np.zeros((n, n), order="F")
    out[lower] = packed
    return np.asfortranarray(out + np.tril(out, -1).T)


@documented("Cpp_M_CorrMatFromSymMat")
def nearest_correlation(a: ArrayLike) -> Any:
    """The nearest correlation matrix to a symmetric table (Higham 2002).

    Parameters
    ----------
    {square}

    Returns
    -------
    array or DataFrame
        A unit diagonal; positive semi-definite to about 1e-6.

    Notes
    -----
    statsmodels has corr_nearest, which is faster and further away.

    Examples
    --------
    >>> vm.nearest_correlation([[1.0, 0.9, 0.0], [0.9, 1.0, 0.9], [0.0, 0.9, 1.0]]).round(3)
    array([[1.   , 0.743, 0.105],
           [0.743, 1.   , 0.743],
           [0.105, 0.743, 1.   ]])
    """
    A, labels = _complete(a, "a")
    out = A.copy(order="F")
    flat.Cpp_M_CorrMatFromSymMat(out, out.shape[0])
    return labelled(out, labels.columns, labels.columns)


REORDERINGS = {"largest": 1, "variance": 2, "eigenvector": 3}


@documented("Cpp_ReOrderCorrelations")
def reorder_correlations(r: ArrayLike, by: str = "eigenvector") -> tuple[Any, np.ndarray[Any, np.dtype[np.int64]]]:
    """Bring variables that belong together beside each other.

    Parameters
    ----------
    r : array_like, shape (n, n)
        Correlations.
    by : {'eigenvector', 'largest', 'variance'}, optional
        The score by which variables are put in order.

    Returns
    -------
    tuple
        The table, and the order of the variables from 0.

    Notes
    -----
    pandas and NumPy have none; seaborn reorders by clusters.

    Examples
    --------
    >>> vm.reorder_correlations([[1.0, 0.1, 0.8], [0.1, 1.0, 0.2], [0.8, 0.2, 1.0]])[1]
    array([2, 0, 1])
    """
    if by not in REORDERINGS:
        raise ValueError(f"by: expected one of {', '.join(map(repr, REORDERINGS))}, got {by!r}")
    R, labels = table(r, "r", square=True)
    n = R.shape[0]
    out, names = R.copy(order="F"), [str(i) for i in range(n)]
    flat.Cpp_ReOrderCorrelations(out, n, REORDERINGS[by], names, np.zeros((n, n), order="F"),
                                 np.zeros((n, n), dtype=np.int32, order="F"))
    order = np.array([int(name) for name in names], dtype=np.int64)
    columns = labels.columns[order] if labels.columns is not None else None
    return labelled(values(out), columns, columns), order


@documented("Cpp_M_HermiteCanonical")
def hermite_form(a: ArrayLike) -> Floats:
    """Hermite canonical form: rows reduced to echelon form.

    Parameters
    ----------
    {square}

    Returns
    -------
    array

    Notes
    -----
    SymPy has it as rref, in exact arithmetic.

    Examples
    --------
    >>> vm.hermite_form([[2.0, 4.0], [1.0, 2.0]])
    array([[1., 0.],
           [0., 1.]])
    """
    A, _ = _complete(a, "a")
    out = np.zeros(A.shape, order="F")
    flat.Cpp_M_HermiteCanonical(_scaled(A, _exponent(A)), A.shape[0], out)
    return out


@documented("Cpp_M_Norm2")
def norm2(a: ArrayLike) -> float:
    """2-norm of a square table: its largest singular value.

    Parameters
    ----------
    {square}

    Returns
    -------
    float

    Notes
    -----
    As numpy.linalg.norm with ord=2.

    Examples
    --------
    >>> vm.norm2([[3.0, 0.0], [0.0, -4.0]])
    4.0
    """
    A, _ = _complete(a, "a")
    exponent = _exponent(A)
    return float(np.ldexp(untyped.Cpp_M_Norm2(_scaled(A, exponent), *A.shape), exponent))


@documented("VB_M_FrobeniusNorm")
def frobenius(a: ArrayLike, b: Optional[ArrayLike] = None) -> float:
    """Frobenius norm of a table, or of the difference of two.

    Parameters
    ----------
    a : array_like, shape (n, p)
        A table.
    b : array_like, shape (n, p), optional
        Another one.

    Returns
    -------
    float

    Notes
    -----
    As numpy.linalg.norm(a - b).

    Examples
    --------
    >>> vm.frobenius([[3.0, 4.0]])
    5.0
    """
    A, _ = _complete(a, "a", square=False)
    B = np.zeros(A.shape, order="F") if b is None else _complete(b, "b", square=False)[0]
    if A.shape != B.shape:
        raise ValueError(f"b: expected the shape {A.shape}, got {B.shape}")
    D = np.asfortranarray(A - B)
    exponent = _exponent(D)
    scaled = _scaled(D, exponent)
    return float(np.ldexp(np.sqrt(flat.VB_M_FrobeniusNorm(scaled, D.shape[0], D.shape[1], scaled)), exponent))


@documented("VB_M_Trace")
def trace(a: ArrayLike) -> float:
    """Sum of the diagonal.

    Parameters
    ----------
    {square}

    Returns
    -------
    float

    Notes
    -----
    As numpy.trace.

    Examples
    --------
    >>> vm.trace([[1.0, 9.0], [9.0, 2.0]])
    3.0
    """
    A, _ = table(a, "a", square=True)
    return values(flat.VB_M_Trace(A, A.shape[0]))


@documented("VB_M_ProductAB")
def matmul(a: ArrayLike, b: ArrayLike) -> Floats:
    """Product of two tables; each sum runs in order, so that the digits are the same on every machine.

    Parameters
    ----------
    a : array_like, shape (n, m)
        The left table.
    b : array_like, shape (m, p)
        The right table.

    Returns
    -------
    array, shape (n, p)

    Notes
    -----
    The last digits of a @ b depend on the machine, its threads, and the library behind NumPy.

    Examples
    --------
    >>> vm.matmul([[1.0, 2.0]], [[3.0], [4.0]])
    array([[11.]])
    """
    A, _ = _complete(a, "a", square=False)
    B, _ = _complete(b, "b", square=False)
    if B.shape[0] != A.shape[1]:
        raise ValueError(f"b: expected {A.shape[1]} rows, got {B.shape[0]}")
    out = np.empty((A.shape[0], B.shape[1]), order="F")
    untyped.VB_M_ProductAB(A, *A.shape, B, B.shape[1], out)
    return out


@documented("Cpp_KroneckerTensorProduct")
def kron(a: ArrayLike, b: ArrayLike) -> Floats:
    """Kronecker product.

    Parameters
    ----------
    a, b : array_like
        Two tables.

    Returns
    -------
    array

    Notes
    -----
    As numpy.kron.

    Examples
    --------
    >>> vm.kron([[1.0, 2.0]], [[1.0], [10.0]])
    array([[ 1.,  2.],
           [10., 20.]])
    """
    A, _ = _complete(a, "a", square=False)
    B, _ = _complete(b, "b", square=False)
    rows, cols = A.shape[0] * B.shape[0], A.shape[1] * B.shape[1]
    out = np.zeros((rows, cols), order="F")
    if out.size:
        untyped.Cpp_KroneckerTensorProduct(A, *A.shape, B, *B.shape, out, rows, cols)
    return out


@documented("VB_M_EuclidDist2")
def distances(x: ArrayLike, *, weights: Optional[ArrayLike] = None, axis: int = 0, squared: bool = False) -> Any:
    """Euclidean distances between the rows of a table, or between its columns.

    Parameters
    ----------
    x : array_like, shape (n, p)
        A table without missing cells.
    weights : array_like, optional
        A weight for each coordinate.
    axis : {0, 1}, optional
        0 compares rows, 1 columns.
    squared : bool, optional
        The squares of the distances.

    Returns
    -------
    array or DataFrame

    Notes
    -----
    As scipy.spatial.distance.cdist(x, x).

    Examples
    --------
    >>> vm.distances([[0.0, 0.0], [3.0, 4.0]])
    array([[0., 5.],
           [5., 0.]])
    """
    X, labels = _complete(x, "x", square=False)
    if axis not in (0, 1):
        raise ValueError(f"axis: expected 0 or 1, got {axis!r}")
    n, p = X.shape
    size, coordinates = (n, p) if axis == 0 else (p, n)
    w = np.ones(coordinates) if weights is None else vector(weights, "weights", coordinates)
    out = np.zeros((size, size), order="F")
    flat.VB_M_EuclidDist2(X, n, p, out, w, -1 if axis == 0 else 0)
    names = labels.index if axis == 0 else labels.columns
    return labelled(np.square(out) if squared else out, names, names)
