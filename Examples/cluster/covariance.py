"""Covariances of columns in parts, by blocks of columns: each task has one part and two blocks in memory. Rows with a
missing cell are left out. Sums of parts are added in the order of the parts."""

from __future__ import annotations

from pathlib import Path
from typing import Any

import numpy as np
import vecmat as vm

from outcome import Outcome
from parts import MEASURES, measures, read_part
from workers import Workers


def complete(path: Path) -> Any:
    return vm.drop_missing(measures(read_part(path)))


def rows_and_totals(path: Path) -> tuple[int, Any]:
    table = complete(path)
    return len(table), vm.total(table) if len(table) else np.zeros(table.shape[1])


def rows_and_means(*parts: tuple[int, Any]) -> tuple[int, Any]:
    rows = sum(count for count, _ in parts)
    if rows < 2:
        raise ValueError(f"covariances: expected two rows without a missing cell, got {rows}")
    return rows, in_order([totals for _, totals in parts]) / rows


def in_order(pieces: list[Any]) -> Any:
    """The sum from the first to the last: a sum in another order can have other last bits."""
    total = np.array(pieces[0])
    for piece in pieces[1:]:
        total = total + piece
    return total


def cross_products(path: Path, whole: tuple[int, Any], first: slice, second: slice) -> Any:
    """Products of the deviations of two blocks of columns from their means, summed over the rows of a part."""
    table = complete(path)
    deviations = table - whole[1]
    if not len(table):
        return np.zeros((first.stop - first.start, second.stop - second.start))
    return vm.matmul(np.asfortranarray(deviations[:, first].T), np.asfortranarray(deviations[:, second]))


def over_all_rows(whole: tuple[int, Any], *parts: Any) -> Any:
    return in_order(list(parts)) / (whole[0] - 1)


def run(workers: Workers, paths: list[Path], width: int = 4) -> Outcome:
    whole = workers.submit(rows_and_means, *[workers.submit(rows_and_totals, path) for path in paths])
    p = len(MEASURES)
    blocks = [slice(start, min(start + width, p)) for start in range(0, p, width)]
    pairs = [(first, second) for i, first in enumerate(blocks) for second in blocks[i:]]
    products = [[workers.submit(cross_products, path, whole, *pair) for path in paths] for pair in pairs]
    rows, *results = workers.gather([whole] + [workers.submit(over_all_rows, whole, *parts) for parts in products])
    matrix = np.empty((p, p))
    for (first, second), result in zip(pairs, results):
        matrix[first, second] = result
        matrix[second, first] = result.T
    lines = [f"{len(paths)} parts, {rows[0]} rows without a missing cell, {len(pairs)} pairs of blocks"]
    lines += ["  ".join([name, *(f"{cell:8.3f}" for cell in row[:4]), "..."]) for name, row in zip(MEASURES[:4], matrix)]
    return Outcome({"matrix": matrix}, lines)
