"""The functions of the package against NumPy, SciPy, pandas and scikit-learn, where they compute the same."""

import numpy as np
import pandas as pd
import pytest
import scipy.linalg
import scipy.stats
import sklearn.metrics
import sklearn.preprocessing
from hypothesis import assume, given
from hypothesis import strategies as st
from hypothesis.extra.numpy import arrays

import vecmat as vm

CELLS = st.floats(-1e6, 1e6).map(lambda x: round(x, 3))
GAPPY = st.one_of(CELLS, CELLS, CELLS, st.just(np.nan))
VECTORS = arrays(np.float64, st.integers(3, 30), elements=GAPPY)
TABLES = arrays(np.float64, st.tuples(st.integers(4, 20), st.integers(2, 4)), elements=GAPPY)
WHOLE_TABLES = arrays(np.float64, st.tuples(st.integers(5, 20), st.integers(2, 4)), elements=CELLS)


def near(found, expected, scale=1.0):
    np.testing.assert_allclose(np.asarray(found, dtype=float), np.asarray(expected, dtype=float), rtol=1e-9,
                               atol=1e-9 * max(scale, 1e-300))


@given(VECTORS)
def test_moments_of_vectors(x):
    assume(np.sum(~np.isnan(x)) > 3 and np.nanstd(x) > 1e-3)
    size = np.nanmax(np.abs(x))
    near(vm.mean(x), np.nanmean(x), size)
    near(vm.mean_absolute(x), np.nanmean(np.abs(x)), size)
    near(vm.var(x), np.nanvar(x, ddof=1), size**2)
    near(vm.var(x, ddof=0), np.nanvar(x), size**2)
    near(vm.std(x), pd.Series(x).std(), size)
    near(vm.total(x), np.nansum(x), size)
    near(vm.median(x), np.nanmedian(x), size)
    near(vm.value_range(x), (np.nanmin(x), np.nanmax(x)))
    kept = x[~np.isnan(x)]
    found = vm.moments(x)
    np.testing.assert_allclose(found.population_skewness, scipy.stats.skew(kept), rtol=1e-5, atol=1e-7)
    np.testing.assert_allclose(found.skewness, scipy.stats.skew(kept, bias=False), rtol=1e-5, atol=1e-7)
    np.testing.assert_allclose(found.kurtosis, scipy.stats.kurtosis(kept, bias=False), rtol=1e-4, atol=1e-6)
    near(vm.median_absolute_deviation(x), scipy.stats.median_abs_deviation(kept), size)
    near(vm.mean_absolute_deviation(x), np.mean(np.abs(kept - kept.mean())), size)


@given(VECTORS, st.randoms(use_true_random=False))
def test_weights(x, random):
    w = np.array([random.randint(0, 4) for _ in x], dtype=float)
    kept = ~np.isnan(x)
    assume(w[kept].sum() > 2)
    repeated = np.repeat(x[kept], w[kept].astype(int))
    near(vm.mean(x, weights=w), np.average(x[kept], weights=w[kept]), 1e6)
    near(vm.var(x, weights=w), np.var(repeated, ddof=1), 1e12)
    exclude = np.array([random.random() < 0.3 for _ in x])
    if (kept & ~exclude).any():
        near(vm.mean(x, exclude=exclude), np.nanmean(x[~exclude]), 1e6)


@given(VECTORS, st.floats(0, 1))
def test_quantiles(x, p):
    assume((~np.isnan(x)).any())
    near(vm.quantile(x, p), np.nanquantile(x, p), 1e6)


def test_quantiles_that_count_missing_values():
    assert vm.quantile([1.0, None, 3.0], 1.0, missing="count") == 3.0
    assert np.isnan(vm.quantile([1.0, None, 3.0], 0.0, missing="count"))
    assert vm.quantile([1.0, None, 3.0], 0.5, missing="count") == 1.0
    assert vm.quantile([1.0, 2.0, 3.0], 0.5, weights=[1, 1, 5]) == 3.0


