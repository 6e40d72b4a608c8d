"""Docstrings: their examples run, they have their sections, and the contracts are those of the headers."""

import doctest
import importlib
import inspect
import pkgutil
import subprocess
import sys
from pathlib import Path

import numpy as np
import pytest

import vecmat as vm
from vecmat._contracts import CONTRACTS

HERE = Path(__file__).resolve().parent
FUNCTIONS = [name for name in vm.__all__ if inspect.isfunction(getattr(vm, name))]
MODULES = [module.name for module in pkgutil.iter_modules(vm.__path__) if not module.name.startswith("_")]


@pytest.mark.parametrize("name", MODULES)
def test_examples_run(name):
    module = importlib.import_module(f"vecmat.{name}")
    assert doctest.testmod(module, extraglobs={"vm": vm, "np": np}).failed == 0


def test_the_examples_of_the_package_and_of_the_readme_run():
    assert doctest.testmod(vm).failed == 0
    found = doctest.testfile(str(HERE.parent / "README.md"), module_relative=False)
    assert found.failed == 0 and found.attempted > 8


@pytest.mark.parametrize("name", FUNCTIONS)
def test_sections(name):
    text = inspect.getdoc(getattr(vm, name))
    if name != "penguins":
        assert "Parameters\n----------" in text
        assert "Notes\n-----" in text
    assert "Returns\n-------" in text
    if name != "read_table":
        assert "Examples\n--------" in text and ">>> " in text
    assert "{" not in text.split("Examples\n")[0].replace("{0, 1}", "").replace("{1, 2, 3}", "").replace("{'", "")
    for parameter in inspect.signature(getattr(vm, name)).parameters.values():
        assert parameter.name in text.split("Returns\n")[0], parameter.name


def test_about_a_hundred_functions():
    assert len(FUNCTIONS) >= 100


def test_the_words_of_contracts_come_from_the_headers():
    assert CONTRACTS["VB_V_Mean2"]["missing"] in vm.mean.__doc__
    assert CONTRACTS["VB_M_CovCorr"]["divisor"] in vm.cov.__doc__


def test_types():
    done = subprocess.run([sys.executable, "-m", "mypy", "--strict", "--cache-dir", "/dev/null", "-p", "vecmat"],
                          capture_output=True, text=True, cwd=HERE)
    assert done.returncode == 0, done.stdout[-4000:]


def test_survey(tmp_path):
    penguins = Path(vm.__file__).with_name("penguins.csv")
    done = subprocess.run([sys.executable, "-m", "vecmat", "survey", penguins, "--by", "species", "--page", tmp_path],
                          capture_output=True, text=True)
    assert done.returncode == 0, done.stderr
    assert "Means by species" in done.stdout and "5076" in done.stdout  # the mean weight of Gentoo penguins
    page = (tmp_path / "index.html").read_text()
    assert page.count("<table>") == page.count("</table>") >= 6 and "data:image/png" in page
    done = subprocess.run([sys.executable, "-m", "vecmat", "survey", penguins, "--by", "x"], capture_output=True, text=True)
    assert done.returncode == 1 and "there is no column x" in done.stderr and "Traceback" not in done.stderr
