"""What is missing: counted, left out, filled."""

from __future__ import annotations

from typing import Any, Optional

import numpy as np
from numpy.typing import ArrayLike, NDArray

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import (MISSING, Floats, as_list, flags, is_vector, labelled, numbers, strings, table, untyped,
                            values, vector, weights_of)

__all__ = ["complete_rows", "count_missing", "count_present", "drop_missing", "fill_missing", "impute_mean", "impute_mode",
           "impute_nearest", "insert_missing_rows", "is_missing", "matmul_missing", "set_missing", "zero_weights_of_missing"]


def is_missing(x: ArrayLike) -> NDArray[np.bool_]:
    """Which cells are missing.

    Parameters
    ----------
    x : array_like
        Numbers of any shape, or strings.

    Returns
    -------
    array of bool
        True for NaN, None, pandas' NA and the library's own missing value; an empty string is missing, an infinity is
        present.

    Notes
    -----
    As pandas.isna, which takes an empty string for present.

    Examples
    --------
    >>> vm.is_missing([1.0, None, float("inf")])
    array([False,  True, False])
    """
    try:
        array = numbers(x, "x")
    except TypeError:
        text = strings(x)
        found = np.array([not cell for cell in text.cells], dtype=bool).reshape((text.rows, text.cols), order="F")
        return found[:, 0] if np.ndim(x) == 1 else found
    return np.asarray(np.isnan(array) | (array == MISSING))


@documented("VB_V_NbMissing", "VB_M_NbMissing")
def count_missing(x: ArrayLike) -> Any:
    """Number of missing values: of a vector, or of each column of a table.

    Parameters
    ----------
    {x}

    Returns
    -------
    int, array of int or Series

    Notes
    -----
    As pandas' isna().sum(); NumPy has none.

    Examples
    --------
    >>> birds = vm.penguins()
    >>> vm.count_missing(birds["bill_length_mm"])
    2
    """
    if is_vector(x) or np.ndim(x) == 1:
        v = vector(x)
        return flat.VB_V_NbMissing(v, v.size)
    X, labels = table(x)
    counts = np.empty(X.shape[1], dtype=np.int32)
    untyped.VB_M_NbMissing(X, *X.shape, counts)
    return labelled(counts, labels.columns)


@documented("VB_V_NbNonMissing", "VB_M_NbNonMissing")
def count_present(x: ArrayLike) -> Any:
    """Number of values that are present: of a vector, or of each column of a table.

    Parameters
    ----------
    {x}

    Returns
    -------
    int, array of int or Series

    Notes
    -----
    As pandas' count.

    Examples
    --------
    >>> vm.count_present([[1.0, None], [2.0, 3.0]])
    array([2, 1], dtype=int32)
    """
    if is_vector(x) or np.ndim(x) == 1:
        v = vector(x)
        return flat.VB_V_NbNonMissing(v, v.size)
    X, labels = table(x)
    counts = np.empty(X.shape[1], dtype=np.int32)
    untyped.VB_M_NbNonMissing(X, *X.shape, counts)
    return labelled(counts, labels.columns)


@documented("VB_M_AllMissingRows")
def complete_rows(x: ArrayLike) -> NDArray[np.bool_]:
    """Which rows of a table have no missing cell.

    Parameters
    ----------
    {table}

    Returns
    -------
    array of bool, shape (n,)

    Notes
    -----
    As R's complete.cases; pandas has it as notna().all(axis=1).

    Examples
    --------
    >>> vm.complete_rows([[1.0, 2.0], [None, 3.0]])
    array([ True, False])
    """
    X, _ = table(x)
    return np.asarray(~(X == MISSING).any(axis=1))


@documented("VB_RemoveRowsWithMissing")
def drop_missing(x: ArrayLike) -> Any:
    """The rows without a missing cell.

    Parameters
    ----------
    {table}

    Returns
    -------
    array or DataFrame
        With the labels of the rows that are left.

    Notes
    -----
    As pandas' dropna.

    Examples
    --------
    >>> vm.drop_missing([[1.0, 2.0], [None, 3.0]])
    array([[1., 2.]])
    """
    X, labels = table(x)
    n, p = X.shape
    complete = complete_rows(X)
    removed = int((~complete).sum())
    out = np.empty((n - removed, max(p, 1)), order="F")
    if p and out.size:
        flat.VB_RemoveRowsWithMissing(X.copy(order="F"), n, p, removed, flags(~complete, n, "x"), out)
    index = labels.index[complete] if labels.index is not None else None
    return labelled(np.asfortranarray(out[:, :p]), index, labels.columns)


