"""What the tests share: clusters of one and of four workers, and parts that are small enough to be quick."""

import os
import sys
from pathlib import Path

import pytest

EXAMPLE = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(EXAMPLE))

import bootstrap
import covariance
import groups
import imputation
import permutation
from parts import write_parts
from workers import Workers

SHORT = bool(os.environ.get("VECMAT_SHORT_TESTS"))
REPETITIONS, PER_TASK = (600, 25) if SHORT else (10000, 250)
PARTS, ROWS = 6, (80 if SHORT else 300)

JOBS = {
    "permutation": lambda workers, paths: permutation.run(workers, REPETITIONS, PER_TASK),
    "bootstrap": lambda workers, paths: bootstrap.run(workers, REPETITIONS, PER_TASK),
    "imputation": imputation.run,
    "covariance": covariance.run,
    "groups": groups.run,
}


@pytest.fixture(scope="session")
def paths(tmp_path_factory):
    return write_parts(tmp_path_factory.mktemp("parts"), PARTS, ROWS)


@pytest.fixture(scope="session")
def one_worker():
    with Workers(1) as workers:
        yield workers


@pytest.fixture(scope="session")
def four_workers():
    with Workers(4) as workers:
        yield workers


@pytest.fixture(scope="session")
def on_one(one_worker, paths):
    """The outcome of a job on one worker, computed once."""
    outcomes = {}

    def outcome(job):
        if job not in outcomes:
            one_worker.begin(job)
            outcomes[job] = JOBS[job](one_worker, paths)
        return outcomes[job]
    return outcome
