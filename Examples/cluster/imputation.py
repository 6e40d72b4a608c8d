"""Missing cells filled by the most similar row of the same region. Regions lie across the parts: each is brought together
on one worker, its rows in the order of the parts."""

from __future__ import annotations

from pathlib import Path
from typing import Any

import numpy as np
import vecmat as vm

from outcome import Outcome
from parts import MEASURES, measures, read_part
from workers import Workers


def by_region(part: int, path: Path) -> dict[str, tuple[Any, Any]]:
    """Of each region in a part: where its rows lie (part and row), and their measures."""
    columns = read_part(path)
    table, regions = measures(columns), np.asarray(columns["region"])
    found = {}
    for region in sorted(set(columns["region"])):
        rows = np.flatnonzero(regions == region)
        found[region] = (np.column_stack([np.full(rows.size, part), rows]), table[rows])
    return found


def fill(region: str, *parts: dict[str, tuple[Any, Any]]) -> tuple[Any, Any, int]:
    """Where the region's rows lie, their measures without gaps, and how many gaps there were."""
    pieces = [part[region] for part in parts if region in part]
    table = np.vstack([piece for _, piece in pieces])
    return np.vstack([places for places, _ in pieces]), vm.impute_nearest(table), int(vm.count_missing(table).sum())


def run(workers: Workers, paths: list[Path]) -> Outcome:
    parts = [workers.submit(by_region, number, path) for number, path in enumerate(paths)]
    regions = sorted(set().union(*workers.gather([workers.submit(list, part) for part in parts])))
    filled = workers.gather([workers.submit(fill, region, *parts) for region in regions])
    places = np.vstack([rows for rows, _, _ in filled])
    order = np.lexsort((places[:, 1], places[:, 0]))
    table = np.vstack([piece for _, piece, _ in filled])[order]
    lines = [f"{region:8}{len(rows):6} rows{gaps:6} cells filled" for region, (rows, _, gaps) in zip(regions, filled)]
    means = "  ".join(f"{name} {mean:.3f}" for name, mean in zip(MEASURES[:4], vm.mean(table)))
    return Outcome({"table": table, "places": places[order]}, lines + [f"Means afterwards: {means} ..."])