@documented("Cpp_M_InsertMissingDbl")
def insert_missing_rows(x: ArrayLike, complete: ArrayLike) -> Any:
    """Put rows of missing cells where rows were dropped: what `drop_missing` did, undone for a result of its rows.

    Parameters
    ----------
    {table}
    complete : array_like of bool
        As `complete_rows` gave it: true for each row that `x` still has.

    Returns
    -------
    array

    Notes
    -----
    pandas does it by reindex, where there is an index.

    Examples
    --------
    >>> vm.insert_missing_rows([[1.0], [2.0]], [True, False, True])
    array([[ 1.],
           [nan],
           [ 2.]])
    """
    X, _ = table(x)
    kept = np.asarray(complete)
    mask = flags(kept, kept.size, "complete")
    n, p = X.shape
    if int((mask != 0).sum()) != n:
        raise ValueError(f"complete: expected {n} rows that are true, got {int((mask != 0).sum())}")
    out = np.full((kept.size, p), MISSING, order="F")
    out[mask != 0] = X
    return values(out)


@documented("VB_M_ReplaceMissingByVal")
def fill_missing(x: ArrayLike, value: float) -> Any:
    """A number in place of each missing value.

    Parameters
    ----------
    {x}
    value : float
        What is put there.

    Returns
    -------
    array, Series or DataFrame

    Notes
    -----
    As pandas' fillna; numpy.nan_to_num also replaces infinities.

    Examples
    --------
    >>> vm.fill_missing([1.0, None], 0.0)
    array([1., 0.])
    """
    if is_vector(x) or np.ndim(x) == 1:
        v = vector(x).copy()
        flat.VB_M_ReplaceMissingByVal(v, v.size, 1, float(value))
        return labelled(values(v), getattr(x, "index", None) if not isinstance(x, (list, tuple)) else None)
    X, labels = table(x)
    Z = X.copy(order="F")
    untyped.VB_M_ReplaceMissingByVal(Z, *Z.shape, float(value))
    return labelled(values(Z), labels.index, labels.columns)


@documented("Cpp_M_ReplaceByMissing")
def set_missing(x: ArrayLike, where: ArrayLike, *, whole_row: bool = False) -> Any:
    """Make cells missing.

    Parameters
    ----------
    {table}
    where : array_like of bool, shape (n, p)
        True for the cells to lose.
    whole_row : bool, optional
        A true cell loses its whole row.

    Returns
    -------
    array or DataFrame

    Notes
    -----
    As pandas' mask.

    Examples
    --------
    >>> vm.set_missing([[1.0, 2.0], [3.0, 4.0]], [[True, False], [False, False]])
    array([[nan,  2.],
           [ 3.,  4.]])
    """
    X, labels = table(x)
    lost = np.asarray(where)
    if lost.dtype != np.bool_ or lost.shape != X.shape:
        raise ValueError(f"where: expected booleans with the shape {X.shape}, got {lost.dtype} with {lost.shape}")
    Z = X.copy(order="F")
    untyped.Cpp_M_ReplaceByMissing(Z, *Z.shape, np.asfortranarray(lost.astype(np.int32)), lost.shape[1],
                                -1 if whole_row else 0)
    return labelled(values(Z), labels.index, labels.columns)


@documented("VB_M_SetWeightsToZeroForMissing")
def zero_weights_of_missing(x: ArrayLike, weights: Optional[ArrayLike] = None) -> Floats:
    """Weights that are 0 where a row has a missing cell.

    Parameters
    ----------
    {table}
    {weights}

    Returns
    -------
    array, shape (n,)

    Notes
    -----
    NumPy and pandas have none.

    Examples
    --------
    >>> vm.zero_weights_of_missing([[1.0, 2.0], [None, 3.0]])
    array([1., 0.])
    """
    X, _ = table(x)
    w = weights_of(weights, X.shape[0]).copy()
    untyped.VB_M_SetWeightsToZeroForMissing(X, *X.shape, w, 1)
    return w


@documented("VB_M_ProductABMissing")
def matmul_missing(a: ArrayLike, b: ArrayLike) -> Any:
    """Product of two tables in which a missing factor makes a missing result.

    Parameters
    ----------
    a : array_like, shape (n, m)
        The left table.
    b : array_like, shape (m, p)
        The right table.

    Returns
    -------
    array or DataFrame, shape (n, p)

    Notes
    -----
    a @ b gives the same where nothing is missing, but for the last bits: here each sum runs in order.

    Examples
    --------
    >>> vm.matmul_missing([[1.0, 2.0], [None, 1.0]], [[1.0], [1.0]])
    array([[ 3.],
           [nan]])
    """
    A, labels = table(a, "a")
    B, of_b = table(b, "b", rows=A.shape[1])
    out = np.empty((A.shape[0], B.shape[1]), order="F")
    untyped.VB_M_ProductABMissing(A, *A.shape, B, B.shape[1], out)
    return labelled(values(out), labels.index, of_b.columns)


