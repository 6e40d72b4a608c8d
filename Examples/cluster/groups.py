"""Weighted statistics of stores. Each store lies within one part: what a part says about it is the whole truth."""

from __future__ import annotations

from pathlib import Path
from typing import Any

import numpy as np
import vecmat as vm

from outcome import Outcome
from parts import MEASURES, measures, read_part
from workers import Workers

STATISTICS = ("mean", "std", "median")


def statistics(path: Path) -> tuple[list[str], Any, dict[str, Any]]:
    """Stores, their numbers of rows, and the statistics of their measures."""
    columns = read_part(path)
    table, weights = measures(columns), np.asarray(columns["weight"])
    found = {name: vm.group_by(table, columns["store"], name, weights=weights) for name in STATISTICS}
    return list(found["mean"].keys), found["mean"].sizes, {name: groups.table for name, groups in found.items()}


def refuse_split_groups(paths: list[Path], stores: list[list[str]]) -> None:
    seen: dict[str, Path] = {}
    for path, names in zip(paths, stores):
        for name in names:
            if name in seen:
                raise ValueError(f"store {name} lies in {seen[name].name} and in {path.name}: a group must lie within one part")
            seen[name] = path


def run(workers: Workers, paths: list[Path]) -> Outcome:
    found = workers.gather([workers.submit(statistics, path) for path in paths])
    refuse_split_groups(paths, [names for names, _, _ in found])
    stores = [name for names, _, _ in found for name in names]
    sizes = np.concatenate([counts for _, counts, _ in found])
    tables = {name: np.vstack([of_part[name] for _, _, of_part in found]) for name in STATISTICS}
    lines = [f"{len(stores)} stores in {len(paths)} parts; {MEASURES[0]} of the first and the last:"]
    for row in (0, -1):
        cells = "".join(f"  {name} {tables[name][row, 0]:.3f}" for name in STATISTICS)
        lines.append(f"{stores[row]}{sizes[row]:5} rows{cells}")
    return Outcome({"stores": np.array(stores), "sizes": sizes, **tables}, lines)
