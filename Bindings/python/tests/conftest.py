"""What the tests share. They run on the installed package, and read the project's tables from the source tree."""

import os
import sys
from pathlib import Path

import numpy as np
import pytest

import vecmat as vm

ROOT = Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "tools/lib"))
sys.path.insert(0, str(Path(__file__).resolve().parent))

SHORT = bool(os.environ.get("VECMAT_SHORT_TESTS"))

try:
    from hypothesis import HealthCheck, settings

    settings.register_profile("whole", deadline=None, suppress_health_check=list(HealthCheck), max_examples=60)
    settings.register_profile("short", deadline=None, suppress_health_check=list(HealthCheck), max_examples=15)
    settings.load_profile("short" if SHORT else "whole")
except ImportError:
    pass


@pytest.fixture(scope="session")
def birds():
    return vm.penguins()


@pytest.fixture(scope="session")
def measures(birds):
    """The four columns of measurements."""
    return np.column_stack([birds[name] for name in
                            ("bill_length_mm", "bill_depth_mm", "flipper_length_mm", "body_mass_g")])
