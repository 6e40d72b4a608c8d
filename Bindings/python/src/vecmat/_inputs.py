"""What comes in: arrays, lists, Series and DataFrames become cells; what goes out gets its labels back."""

from __future__ import annotations

import importlib
import operator
from typing import Any, NamedTuple, Optional, Sequence, Union

import numpy as np
from numpy.typing import ArrayLike, NDArray

import vecmat.flat
from vecmat._border import cells, is_vector, values
from vecmat.flat import MISSING

__all__ = ["MISSING", "Floats", "Labels", "Strings", "as_list", "cells", "column_vector", "flags", "is_vector",
           "labelled", "labels_of", "mask_of", "numbers", "one_column", "strings", "table", "untyped", "values",
           "vector", "weights_of", "whole"]

# Dimensions are handed over as shapes, which the types of these functions cannot follow.
untyped: Any = vecmat.flat

Floats = NDArray[np.float64]
Flags = NDArray[np.int16]


class Labels(NamedTuple):
    """The labels of what came in: None where it had none."""

    index: Any = None
    columns: Any = None
    name: Any = None

    def of_columns(self) -> Labels:
        """For a result with an entry for each column."""
        return Labels(self.columns)


class Strings(NamedTuple):
    """A table of strings, column after column; None where a cell is missing."""

    cells: list[Optional[str]]
    rows: int
    cols: int
    labels: Labels

    def column(self, j: int) -> list[Optional[str]]:
        return self.cells[j * self.rows:(j + 1) * self.rows]


def labels_of(given: Any) -> Labels:
    index = getattr(given, "index", None)
    if index is None or callable(index):
        return Labels()
    return Labels(index, getattr(given, "columns", None), getattr(given, "name", None))


def _is_missing(value: Any) -> bool:
    return value is None or type(value).__name__ in ("NAType", "NaTType") or value != value


def numbers(given: ArrayLike, name: str) -> Floats:
    """float64 with NaN for what is missing."""
    to_numpy = getattr(given, "to_numpy", None)
    if to_numpy is not None and getattr(given, "index", None) is not None:
        try:
            return np.asarray(to_numpy(dtype=np.float64, na_value=np.nan))
        except (TypeError, ValueError):
            raise TypeError(f"{name}: expected numbers, got a {type(given).__name__} that holds other things") from None
    if isinstance(given, np.ma.MaskedArray):
        masked: Any = given
        return np.where(masked.mask, np.nan, np.asarray(masked.data, dtype=np.float64))
    try:
        array = np.asarray(given)
    except ValueError:
        raise ValueError(f"{name}: the rows differ in length") from None
    if array.dtype.kind in "biuf":
        return array.astype(np.float64, copy=False)
    if array.dtype == object:
        try:
            flat = [np.nan if _is_missing(value) else float(value) for value in array.ravel()]
        except (TypeError, ValueError):
            raise TypeError(f"{name}: expected numbers, got an array of objects that are none") from None
        return np.array(flat, dtype=np.float64).reshape(array.shape)
    if array.size == 0:
        return array.astype(np.float64)
    raise TypeError(f"{name}: expected numbers, got an array of {array.dtype}")


def vector(given: ArrayLike, name: str = "x", length: Optional[int] = None) -> Floats:
    """The cells of a vector, with the missing value for NaN. The caller's own memory where it fits: not to be written."""
    array = cells(given if is_vector(given) else numbers(given, name))
    if array.ndim != 1:
        raise ValueError(f"{name}: expected one dimension, got the shape {array.shape}")
    if length is not None and array.size != length:
        raise ValueError(f"{name}: expected {length} values, got {array.size}")
    return array