@documented("VB_EstimateRowsWithMissingMean", "VB_EstimateRowsWithMissingMeanPred")
def impute_mean(x: ArrayLike, *, weights: Optional[ArrayLike] = None, reference: Optional[ArrayLike] = None) -> Any:
    """The mean of its column in place of each missing cell.

    Parameters
    ----------
    {table}
    weights : array_like, optional
        Weights of the rows from which the means come.
    reference : array_like, shape (m, p), optional
        Rows from which the means come, in place of those of `x`.

    Returns
    -------
    array or DataFrame
        A column without any value stays missing.

    Notes
    -----
    As scikit-learn's SimpleImputer, which has no weights and drops a column without any value.

    Examples
    --------
    >>> vm.impute_mean([[1.0, 2.0], [None, 4.0], [5.0, None]])
    array([[1., 2.],
           [3., 4.],
           [5., 3.]])
    """
    X, labels = table(x)
    n, p = X.shape
    Z, mask = X.copy(order="F"), np.full(n, -1, dtype=np.int16)
    source = X if reference is None else table(reference, "reference", cols=p)[0]
    w = weights_of(weights, source.shape[0])
    if n and p:
        if reference is None:
            flat.VB_EstimateRowsWithMissingMean(Z, n, p, mask, w)
        else:
            flat.VB_EstimateRowsWithMissingMeanPred(source, source.shape[0], Z, n, p, mask, w)
    without = (source == MISSING).all(axis=0)
    Z[(X == MISSING) & without[None, :]] = MISSING
    return labelled(values(Z), labels.index, labels.columns)


@documented("VB_EstimateRowsWithMissingMode", "VB_EstimateRowsWithMissingModePred")
def impute_mode(x: Any, *, weights: Optional[ArrayLike] = None, reference: Any = None) -> Any:
    """The most frequent category of its column in place of each empty cell.

    Parameters
    ----------
    x : array_like of str, shape (n,) or (n, p)
        Categories; None, NaN and the empty string are missing.
    weights : array_like, optional
        Weights of the rows from which the modes come.
    reference : array_like of str, optional
        Rows from which the modes come, in place of those of `x`.

    Returns
    -------
    array of object or DataFrame
        A column without any category stays missing.

    Notes
    -----
    As scikit-learn's SimpleImputer(strategy='most_frequent'), which has no weights; of equals it takes the smallest, this
    the first.

    Examples
    --------
    >>> vm.impute_mode(["a", "b", None, "b"])
    array(['a', 'b', 'b', 'b'], dtype=object)
    """
    given = strings(x)
    cells = list(given.cells)
    source = given if reference is None else strings(reference, "reference")
    if source.cols != given.cols:
        raise ValueError(f"reference: expected {given.cols} columns, got {source.cols}")
    w = weights_of(weights, source.rows)
    if given.rows and given.cols:
        if reference is None:
            flat.VB_EstimateRowsWithMissingMode(cells, given.rows, given.cols, None, w)  # type: ignore[arg-type]
        else:
            flat.VB_EstimateRowsWithMissingModePred(source.cells, source.rows, cells,  # type: ignore[arg-type]
                                                    given.rows, given.cols, None, w)
    filled = as_list(cells, given.rows, given.cols)
    for j in range(given.cols):
        if not any(source.column(j)):
            filled[:, j] = None
    if given.labels.columns is None and np.ndim(x) == 1:
        return labelled(filled[:, 0], given.labels.index, name=given.labels.name)
    return labelled(filled, given.labels.index, given.labels.columns)


@documented("VB_EstimateRowsWithMissingNN")
def impute_nearest(x: ArrayLike, *, categories: Any = None, weights: Optional[ArrayLike] = None) -> Any:
    """The value of the most similar complete row in place of each missing cell.

    Parameters
    ----------
    {table}
    categories : array_like of str, shape (n, q), optional
        Columns of categories that count in the distance, and are filled as well.
    weights : array_like, shape (n,), optional
        Count in the variances by which squared differences are divided.

    Returns
    -------
    array or DataFrame, or a pair of tables where there are categories
        A cell for which no row is comparable gets the mean, or the most frequent category, of its column; one of a column
        without any value stays missing.

    Notes
    -----
    scikit-learn's KNNImputer averages several neighbours and takes incomplete rows as neighbours.

    Examples
    --------
    >>> vm.impute_nearest([[1.0, 10.0], [2.0, 20.0], [1.1, None]])
    array([[ 1. , 10. ],
           [ 2. , 20. ],
           [ 1.1, 10. ]])
    """
    X, labels = table(x)
    n, p = X.shape
    Z = X.copy(order="F")
    given = None if categories is None else strings(categories, "categories")
    if given is not None and given.rows != n:
        raise ValueError(f"categories: expected {n} rows, got {given.rows}")
    texts: Optional[list[Any]] = None if given is None else list(given.cells)
    incomplete = (X == MISSING).any(axis=1)
    if given is not None:
        incomplete |= np.array([any(not given.cells[i + n * j] for j in range(given.cols)) for i in range(n)], dtype=bool)
    w = weights_of(weights, n)
    if n:
        flat.VB_EstimateRowsWithMissingNN(Z, n, p, flags(incomplete, n, "x"), None, 0, texts,
                                          given.cols if given is not None else 0, w)
    Z[:, (X == MISSING).all(axis=0)] = MISSING
    filled = labelled(values(Z), labels.index, labels.columns)
    if given is None or texts is None:
        return filled
    return filled, labelled(as_list(texts, n, given.cols), given.labels.index, given.labels.columns)