@given(TABLES)
def test_covariances_are_those_of_pandas(x):
    frame = pd.DataFrame(x)
    near(vm.cov(x), frame.cov(min_periods=2), 1e12)
    spread = np.nanmin(np.nanstd(x, axis=0)) if (~np.isnan(x)).any(axis=0).all() else 0.0
    assume(spread > 1.0 and (frame.notna().astype(int).T @ frame.notna().astype(int)).to_numpy().min() > 2)
    expected = frame.corr()
    assume(not expected.isna().any().any())
    np.testing.assert_allclose(vm.corr(x), expected, atol=1e-6)


@given(WHOLE_TABLES)
def test_tables_without_gaps(x):
    assume((np.ptp(x, axis=0) > 1.0).all())
    near(vm.cov(x), np.cov(x.T), 1e12)
    near(vm.standardize(x, ddof=0).scores, sklearn.preprocessing.StandardScaler().fit_transform(x), 1.0)
    near(vm.cross_cov(x, x[:, :1]), np.cov(x.T)[:, :1], 1e12)
    weights = np.arange(1.0, len(x) + 1.0)
    for function in (vm.corr, lambda x, weights: vm.corr(x, weights=weights, missing="columns"),
                     lambda x, weights: vm.cross_corr(x, x[:, :1], weights=weights)):
        near(function(x, weights=weights / weights.sum() / 2.0), function(x, weights=weights))
    near(vm.cross_corr(x * 1e-9, x[:, :1]), vm.cross_corr(x, x[:, :1]))
    near(vm.matmul(x, x.T), x @ x.T, 1e12)
    near(vm.distances(x), scipy.spatial.distance.cdist(x, x), 1e6)
    near(vm.kron(x, x[:2]), np.kron(x, x[:2]), 1e12)
    near(vm.svd(x).s, np.linalg.svd(x, compute_uv=False), 1e7)
    u, s, v = vm.svd(x)
    near(u * s @ v.T, x, 1e7)


@given(st.integers(1, 8), st.integers(0, 2**31 - 1), st.integers(-60, 60))
def test_decompositions_at_every_scale(n, seed, exponent):
    rng = np.random.default_rng(seed)
    x = rng.normal(size=(n + 3, n))
    unit = x.T @ x + np.eye(n)
    a = unit * 2.0**exponent
    near(vm.eigh(a).values[::-1], np.linalg.eigvalsh(a), 2.0**exponent * n)
    near(vm.inv(a) @ a, np.eye(n))
    near(vm.pinv(a), np.linalg.pinv(a), 2.0**-exponent)
    near(vm.pinv(a, symmetric=True), np.linalg.pinv(a), 2.0**-exponent)
    near(vm.g2_inverse(a), np.linalg.inv(a), 2.0**-exponent)
    near(vm.cholesky(a), np.linalg.cholesky(a), 2.0**(exponent / 2))
    near(vm.det(a), np.linalg.det(a), abs(np.linalg.det(a)))
    near(vm.log_det(a), np.linalg.slogdet(a)[1], 10.0)
    near(vm.solve(a, x.T), np.linalg.solve(a, x.T), 2.0**-exponent)
    near(vm.sqrtm(a) @ vm.sqrtm(a), a, 2.0**exponent)
    near(vm.norm2(a), np.linalg.norm(a, 2), 2.0**exponent)
    near(vm.trace(a), np.trace(a), 2.0**exponent)
    near(vm.frobenius(a), np.linalg.norm(a), 2.0**exponent)
    near(vm.inv_triangular(np.tril(a)), np.linalg.inv(np.tril(a)), 2.0**-exponent)
    found = vm.lu(a)
    near(found.lower @ found.upper, a[found.rows], 2.0**exponent)
    pivoted = vm.cholesky_pivoted(a)
    near(pivoted.lower @ pivoted.lower.T, a[np.ix_(pivoted.order, pivoted.order)], 2.0**exponent)
    assert vm.table_rank(x * 2.0**exponent) == n
    assert vm.table_rank(np.column_stack([x, x[:, 0]]) * 2.0**exponent) == n
    assert (vm.eigh(a).values == vm.eigh(unit).values * 2.0**exponent).all()


