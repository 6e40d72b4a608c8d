"""Random numbers, permutations and samples: the same seed gives the same series on every machine and in every version."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Callable, Optional

import numpy as np
from numpy.typing import ArrayLike

from vecmat import flat
from vecmat._documents import documented
from vecmat._inputs import labelled, table, untyped, values, vector, whole
from vecmat._results import Result
from vecmat.groups import places_of_keys

__all__ = ["Drawn", "bootstrap_rows", "permutation", "random", "random_subset", "sample_stratified", "sample_systematic",
           "shuffle", "triangular_from_quantiles"]


@dataclass(frozen=True, repr=False)
class Drawn(Result):
    """What was drawn, the seed that gave it, and the one that goes on."""

    values: Any
    seed: int
    next_seed: int


def _draw(seed: Optional[int], call: Callable[[Any, int, Any], Any]) -> tuple[Any, int, int]:
    start, following = np.zeros(1, dtype=np.int32), np.zeros(1, dtype=np.int32)
    if seed is not None:
        start[0] = whole(seed, "seed")
    result = call(start, 0 if seed is None else -1, following)
    return result, int(start[0]), int(following[0])


@documented("GenerateRandom01")
def random(*, seed: Optional[int] = None) -> Drawn:
    """A number from 0 to 1, 1 excluded.

    Parameters
    ----------
    {seed}

    Returns
    -------
    Drawn
        `values`, a float; `seed`; `next_seed`.

    Notes
    -----
    numpy.random's streams may change from version to version.

    Examples
    --------
    >>> vm.random(seed=1).values
    0.417022004702574
    """
    return Drawn(*_draw(seed, lambda *series: untyped.GenerateRandom01(*series)))


@documented("Cpp_Random1toNLng")
def permutation(n: int, *, seed: Optional[int] = None) -> Drawn:
    """The numbers 0 to n - 1 in random order.

    Parameters
    ----------
    n : int
        How many.
    {seed}

    Returns
    -------
    Drawn
        `values`, an array of int; `seed`; `next_seed`.

    Notes
    -----
    As the method `permutation` of numpy.random.Generator, whose order may change from version to version.

    Examples
    --------
    >>> vm.permutation(5, seed=1).values
    array([2, 4, 3, 0, 1])
    """
    out = np.empty(whole(n, "n", 0), dtype=np.int32)
    _, start, following = _draw(seed, lambda *series: untyped.Cpp_Random1toNLng(out.size, out, *series))
    return Drawn(out.astype(np.int64) - 1, start, following)


@documented("Cpp_V_Shuffle", "Cpp_M_ShuffleDbl2")
def shuffle(x: ArrayLike, *, seed: Optional[int] = None) -> Drawn:
    """The values of a vector, or the rows of a table, in random order. Missing ones move like any other.

    Parameters
    ----------
    {x}
    {seed}

    Returns
    -------
    Drawn
        `values`, a new array; `seed`; `next_seed`.

    Notes
    -----
    numpy.random.Generator.shuffle works in place, and its order may change from version to version.

    Examples
    --------
    >>> vm.shuffle([10.0, 20.0, 30.0], seed=7).values
    array([10., 30., 20.])
    """
    if np.ndim(x) == 1:
        v = vector(x).copy()
        _, start, following = _draw(seed, lambda *series: untyped.Cpp_V_Shuffle(v, v.size, *series))
        return Drawn(values(v), start, following)
    X, labels = table(x)
    rows = permutation(X.shape[0], seed=seed)
    index = labels.index[rows.values] if labels.index is not None else None
    shuffled = np.asfortranarray(X[rows.values])
    return Drawn(labelled(values(shuffled), index, labels.columns), rows.seed, rows.next_seed)


@documented("VB_GenerateRandomIndicator")
def random_subset(n: int, k: int, *, seed: Optional[int] = None) -> Drawn:
    """k of n places at random, without replacement.

    Parameters
    ----------
    n : int
        How many places.
    k : int
        How many of them are taken.
    {seed}

    Returns
    -------
    Drawn
        `values`, an array of bool; `seed`; `next_seed`.

    Notes
    -----
    As the method `choice` of numpy.random.Generator with replace=False, which gives positions.

    Examples
    --------
    >>> vm.random_subset(5, 2, seed=3).values
    array([False, False,  True,  True, False])
    """
    out = np.zeros(whole(n, "n", 0))
    size = whole(k, "k", 0, out.size)
    _, start, following = _draw(seed, lambda *series: untyped.VB_GenerateRandomIndicator(out, out.size, size, *series))
    return Drawn(out != 0.0, start, following)


def _names(n: int) -> list[Optional[str]]:
    return [str(i) for i in range(n)]


@documented("VB_M_SamplingWithReplacement")
def bootstrap_rows(n: int, size: Optional[int] = None, *, seed: Optional[int] = None) -> Drawn:
    """Rows drawn with replacement, in ascending order, repeats beside each other.

    Parameters
    ----------
    n : int
        Rows to draw from.
    size : int, optional
        How many are drawn; n where it is left out.
    {seed}

    Returns
    -------
    Drawn
        `values`, row numbers from 0; `seed`; `next_seed`.

    Notes
    -----
    As the method `choice` of numpy.random.Generator, which gives them in the order drawn.

    Examples
    --------
    >>> vm.bootstrap_rows(6, seed=1).values
    array([0, 0, 0, 1, 2, 4])
    """
    rows = whole(n, "n", 1)
    count = whole(rows if size is None else size, "size", 0)
    taken: list[Any] = [None] * count
    ids = np.zeros(count)
    _, start, following = _draw(
        seed, lambda *series: untyped.VB_M_SamplingWithReplacement(_names(rows), rows, 1, count, taken, ids, *series))
    return Drawn(ids.astype(np.int64) - 1, start, following)


@documented("VB_M_SamplingSystematicRdStart")
def sample_systematic(n: int, size: int, *, seed: Optional[int] = None) -> Drawn:
    """Rows at equal steps from a random start.

    Parameters
    ----------
    n : int
        Rows to draw from.
    size : int
        How many are taken, at most.
    {seed}

    Returns
    -------
    Drawn
        `values`, row numbers from 0; `seed`; `next_seed`.

    Notes
    -----
    NumPy and pandas have none.

    Examples
    --------
    >>> vm.sample_systematic(10, 3, seed=1).values
    array([0, 4, 8])
    """
    rows = whole(n, "n", 1)
    count = whole(size, "size", 1, rows)
    ids = np.arange(1.0, rows + 1.0)
    taken: list[Any] = [None] * count
    _, start, following = _draw(
        seed, lambda *series: untyped.VB_M_SamplingSystematicRdStart(_names(rows), rows, 1, count, taken, ids, *series))
    return Drawn(ids[ids <= rows].astype(np.int64) - 1, start, following)


@documented("Cpp_M_SamplingRandomStratifiedByStr")
def sample_stratified(strata: Any, size: int, *, seed: Optional[int] = None) -> Drawn:
    """A sample in which each stratum has its share.

    Parameters
    ----------
    strata : array_like, shape (n,)
        The stratum of each row: numbers or strings, none missing.
    size : int
        How many rows are drawn.
    {seed}

    Returns
    -------
    Drawn
        `values`, row numbers from 0, stratum after stratum; `seed`; `next_seed`.

    Notes
    -----
    scikit-learn's train_test_split(stratify=...) rounds in another way, and shuffles.

    Examples
    --------
    >>> vm.sample_stratified(["a"] * 6 + ["b"] * 3, 3, seed=1).values
    array([2, 5, 8])
    """
    n = len(strata)
    place, names = places_of_keys(strata, n)
    if (place < 0).any():
        raise ValueError("strata: a row has none")
    count = whole(size, "size", 1, n)
    codes = place.astype(np.float64) + 1.0
    sizes = np.bincount(place, minlength=len(names)).astype(np.float64)
    quota = sizes * count / n
    ids, out = np.arange(1.0, n + 1.0), np.zeros(count)
    taken: list[Any] = [None] * count
    _, start, following = _draw(seed, lambda *series: untyped.Cpp_M_SamplingRandomStratifiedByStr(
        _names(n), n, 1, count, taken, ids, out, codes, quota, sizes, len(names), *series))
    return Drawn(out.astype(np.int64) - 1, start, following)


@documented("TriangularQFindAB")
def triangular_from_quantiles(low: float, mode: float, high: float, *, p_low: float = 0.1,
                              p_high: float = 0.9) -> tuple[float, float]:
    """Ends of the triangular distribution with a given mode and two given quantiles.

    Parameters
    ----------
    low, mode, high : float
        The lower quantile, the mode, the upper quantile, in this order.
    p_low, p_high : float, optional
        The probabilities of the two quantiles.

    Returns
    -------
    tuple of float
        NaN in both where the search fails.

    Notes
    -----
    scipy.stats.triang is fitted to data, not to quantiles.

    Examples
    --------
    >>> vm.triangular_from_quantiles(2.0, 5.0, 8.0)
    (-0.42705098312493117, 10.427050983124847)
    """
    if not (0.0 < p_low < p_high < 1.0):
        raise ValueError(f"p_low, p_high: expected probabilities with p_low below p_high, got {p_low!r} and {p_high!r}")
    if not low < high or not low <= mode <= high:
        raise ValueError(f"low, mode, high: expected ascending numbers, got {low!r}, {mode!r}, {high!r}")
    # The search starts at five times the upper quantile: everything is moved to where that is a good start.
    width = high - low
    a, b = np.empty(1), np.empty(1)
    flat.TriangularQFindAB(1.0, 1.0 + (mode - low) / width, 2.0, p_low, p_high, a, b)
    ends = [low + (float(end[0]) - 1.0) * width for end in (a, b)]
    if not (np.isfinite(ends).all() and ends[0] <= mode <= ends[1]):
        return float("nan"), float("nan")
    return ends[0], ends[1]
