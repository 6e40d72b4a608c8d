"""The same bits on one worker and on four, whole or killed; results in the order of the tasks; errors; progress."""

import io
import re
import subprocess
import sys
import time

import numpy as np
import pytest

from conftest import EXAMPLE, JOBS, SHORT
from outcome import Outcome
from workers import Progress


@pytest.mark.parametrize("job", JOBS)
def test_same_bits_on_one_worker_and_on_four(job, on_one, four_workers, paths):
    four_workers.begin(job)
    assert JOBS[job](four_workers, paths).fingerprint() == on_one(job).fingerprint()


@pytest.mark.parametrize("job", list(JOBS) * (1 if SHORT else 3))
def test_same_bits_where_a_worker_is_killed(job, on_one, four_workers, paths):
    four_workers.begin(job, kill_worker=True)
    before, killed_before = four_workers.processes(), len(four_workers.killed)
    outcome = JOBS[job](four_workers, paths)
    assert len(four_workers.killed) == killed_before + 1
    assert four_workers.killed[-1] in before
    assert outcome.fingerprint() == on_one(job).fingerprint()

    four_workers.begin(job)
    assert four_workers.killed[-1] not in four_workers.processes()


def test_the_only_worker_is_replaced(on_one, one_worker, paths):
    expected = on_one("covariance").fingerprint()
    one_worker.begin("covariance", kill_worker=True)
    before = one_worker.processes()
    assert JOBS["covariance"](one_worker, paths).fingerprint() == expected
    assert one_worker.killed == before


def test_results_come_in_the_order_of_the_tasks(four_workers):
    # Within the test, so that it is sent to the workers as it is: they can't import the tests.
    def slow_first(number):
        time.sleep(0.3 if number == 0 else 0.0)
        return number

    four_workers.begin("order")
    assert four_workers.gather([four_workers.submit(slow_first, number) for number in range(12)]) == list(range(12))


def test_an_error_in_a_task_reaches_the_caller(four_workers):
    four_workers.begin("error")
    with pytest.raises(ZeroDivisionError):
        four_workers.gather([four_workers.submit(divmod, 1, number) for number in (1, 0)])


def test_one_bit_changes_the_fingerprint():
    numbers = np.array([1.0, 2.0])
    changed = np.array([1.0, np.nextafter(2.0, 3.0)])
    assert Outcome({"x": numbers}, []).fingerprint() == Outcome({"x": numbers.copy()}, ["line"]).fingerprint()
    assert Outcome({"x": numbers}, []).fingerprint() != Outcome({"x": changed}, []).fingerprint()
    assert Outcome({"x": np.array([0.0])}, []).fingerprint() != Outcome({"x": np.array([-0.0])}, []).fingerprint()


class Terminal(io.StringIO):
    def isatty(self):
        return True


def test_progress_rewrites_its_line_on_a_terminal_only():
    terminal, file = Terminal(), io.StringIO()
    for stream in (terminal, file):
        progress = Progress("job", stream)
        for done in range(1, 9):
            progress.show(done, 8, 4)
    assert terminal.getvalue().count("\n") == 1 and terminal.getvalue().count("\r") == 8
    assert file.getvalue().splitlines() == [f"job: {done} of 8 tasks, 4 workers" for done in (1, 2, 4, 6, 8)]


def test_the_program_kills_and_compares():
    run = subprocess.run([sys.executable, "-B", EXAMPLE, "groups", "covariance", "--workers", "1", "2", "--kill-worker",
                          "--rows", "60"], capture_output=True, text=True, timeout=120)
    assert run.returncode == 0, run.stderr
    assert run.stdout.count("the same bits") == 2
    assert len(re.findall(r"killed worker process \d+, which had \d+ (?:task|result)s? in hand", run.stderr)) == 4
    assert "groups: 8 of 8 tasks" in run.stderr
    assert "Traceback" not in run.stderr
