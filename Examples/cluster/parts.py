"""Tables in parts: CSV files in a folder, whose order is that of their names."""

from __future__ import annotations

import csv
import random
from pathlib import Path
from typing import Any

import numpy as np
import vecmat as vm

MEASURES = [f"m{j:02}" for j in range(1, 13)]
REGIONS = ["centre", "coast", "east", "north", "south", "west"]
STORES_PER_PART = 5


def write_parts(folder: Path, parts: int, rows: int, seed: int = 1) -> list[Path]:
    """Made-up sales of stores: each store lies in one part, the regions lie across all, and 4 % of the cells are empty."""
    # Of this generator, random() alone is promised to give the same series in every version.
    uniform = random.Random(seed).random
    paths = []
    for part in range(parts):
        path = folder / f"part-{part:03}.csv"
        with path.open("w", encoding="utf-8", newline="") as file:
            writer = csv.writer(file, lineterminator="\n")
            writer.writerow(["store", "region", "weight", *MEASURES])
            for _ in range(rows):
                store = f"s{part * STORES_PER_PART + int(uniform() * STORES_PER_PART):04}"
                writer.writerow([store, REGIONS[int(uniform() * len(REGIONS))], 1 + int(uniform() * 4), *_measures(uniform)])
        paths.append(path)
    return paths


def _measures(uniform: Any) -> list[str]:
    common = uniform() + uniform() + uniform() - 1.5
    cells = [f"{100.0 + 10.0 * common + 4.0 * j * (uniform() - 0.5):.3f}" for j in range(1, len(MEASURES) + 1)]
    return [cell if uniform() >= 0.04 else "" for cell in cells]


def read_part(path: Path) -> dict[str, Any]:
    return vm.read_table(path)


def measures(columns: dict[str, Any], names: list[str] = MEASURES) -> Any:
    """The columns of these names as one table; one that is empty throughout has no type of its own."""
    return np.column_stack([np.asarray(columns[name], dtype=np.float64) for name in names])
