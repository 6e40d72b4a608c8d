"""Inverses and generalised inverses, systems of equations, sweeps."""

from __future__ import annotations

import warnings
from typing import Any

import numpy as np
from numpy.linalg import LinAlgError
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import Floats, labelled, numbers, whole
from vecmat._results import PrecisionWarning
from vecmat._square import complete, exponent_of, scaled_by, singular

__all__ = ["g2_inverse", "hermite_form", "inv", "inv_triangular", "pinv", "solve", "sweep"]


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
    A, labels = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    out = np.empty((n, n), order="F")
    scaled = scaled_by(A, exponent)
    if n and flat.VB_M_Inverse1(scaled, n, out, 0.0) != 0:
        raise singular()
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
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    out = np.zeros((n, n), order="F")
    if n and flat.VB_M_InverseTriang(scaled_by(A, exponent), n, -1 if lower else 0, out, 1e-15) != 0:
        raise singular()
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
    A, labels = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    out, found = np.zeros((n, n), order="F"), np.empty(1, dtype=np.int32)
    function = flat.VB_M_InvGeneralizedSym if symmetric else flat.VB_M_InvGeneralized
    if n and function(scaled_by(A, exponent), n, out, float(tolerance), found) != 0:
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
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    out = np.zeros((n, n), order="F")
    flat.Cpp_M_InverseG2(scaled_by(A, exponent), n, float(tolerance), out)
    return np.asfortranarray(np.ldexp(out, -exponent))


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
    A, _ = complete(a, "a")
    n, exponent = A.shape[0], exponent_of(A)
    given = numbers(b, "b")
    B, _ = complete(given.reshape(-1, 1) if given.ndim == 1 else given, "b", square=False)
    if B.shape[0] != n:
        raise ValueError(f"b: expected {n} rows, got {B.shape[0]}")
    out = B.copy(order="F")
    if n and flat.VB_M_Gauss(scaled_by(A, exponent), n, out.shape[1], out) != 0:
        raise singular()
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
    A, _ = complete(a, "a")
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
    A, _ = complete(a, "a")
    out = np.zeros(A.shape, order="F")
    flat.Cpp_M_HermiteCanonical(scaled_by(A, exponent_of(A)), A.shape[0], out)
    return out
