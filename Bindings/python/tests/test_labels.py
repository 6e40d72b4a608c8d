"""Labels in, labels out; what is missing on both sides of the border."""

import numpy as np
import pandas as pd
import pytest

import vecmat as vm

FRAME = pd.DataFrame({"a": [1.0, np.nan, 3.0, 5.0], "b": [2, 4, 6, 9]}, index=list("wxyz"))


@pytest.mark.parametrize("function", [vm.mean, vm.var, vm.std, vm.median, vm.minimum, vm.maximum, vm.total, vm.count_missing])
def test_columns_keep_their_names(function):
    assert list(function(FRAME).index) == ["a", "b"]


def test_rows_keep_their_names():
    assert list(vm.mean(FRAME, axis=1).index) == list("wxyz")
    assert vm.mean(FRAME, axis=1)["x"] == 4.0
    for result in (vm.rank(FRAME["a"]), vm.zscores(FRAME["a"]), vm.rescale(FRAME["a"]), vm.center(FRAME["a"])):
        assert list(result.index) == list("wxyz") and result.name == "a" and np.isnan(result["x"])


def test_tables_keep_both():
    for function in (vm.cov, vm.corr):
        assert list(function(FRAME).index) == list(function(FRAME).columns) == ["a", "b"]
    for function in (vm.center, vm.scale, vm.impute_mean, lambda x: vm.standardize(x).scores):
        result = function(FRAME)
        assert list(result.index) == list("wxyz") and list(result.columns) == ["a", "b"]
    assert list(vm.drop_missing(FRAME).index) == ["w", "y", "z"]
    assert list(vm.sort_rows(FRAME.fillna(0.0)).index) == ["x", "w", "y", "z"]


def test_what_is_missing_goes_in_and_comes_back():
    for x in ([1.0, None, 3.0], [1.0, np.nan, 3.0], pd.Series([1, pd.NA, 3], dtype="Int64"), pd.Series([1, None, 3]),
              np.array([1.0, None, 3.0], dtype=object), np.ma.array([1.0, 9.0, 3.0], mask=[0, 1, 0]), [1.0, pd.NA, 3.0],
              np.array([1.0, np.nan, 3.0], dtype=np.float32), np.array([1.0, np.nan, 3.0, 4.0])[:3]):
        assert vm.mean(x) == 2.0
        assert np.isnan(np.asarray(vm.rank(x))[1])
    assert np.isnan(vm.mean([None, None])) and np.isnan(vm.mean([]))


def test_infinities_stay():
    assert vm.mean([1.0, np.inf]) == np.inf
    assert vm.mean([1.0, -np.inf]) == -np.inf
    assert vm.maximum([1.0, np.inf]) == np.inf
    assert not vm.is_missing([-np.inf]).any()


def test_what_comes_in_is_not_written():
    x = np.asfortranarray(np.arange(12.0).reshape(6, 2))
    x[1, 0] = np.nan
    before = x.copy()
    for name in ("center", "scale", "standardize", "impute_mean", "normalize", "sort_rows", "drop_missing", "shuffle", "rank"):
        try:
            getattr(vm, name)(x)
        except (TypeError, ValueError):
            getattr(vm, name)(x[:, 1])
        np.testing.assert_array_equal(x, before)


def test_results_are_readable_and_unpack():
    centre, spread = vm.mean_std([1.0, 2.0, 3.0])
    assert (centre, spread) == (2.0, 1.0)
    text = repr(vm.mean_std([1.0, 2.0, 3.0]))
    assert text == "CentreAndSpread\n  mean: 2\n  spread: 1"


def test_zero_weights_and_divisors():
    x, w = [1.0, 2.0, 4.0, 50.0], [1.0, 2.0, 3.0, 0.0]
    counted = vm.var(x, weights=w, divisor="reliability")
    skipped = vm.var(x, weights=w, divisor="reliability", zero_weights="skipped")
    assert counted * (6 - 6 / 4) == pytest.approx(skipped * (6 - 6 / 3)) and counted != skipped
    assert vm.var(x, weights=w) == pytest.approx(np.var(np.repeat(x, [1, 2, 3, 0]), ddof=1))
    for wrong in ({"ddof": 2}, {"divisor": "n"}, {"ddof": 1, "divisor": "population"}, {"weights": [1, 1, 1, -1]},
                  {"exclude": [1, 0, 0, 0]}, {"weights": [1.0]}):
        with pytest.raises((ValueError, TypeError)) as raised:
            vm.var(x, **wrong)
        assert next(iter(wrong)) in str(raised.value)
