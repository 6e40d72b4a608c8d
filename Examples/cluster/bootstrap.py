"""A bootstrap: how certain is the correlation of flipper length and body mass? Each sample has a seed of its own."""

from __future__ import annotations

from typing import Any

import numpy as np
import vecmat as vm

from outcome import Outcome
from workers import Workers


def flippers_and_masses() -> Any:
    birds = vm.penguins()
    return vm.drop_missing(np.column_stack([birds["flipper_length_mm"], birds["body_mass_g"]]))


def correlation(table: Any) -> float:
    return float(vm.pearson(table[:, 0], table[:, 1]))


def correlations(first_seed: int, count: int) -> Any:
    """The correlations in `count` samples with replacement, by consecutive seeds."""
    table = flippers_and_masses()
    return np.array([correlation(table[vm.bootstrap_rows(len(table), seed=seed).values])
                     for seed in range(first_seed, first_seed + count)])


def run(workers: Workers, repetitions: int, per_task: int, first_seed: int = 1) -> Outcome:
    starts = range(first_seed, first_seed + repetitions, per_task)
    end = first_seed + repetitions
    drawn = np.concatenate(workers.gather([workers.submit(correlations, seed, min(per_task, end - seed)) for seed in starts]))
    observed = correlation(flippers_and_masses())
    low, high = vm.quantile(drawn, 0.025), vm.quantile(drawn, 0.975)
    return Outcome({"correlations": drawn, "interval": np.array([low, high])},
                   [f"Flipper length and body mass correlate by {observed:.4f},",
                    f"95 % between {low:.4f} and {high:.4f} in {repetitions} samples."])
