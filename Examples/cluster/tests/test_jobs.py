"""Each job against the same statistics of the whole table in one process."""

import hashlib
import shutil

import numpy as np
import pytest
import vecmat as vm

import bootstrap
import covariance
import groups
import imputation
import permutation
from conftest import PER_TASK, REPETITIONS
from parts import MEASURES, measures, read_part, write_parts


def same_bits(a, b):
    a, b = np.ascontiguousarray(a), np.ascontiguousarray(b)
    return a.dtype == b.dtype and a.shape == b.shape and a.tobytes() == b.tobytes()


@pytest.fixture(scope="module")
def whole(paths):
    """The columns of all parts, one below the other."""
    columns = [read_part(path) for path in paths]
    return {name: np.concatenate([np.asarray(part[name]) for part in columns]) for name in columns[0]}


def test_parts_are_the_same_everywhere(tmp_path):
    text = b"".join(path.read_bytes() for path in write_parts(tmp_path, 3, 20))
    assert hashlib.sha256(text).hexdigest()[:16] == "82d0c565bd063a65"


def test_permutations_do_not_depend_on_tasks(on_one, four_workers):
    drawn = on_one("permutation").numbers["differences"]
    assert same_bits(drawn, permutation.differences(1, REPETITIONS))
    four_workers.begin("permutation")
    assert same_bits(drawn, permutation.run(four_workers, REPETITIONS, 3 * PER_TASK + 1).numbers["differences"])


def test_permutations_find_what_two_samples_have(on_one):
    mass, size = permutation.weights_of_two_species()
    drawn = on_one("permutation").numbers["differences"]
    assert len(np.unique(drawn)) > REPETITIONS // 4
    spread = mass.std(ddof=1) * np.sqrt(1 / size + 1 / (mass.size - size))
    assert abs(drawn.mean()) < 4 * spread / np.sqrt(REPETITIONS)
    assert drawn.std() == pytest.approx(spread, rel=0.1)


def test_bootstrap_does_not_depend_on_tasks(on_one, four_workers):
    drawn = on_one("bootstrap").numbers["correlations"]
    assert same_bits(drawn, bootstrap.correlations(1, REPETITIONS))
    four_workers.begin("bootstrap")
    assert same_bits(drawn, bootstrap.run(four_workers, REPETITIONS, 3 * PER_TASK + 1).numbers["correlations"])


def test_bootstrap_interval_holds_the_correlation(on_one):
    low, high = on_one("bootstrap").numbers["interval"]
    table = bootstrap.flippers_and_masses()
    r = np.corrcoef(table.T)[0, 1]
    assert low < r < high
    # Fisher's interval is of about the same width.
    width = np.diff(np.tanh(np.arctanh(r) + np.array([-1.96, 1.96]) / np.sqrt(len(table) - 3)))[0]
    assert high - low == pytest.approx(width, rel=0.3)


def test_regions_are_filled_as_in_the_whole_table(on_one, whole):
    table, filled = measures(whole), on_one("imputation").numbers["table"]
    gaps = np.isnan(table)
    assert gaps.any() and not np.isnan(filled).any()
    assert same_bits(filled[~gaps], table[~gaps])
    for region in set(whole["region"]):
        rows = whole["region"] == region
        assert same_bits(filled[rows], vm.impute_nearest(table[rows]))


def test_covariances_are_those_of_the_whole_table(on_one, whole):
    matrix = on_one("covariance").numbers["matrix"]
    expected = vm.cov(measures(whole), missing="complete")
    assert np.allclose(matrix, expected, rtol=1e-12, atol=0.0)
    assert same_bits(matrix, matrix.T)


def test_covariances_do_not_depend_on_blocks(on_one, four_workers, paths):
    four_workers.begin("covariance")
    assert same_bits(covariance.run(four_workers, paths, width=5).numbers["matrix"], on_one("covariance").numbers["matrix"])


def test_the_order_of_parts_settles_the_sum():
    pieces = [np.array([number]) for number in (1e16, 1.0, -1e16)]
    assert covariance.in_order(pieces)[0] == 0.0
    assert covariance.in_order([pieces[0], pieces[2], pieces[1]])[0] == 1.0


def test_covariances_need_two_rows(tmp_path, four_workers):
    path = tmp_path / "part-000.csv"
    path.write_text("store,region,weight," + ",".join(MEASURES) + "\ns1,east,1" + ",1.5" * 12 + "\ns1,east,1" + "," * 12 + "\n")
    four_workers.begin("covariance")
    with pytest.raises(ValueError, match="expected two rows"):
        covariance.run(four_workers, [path])


def test_groups_are_those_of_the_whole_table(on_one, whole):
    numbers = on_one("groups").numbers
    for name in groups.STATISTICS:
        expected = vm.group_by(measures(whole), whole["store"], name, weights=whole["weight"])
        assert list(numbers["stores"]) == list(expected.keys)
        assert same_bits(numbers["sizes"], expected.sizes)
        assert same_bits(numbers[name], expected.table)


def test_a_group_in_two_parts_is_refused(paths, tmp_path, four_workers):
    again = tmp_path / "part-100.csv"
    shutil.copy(paths[1], again)
    four_workers.begin("groups")
    with pytest.raises(ValueError, match="store s0005 lies in part-001.csv and in part-100.csv"):
        groups.run(four_workers, [*paths, again])