def test_singular_tables():
    singular = [[1.0, 2.0], [2.0, 4.0]]
    for function in (vm.inv, vm.cholesky, lambda a: vm.solve(a, [1.0, 2.0])):
        with pytest.raises(np.linalg.LinAlgError):
            function(singular)
    with pytest.warns(vm.PrecisionWarning):
        vm.inv([[1.0, 1.0], [1.0, 1.0 + 1e-13]])
    near(vm.pinv(singular), np.linalg.pinv(singular))


@given(VECTORS)
def test_ranks_and_sorts(x):
    near(vm.rank(x), pd.Series(x).rank())
    near(vm.rank(x, ties="dense"), pd.Series(x).rank(method="dense"))
    near(vm.sort(x), np.sort(x))
    assert vm.argsort(x).tolist() == np.argsort(x, kind="stable").tolist()
    assert vm.unique(x).tolist() == np.unique(x[~np.isnan(x)]).tolist()
    assert vm.count_unique(x) == pd.Series(x).nunique()
    assert vm.count_missing(x) == np.isnan(x).sum()
    assert (vm.is_missing(x) == np.isnan(x)).all()
    near(vm.fill_missing(x, 3.0), np.nan_to_num(x, nan=3.0))


@given(WHOLE_TABLES)
def test_errors_of_forecasts(x):
    y, f = x[:, 0], x[:, 1]
    near(vm.mean_absolute_error(y, f), sklearn.metrics.mean_absolute_error(y, f), 1e6)
    near(vm.root_mean_squared_error(y, f), np.sqrt(sklearn.metrics.mean_squared_error(y, f)), 1e6)
    y = np.where(np.abs(y) < 1.0, 1.0, y)
    near(vm.mean_absolute_percentage_error(y, f), 100 * sklearn.metrics.mean_absolute_percentage_error(y, f), 1e9)


@given(TABLES)
def test_imputation_by_means(x):
    assume((~np.isnan(x)).any(axis=0).all())
    means = np.nanmean(x, axis=0)
    near(vm.impute_mean(x), np.where(np.isnan(x), means, x), 1e6)
    kept = ~np.isnan(x).any(axis=1)
    assert (vm.complete_rows(x) == kept).all()
    near(vm.drop_missing(x), x[kept])
    near(vm.insert_missing_rows(x[kept], kept), np.where(kept[:, None], x, np.nan))


def test_least_squares(birds, measures):
    kept = ~np.isnan(measures).any(axis=1)
    fit = vm.ols(measures[:, :3], measures[:, 3])
    design = np.column_stack([measures[kept][:, :3], np.ones(kept.sum())])
    beta, *_ = np.linalg.lstsq(design, measures[kept][:, 3], rcond=None)
    near(fit.coefficients, beta, 1e3)
    residuals = measures[kept][:, 3] - design @ beta
    variance = residuals @ residuals / (kept.sum() - 4)
    near(fit.standard_errors, np.sqrt(np.diag(np.linalg.inv(design.T @ design)) * variance), 1e3)
    near(fit.predict(measures[:, :3])[kept], fit.fitted[kept], 1e4)
    assert np.isnan(fit.fitted[~kept]).all() and fit.rows == kept.sum()
    line = scipy.stats.linregress(measures[kept, 2], measures[kept, 3])
    found = vm.ols(measures[kept, 2], measures[kept, 3])
    near(found.coefficients, [line.slope, line.intercept], 1e4)
    near(found.standard_errors[0], line.stderr)
    near(found.r_squared, line.rvalue**2)
    with pytest.warns(vm.PrecisionWarning):
        vm.ols([1.0, 2.0, 3.0, 4.0], [2.0, 4.0, 6.0, 8.0])


