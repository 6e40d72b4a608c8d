"""Times Python's libraries over the data written by vecmat_benchmarks --export.

    python3 peers.py DATA RESULTS.csv REGEX quick|full

A result is a row: workload, contender, seconds, deviation from the library's result in units of its largest number,
tolerance. A tolerance of -1 marks a result that is another one by its own rules.
"""

import csv
import gc
import math
import re
import sys
import time
from pathlib import Path

import numpy as np
import pandas as pd
import scipy.linalg
import scipy.stats
from sklearn.impute import KNNImputer

DATA = Path(sys.argv[1])
ONLY = re.compile(sys.argv[3])
REPETITIONS = 2 if sys.argv[4] == "quick" else 5
MISSING = -1.79769313486231e308
INCOMPARABLE = -1.0


class Workload:
    """The data of one workload, and the rows of results."""

    def __init__(self, name, rows):
        self.name = name
        self.rows = rows

    def cells(self, name):
        return np.fromfile(DATA / self.name / name)

    def size(self):
        return int(self.cells("size")[0])

    def table(self, name):
        """In the column-major order in which it was written."""
        return self.cells(name).reshape((self.size(), -1), order="F")

    def texts(self, name):
        return (DATA / self.name / name).read_text().split("\n")[:-1]

    def peer(self, contender, tolerance, run, result=lambda found: found):
        """`result` converts what `run` returns to the form of the library's result."""
        difference = 0.0
        if tolerance != INCOMPARABLE:
            difference = deviation(self.cells("ours"), result(run()))
        self.rows.writerow([self.name, contender, shortest(run), difference, tolerance])


def flat(*parts):
    return np.concatenate([np.asarray(part, dtype=float).ravel(order="F") for part in parts])


def deviation(expected, actual):
    actual = flat(actual)
    if expected.shape != actual.shape:
        return math.inf
    apart = np.where(expected == actual, 0.0, np.abs(expected - actual)).max()
    return apart / np.abs(expected[expected != MISSING]).max() if apart != 0.0 else 0.0


def shortest(run):
    """Processor time of the shortest of several runs."""
    best = math.inf
    for _ in range(REPETITIONS):
        spent = 0.0
        while spent < 0.1:
            start = time.thread_time()
            run()
            seconds = time.thread_time() - start
            best = min(best, seconds)
            spent += max(seconds, 1e-6)
    return best


def with_gaps(x):
    return np.where(x == MISSING, np.nan, x)


# ---- workloads -------------------------------------------------------------------------------------------------------


def sort_vector(w):
    x = w.cells("x")
    w.peer("NumPy sort, stable", 0.0, lambda: np.sort(x, kind="stable"))


def sort_rows(w):
    key, data = w.cells("key"), w.table("data")

    def run():
        rows = np.argsort(key, kind="stable")
        return data[rows], key[rows], rows

    w.peer("NumPy argsort, stable, and rows", 0.0, run, lambda found: flat(found[0], found[1], found[2] + 1))


def sort_apply(w):
    data, order = w.table("data"), w.cells("order").astype(int) - 1
    w.peer("NumPy rows", 0.0, lambda: data[order])


def ranks(w):
    x = w.cells("x")
    series = pd.Series(x)
    w.peer("SciPy rankdata", 0.0, lambda: scipy.stats.rankdata(x))
    w.peer("pandas rank", 0.0, series.rank)


def product(w):
    a, b = w.table("a"), w.table("b")
    w.peer("NumPy", 1e-13, lambda: a @ b)


def cross_product(w):
    a = w.table("a")
    w.peer("NumPy", 1e-13, lambda: a.T @ a)


def column_means(w):
    x, weights = w.table("x"), w.cells("w")
    w.peer("NumPy average", 1e-9, lambda: np.average(x, axis=0, weights=weights))


def four_moments(w):
    x = w.cells("x")

    def run():
        variance = x.var(ddof=1)
        # Its forms divide by the variance with divisor n.
        return x.mean(), variance, scipy.stats.skew(x), scipy.stats.kurtosis(x)

    def result(found):
        mean, variance, skewness, kurtosis = found
        ratio = (len(x) - 1) / len(x)
        return flat(mean, variance, skewness * ratio**1.5, (kurtosis + 3) * ratio**2 - 3)

    w.peer("NumPy, SciPy", 1e-10, run, result)


def quantile(w):
    x = w.cells("x")
    w.peer("NumPy quantile", 1e-14, lambda: np.quantile(x, 0.3))


def covariance(w):
    x = w.table("x")
    w.peer("NumPy cov", 1e-12, lambda: np.cov(x, rowvar=False))


def correlation_with_gaps(w):
    frame = pd.DataFrame(with_gaps(w.table("x")))
    # Its variances, too, are over the rows of a pair; the library's are over those of a column.
    w.peer("pandas corr", 0.02, frame.corr)


