"""The measurements of penguins with which the examples work (Gorman, Williams, Fraser 2014)."""

from __future__ import annotations

import csv
from pathlib import Path
from typing import Any

import numpy as np

__all__ = ["penguins", "read_table"]


def read_table(path: Any) -> dict[str, Any]:
    """The columns of a CSV file with a line of names: arrays of floats, or lists of strings.

    Parameters
    ----------
    path : str or path
        The file.

    Returns
    -------
    dict
        Empty cells and NA are NaN in a column of numbers, None in one of strings.

    Notes
    -----
    pandas.read_csv has types for more kinds of columns.
    """
    with open(path, encoding="utf-8", newline="") as file:
        rows = [row for row in csv.reader(file) if row]
    if not rows:
        raise ValueError(f"{path}: the file is empty")
    names = rows[0]
    for number, row in enumerate(rows[1:], start=2):
        if len(row) != len(names):
            raise ValueError(f"{path}, line {number}: {len(row)} cells, but {len(names)} names")
    columns: dict[str, Any] = {}
    for j, name in enumerate(names):
        cells = [None if row[j].strip() in ("", "NA", "NaN", "nan") else row[j].strip() for row in rows[1:]]
        try:
            columns[name] = np.array([np.nan if cell is None else float(cell) for cell in cells])
        except ValueError:
            columns[name] = cells
    return columns


def penguins() -> dict[str, Any]:
    """Measurements of 344 penguins of three species, a few of them missing.

    Returns
    -------
    dict
        Columns by name: species, island, bill_length_mm, bill_depth_mm, flipper_length_mm, body_mass_g, sex.

    Examples
    --------
    >>> sorted(vm.penguins())[:3]
    ['bill_depth_mm', 'bill_length_mm', 'body_mass_g']
    """
    return read_table(Path(__file__).with_name("penguins.csv"))