def test_components_and_collinearity(measures):
    from sklearn.decomposition import PCA
    whole = measures[~np.isnan(measures).any(axis=1)]
    peer = PCA().fit((whole - whole.mean(axis=0)) / whole.std(axis=0, ddof=1))
    found = vm.principal_components(whole)
    near(found.eigenvalues, peer.explained_variance_)
    near(np.abs(found.loadings), np.abs(peer.components_.T))
    r = np.corrcoef(whole.T)
    near(vm.collinearity(r).vif, np.diag(np.linalg.inv(r)))
    assert not vm.collinearity(np.ones((2, 2))).kept.all()
    filled = vm.nipals_impute(measures[:, :2].copy(), 1)
    assert not np.isnan(filled[~np.isnan(measures[:, :2]).all(axis=1)]).any()


def test_groups_and_categories(birds):
    frame = pd.DataFrame(birds)
    found = vm.group_by(frame[["body_mass_g", "bill_depth_mm"]], frame["species"], "median")
    pd.testing.assert_frame_equal(found.table, frame.groupby("species")[["body_mass_g", "bill_depth_mm"]].median(),
                                  check_names=False)
    for aggregate in ("sum", "mean", "std", "var", "min", "max"):
        near(vm.group_by(birds["body_mass_g"], birds["sex"], aggregate).table,
             frame.groupby("sex")["body_mass_g"].agg(aggregate), 1e6)
    counts = frame["species"].value_counts().sort_index()
    assert vm.categories(birds["species"]).names == list(counts.index)
    near(vm.categories(birds["species"]).weights, counts)
    coded = vm.dummies(birds["sex"])
    expected = pd.get_dummies(frame["sex"]).astype(float)
    expected[frame["sex"].isna()] = np.nan
    near(coded.table, expected)
    near(vm.dummies(birds["species"], coding="effect").table.sum(axis=0), [68 - 152, 124 - 152])
    near(vm.cross_table(birds["species"], birds["sex"])[0], pd.crosstab(frame["species"], frame["sex"]))
    assert vm.mode(birds["species"]) == "Adelie"
    codes, names = vm.codes(birds["sex"])
    assert (codes == frame["sex"].map({"female": 0.0, "male": 1.0}))[frame["sex"].notna()].all()


def test_series_last():
    first = vm.permutation(100, seed=5)
    assert sorted(first.values) == list(range(100))
    assert (vm.permutation(100, seed=5).values == first.values).all()
    assert (vm.permutation(100, seed=first.next_seed).values != first.values).any()
    assert (vm.permutation(100, seed=vm.permutation(100).seed).values >= 0).all()
    free = vm.permutation(50)
    assert (vm.permutation(50, seed=free.seed).values == free.values).all()
    assert vm.random_subset(50, 20, seed=1).values.sum() == 20
    drawn = vm.bootstrap_rows(40, seed=2).values
    assert drawn.size == 40 and drawn.min() >= 0 and drawn.max() < 40
    strata = vm.sample_stratified(["a"] * 60 + ["b"] * 30, 30, seed=1).values
    assert (strata < 60).sum() == 20 and len(set(strata)) == 30
    assert vm.random(seed=1).values == vm.random(seed=1).values


def test_letters():
    assert vm.compact_letters([3.0, 1.0, 2.0], np.array([[0, 1, 0], [1, 0, 0], [0, 0, 0]], dtype=bool)) == ["B", "A", "AB"]


def test_nearest_correlation():
    found = vm.nearest_correlation([[1.0, -0.55, -0.15], [-0.55, 1.0, 0.9], [-0.15, 0.9, 1.0]])
    assert np.linalg.eigvalsh(found).min() > -1e-5 and (np.diag(found) == 1.0).all()


def test_triangular():
    low, high = vm.triangular_from_quantiles(2.0, 4.0, 8.0)
    peer = scipy.stats.triang((4.0 - low) / (high - low), loc=low, scale=high - low)
    near(peer.cdf([2.0, 8.0]), [0.1, 0.9])
