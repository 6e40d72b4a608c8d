"""Products, norms, distances; nearest correlations and their order."""

from __future__ import annotations

from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import Floats, labelled, table, untyped, values, vector
from vecmat._square import complete, exponent_of, scaled_by

__all__ = ["distances", "frobenius", "kron", "matmul", "nearest_correlation", "norm2", "reorder_correlations", "trace"]


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
    A, labels = complete(a, "a")
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
    A, _ = complete(a, "a")
    exponent = exponent_of(A)
    return float(np.ldexp(untyped.Cpp_M_Norm2(scaled_by(A, exponent), *A.shape), exponent))


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
    A, _ = complete(a, "a", square=False)
    B = np.zeros(A.shape, order="F") if b is None else complete(b, "b", square=False)[0]
    if A.shape != B.shape:
        raise ValueError(f"b: expected the shape {A.shape}, got {B.shape}")
    D = np.asfortranarray(A - B)
    exponent = exponent_of(D)
    scaled = scaled_by(D, exponent)
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
    A, _ = complete(a, "a", square=False)
    B, _ = complete(b, "b", square=False)
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
    A, _ = complete(a, "a", square=False)
    B, _ = complete(b, "b", square=False)
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
    X, labels = complete(x, "x", square=False)
    if axis not in (0, 1):
        raise ValueError(f"axis: expected 0 or 1, got {axis!r}")
    n, p = X.shape
    size, coordinates = (n, p) if axis == 0 else (p, n)
    w = np.ones(coordinates) if weights is None else vector(weights, "weights", coordinates)
    out = np.zeros((size, size), order="F")
    flat.VB_M_EuclidDist2(X, n, p, out, w, -1 if axis == 0 else 0)
    names = labels.index if axis == 0 else labels.columns
    return labelled(np.square(out) if squared else out, names, names)
