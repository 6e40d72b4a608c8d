"""compare.py [--rows N]: times calls from Python beside NumPy, pandas, SciPy and scikit-learn, as a table in Markdown.

Each line is the shortest of several runs, and fails where the results differ by more than 1e-6 of their size.
"""

import argparse
import timeit

import numpy as np
import pandas as pd
import scipy.stats
from sklearn.impute import SimpleImputer
from sklearn.preprocessing import StandardScaler

import vecmat as vm


def best(call):
    timer = timeit.Timer(call)
    count, seconds = timer.autorange()
    return min([seconds, *timer.repeat(3, count)]) / count


def told(seconds):
    for unit, size in (("s", 1.0), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds * 1e9:.0f} ns"


def workloads(n):
    rng = np.random.default_rng(1)
    x = rng.normal(size=n)
    gappy = np.where(rng.random(n) < 0.05, np.nan, x)
    w = rng.random(n)
    table = np.asfortranarray(rng.normal(size=(n // 50, 20)))
    holes = np.where(rng.random(table.shape) < 0.05, np.nan, table)
    frame, series = pd.DataFrame(holes), pd.Series(gappy)
    groups = np.array(list("abcdefgh"))[rng.integers(0, 8, n // 10)]
    grouped, part = pd.Series(x[:n // 10]).groupby(groups), x[:n // 10]
    ten, a = np.arange(10.0), rng.normal(size=(100, 100))
    a = a @ a.T + np.eye(100)
    yield "mean of 10", lambda: vm.mean(ten), {"NumPy mean": lambda: np.mean(ten), "NumPy average": lambda: np.average(ten)}
    yield f"mean of {n}, 5 % missing", lambda: vm.mean(gappy), {"NumPy nanmean": lambda: np.nanmean(gappy),
                                                                 "pandas": lambda: series.mean()}
    yield f"weighted mean of {n}", lambda: vm.mean(x, weights=w), {"NumPy average": lambda: np.average(x, weights=w)}
    yield f"variance of {n}, 5 % missing", lambda: vm.var(gappy), {"NumPy nanvar": lambda: np.nanvar(gappy, ddof=1),
                                                                    "pandas": lambda: series.var()}
    yield f"median of {n}, 5 % missing", lambda: vm.median(gappy), {"NumPy nanmedian": lambda: np.nanmedian(gappy),
                                                                     "pandas": lambda: series.median()}
    yield f"skewness of {n}", lambda: vm.skewness(x, population=True), {"SciPy": lambda: scipy.stats.skew(x)}
    yield f"ranks of {n}", lambda: vm.rank(x), {"SciPy": lambda: scipy.stats.rankdata(x), "pandas": lambda: series.rank()}
    yield f"sort of {n}", lambda: vm.sort(x), {"NumPy": lambda: np.sort(x, kind="stable")}
    yield f"covariance, {len(table)} by 20", lambda: vm.cov(table), {"NumPy": lambda: np.cov(table.T)}
    yield f"correlation, {len(table)} by 20, 5 % missing", lambda: vm.corr(holes), {"pandas": lambda: frame.corr()}
    yield f"standardise, {len(table)} by 20", lambda: vm.standardize(table, ddof=0).scores, {
        "scikit-learn": lambda: StandardScaler().fit_transform(table)}
    yield f"impute means, {len(table)} by 20", lambda: vm.impute_mean(holes), {
        "scikit-learn": lambda: SimpleImputer().fit_transform(holes)}
    yield f"group means of {n // 10}", lambda: vm.group_by(part, groups).table, {"pandas": lambda: grouped.mean()}
    yield "eigenvalues, order 100", lambda: vm.eigh(a).values, {"NumPy eigh": lambda: np.linalg.eigh(a)[0][::-1]}
    yield "inverse, order 100", lambda: vm.inv(a), {"NumPy": lambda: np.linalg.inv(a)}
    yield "singular values, 200 by 20", lambda: vm.svd(table[:200]).s, {
        "NumPy": lambda: np.linalg.svd(table[:200], full_matrices=False)[1]}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--rows", type=int, default=1_000_000)
    print("| workload | vecmat | peers |\n| --- | --- | --- |")
    for name, ours, peers in workloads(parser.parse_args().rows):
        found = ours()
        for peer, call in peers.items():
            if not peer.startswith("pandas") or "ranks" not in name:
                np.testing.assert_allclose(found, call(), rtol=1e-6, atol=1e-6, err_msg=f"{name}, {peer}")
        own = best(ours)
        times = [(peer, best(call)) for peer, call in peers.items()]
        print(f"| {name} | {told(own)} | " + "; ".join(f"{told(time)} {peer} ({own / time:.2g})" for peer, time in times) + " |",
              flush=True)


if __name__ == "__main__":
    main()
