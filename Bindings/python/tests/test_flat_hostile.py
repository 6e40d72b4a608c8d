"""No argument of a flat function may end the process."""

import subprocess
import sys
from pathlib import Path

import pytest

HERE = Path(__file__).resolve().parent


def run(script, *words):
    return subprocess.run([sys.executable, "-B", HERE / script, *words], capture_output=True, text=True)


def test_every_function_survives_and_names_the_argument():
    done = run("hostile_flat.py")
    calls = done.stderr.split("\n")
    assert done.returncode == 0, f"status {done.returncode} in: {calls[-2:]}"
    *wrong, last = done.stdout.strip().split("\n")
    assert last.startswith("survived: 5")
    assert not [line for line in wrong if line], "\n".join(wrong[:20])
    assert len(calls) > 50000


OUT_OF_MEMORY = """
import resource
import numpy as np
from vecmat import flat
n = 20_000_000
x = np.arange(float(n))
resource.setrlimit(resource.RLIMIT_AS, (int(open("/proc/self/statm").read().split()[0]) * 4096 + 50_000_000,) * 2)
try:
    flat.VB_V_QuantileM(x, n, None, 0.5)
except MemoryError:
    print("MemoryError")
"""


@pytest.mark.skipif(not Path("/proc/self/statm").exists(), reason="takes Linux")
def test_an_allocation_that_fails_is_a_memory_error():
    done = subprocess.run([sys.executable, "-c", OUT_OF_MEMORY], capture_output=True, text=True)
    assert done.stdout.strip() == "MemoryError", done.stderr


def test_every_function_of_the_other_layer_survives():
    done = run("hostile_functions.py")
    assert done.returncode == 0, f"status {done.returncode} in: {done.stderr.splitlines()[-2:]}"
    *wrong, last = done.stdout.strip().split("\n")
    assert last.startswith("survived")
    assert not [line for line in wrong if line], "\n".join(wrong[:20])