def eigen(w):
    a = w.table("a")
    w.peer("NumPy eigh", 1e-12, lambda: np.linalg.eigh(a), lambda found: found[0][::-1])


def singular_values(w):
    x = w.table("x")
    w.peer("NumPy svd", 1e-12, lambda: np.linalg.svd(x, full_matrices=False), lambda found: found[1])


def determinant(w):
    a = w.table("a")
    w.peer("NumPy det", 1e-10, lambda: np.linalg.det(a))


def inverse(w):
    a = w.table("a")
    w.peer("NumPy inv", 1e-9, lambda: np.linalg.inv(a))


def cholesky(w):
    a = w.table("a")
    w.peer("NumPy cholesky", 1e-12, lambda: np.linalg.cholesky(a))


def generalised_inverse(w):
    a = w.table("a")
    w.peer("NumPy pinv", 1e-9, lambda: np.linalg.pinv(a))


def least_squares(w):
    x, y = w.table("x"), w.cells("y")
    design = np.column_stack([x, np.ones(len(y))])
    w.peer("NumPy lstsq", 1e-10, lambda: np.linalg.lstsq(design, y, rcond=None), lambda found: found[0])


def group_means(w):
    cells = w.table("data")
    frame = pd.DataFrame({"key": cells[:, 0], "value": cells[:, 1]})
    w.peer("pandas groupby", 1e-12, lambda: frame.groupby("key")["value"].mean())


def categories(w):
    series = pd.Series(w.texts("x"))
    w.peer("pandas value_counts", 0.0, lambda: series.value_counts(sort=False))


def disjunctive_table(w):
    texts = np.array(w.texts("x"), dtype=object).reshape((w.size(), -1), order="F")
    names = [f"category {k}" for k in range(10)]
    frame = pd.DataFrame({f"v{j}": texts[:, j] for j in range(texts.shape[1])})
    wanted = [f"{column}_{name}" for column in frame.columns for name in names]
    w.peer("pandas get_dummies", 0.0, lambda: pd.get_dummies(frame, dtype=float),
           lambda found: found[wanted].to_numpy())


def census(w):
    frame = pd.DataFrame(with_gaps(w.table("x")))
    w.peer("pandas isna().sum()", 0.0, lambda: frame.isna().sum())


def nearest_neighbour(w):
    """Rows without a gap are the candidates, as they are for the library.

    A cell that the library has filled takes part in the distances of the row's next one, so only the first gap of each
    row is to be filled alike.
    """
    x = with_gaps(w.table("x"))
    complete = ~np.isnan(x).any(axis=1)
    deviations = np.nanstd(x, axis=0, ddof=1)

    def run():
        imputer = KNNImputer(n_neighbors=1).fit(x[complete] / deviations)
        filled = x.copy()
        filled[~complete] = imputer.transform(x[~complete] / deviations) * deviations
        return filled

    def result(filled):
        ours = w.table("ours").copy()
        first = np.isnan(x).argmax(axis=1)
        rows = np.flatnonzero(~complete)
        ours[rows, first[rows]] = filled[rows, first[rows]]
        return ours

    w.peer("scikit-learn KNNImputer", 1e-14, run, result)


def shuffle(w):
    x = w.cells("x")
    generator = np.random.default_rng(1)
    w.peer("NumPy permutation", INCOMPARABLE, lambda: generator.permutation(x))


def sample(w):
    texts = np.array(w.texts("x"), dtype=object).reshape((w.size(), -1), order="F")
    generator = np.random.default_rng(1)
    n = w.size()
    w.peer("NumPy choice and rows", INCOMPARABLE, lambda: texts[np.sort(generator.integers(0, n, n))])


WORKLOADS = {
    "sort-vector": sort_vector,
    "sort-rows": sort_rows,
    "sort-apply": sort_apply,
    "ranks": ranks,
    "product": product,
    "cross-product": cross_product,
    "column-means": column_means,
    "four-moments": four_moments,
    "quantile": quantile,
    "covariance": covariance,
    "correlation-with-gaps": correlation_with_gaps,
    "eigen": eigen,
    "singular-values": singular_values,
    "determinant": determinant,
    "inverse": inverse,
    "cholesky": cholesky,
    "generalised-inverse": generalised_inverse,
    "least-squares": least_squares,
    "group-means": group_means,
    "categories-10": categories,
    "categories-1000": categories,
    "categories-100000": categories,
    "disjunctive-table": disjunctive_table,
    "census": census,
    "nearest-neighbour": nearest_neighbour,
    "shuffle": shuffle,
    "sample": sample,
}


def main():
    with open(sys.argv[2], "w", newline="") as file:
        rows = csv.writer(file)
        rows.writerow(["workload", "contender", "seconds", "deviation", "tolerance"])
        for name, run in WORKLOADS.items():
            if ONLY.search(name):
                run(Workload(name, rows))
                file.flush()
                gc.collect()


if __name__ == "__main__":
    main()