def table(given: ArrayLike, name: str = "x", *, square: bool = False, rows: Optional[int] = None,
          cols: Optional[int] = None) -> tuple[Floats, Labels]:
    """The cells of a table in column order, with the missing value for NaN, and its labels."""
    array = cells(numbers(given, name))
    if array.ndim != 2:
        raise ValueError(f"{name}: expected a table of two dimensions, got the shape {array.shape}")
    if square and array.shape[0] != array.shape[1]:
        raise ValueError(f"{name}: expected a square table, got the shape {array.shape}")
    if rows is not None and array.shape[0] != rows:
        raise ValueError(f"{name}: expected {rows} rows, got {array.shape[0]}")
    if cols is not None and array.shape[1] != cols:
        raise ValueError(f"{name}: expected {cols} columns, got {array.shape[1]}")
    if max(array.shape) > 2**31 - 1:
        raise ValueError(f"{name}: more rows or columns than the library counts, 2147483647")
    return array, labels_of(given)


def column_vector(given: ArrayLike, name: str = "x") -> tuple[Floats, Labels]:
    """A vector with its labels."""
    array = vector(given, name)
    return array, labels_of(given) if not is_vector(given) else Labels()


def weights_of(weights: Optional[ArrayLike], n: int) -> Floats:
    if weights is None:
        return np.ones(n)
    array = numbers(weights, "weights")
    if array.shape != (n,):
        raise ValueError(f"weights: expected {n} values, got the shape {array.shape}")
    if not np.all(array >= 0.0) or np.isinf(array).any():
        raise ValueError("weights: a weight is negative, missing or infinite")
    return array


def flags(given: ArrayLike, n: int, name: str) -> Flags:
    """Booleans as the library has them: -1 and 0."""
    array = np.asarray(given)
    if array.dtype != np.bool_:
        raise TypeError(f"{name}: expected booleans, got an array of {array.dtype}")
    if array.shape != (n,):
        raise ValueError(f"{name}: expected {n} booleans, got the shape {array.shape}")
    return -array.astype(np.int16)


def mask_of(exclude: Optional[ArrayLike], n: int) -> Optional[Flags]:
    return None if exclude is None else flags(exclude, n, "exclude")


def strings(given: Any, name: str = "x") -> Strings:
    """A table, or one column, of strings. Numbers become their text."""
    labels = labels_of(given)
    to_numpy = getattr(given, "to_numpy", None)
    array = to_numpy(dtype=object) if to_numpy is not None and labels.index is not None else np.array(given, dtype=object)
    if array.ndim == 1:
        array = array.reshape(-1, 1)
    if array.ndim != 2:
        raise ValueError(f"{name}: expected a column or a table of strings, got the shape {array.shape}")
    return Strings([None if _is_missing(value) else str(value) for value in array.ravel(order="F")],
                   array.shape[0], array.shape[1], labels)


def one_column(x: Any) -> Strings:
    """The strings of one column."""
    given = strings(x)
    if given.cols != 1:
        raise ValueError(f"x: expected one column, got {given.cols}")
    return given


def as_list(given: Sequence[Optional[str]], rows: int, cols: int) -> NDArray[np.object_]:
    """Strings column after column as a table of objects, None for the empty ones."""
    array = np.empty(len(given), dtype=object)
    array[:] = [text or None for text in given]
    return array.reshape((rows, cols), order="F")


def whole(value: Any, name: str, low: int = -2**31, high: int = 2**31 - 1) -> int:
    """A whole number from a range."""
    try:
        number = operator.index(value)
    except TypeError:
        raise TypeError(f"{name}: expected a whole number, got {value!r}") from None
    if not low <= number <= high:
        raise ValueError(f"{name}: expected a whole number from {low} to {high}, got {number}")
    return number


def labelled(result: Union[Floats, NDArray[Any]], index: Any = None, columns: Any = None, name: Any = None) -> Any:
    """A Series or DataFrame where there are labels, else the array itself."""
    if index is None and columns is None:
        return result
    pandas: Any = importlib.import_module("pandas")

    if result.ndim == 1:
        return pandas.Series(result, index=index, name=name)
    return pandas.DataFrame(result, index=index, columns=columns)
