"""A permutation test: are Adelie and Chinstrap penguins equally heavy? Each repetition has a seed of its own."""

from __future__ import annotations

from typing import Any

import numpy as np
import vecmat as vm

from outcome import Outcome
from workers import Workers


def weights_of_two_species() -> tuple[Any, int]:
    """The weights, those of the first species in front, and how many these are."""
    birds = vm.penguins()
    mass, species = np.asarray(birds["body_mass_g"]), np.asarray(birds["species"])
    first, second = (mass[(species == name) & ~vm.is_missing(mass)] for name in ("Adelie", "Chinstrap"))
    return np.concatenate([first, second]), first.size


def difference(mass: Any, size: int) -> float:
    return float(vm.mean(mass[:size]) - vm.mean(mass[size:]))


def differences(first_seed: int, count: int) -> Any:
    """The differences of the means under `count` permutations, by consecutive seeds."""
    mass, size = weights_of_two_species()
    return np.array([difference(vm.shuffle(mass, seed=seed).values, size)
                     for seed in range(first_seed, first_seed + count)])


def run(workers: Workers, repetitions: int, per_task: int, first_seed: int = 1) -> Outcome:
    starts = range(first_seed, first_seed + repetitions, per_task)
    end = first_seed + repetitions
    drawn = np.concatenate(workers.gather([workers.submit(differences, seed, min(per_task, end - seed)) for seed in starts]))
    observed = difference(*weights_of_two_species())
    extreme = int(np.count_nonzero(np.abs(drawn) >= abs(observed)))
    p = (extreme + 1) / (repetitions + 1)
    return Outcome({"differences": drawn, "observed": np.array([observed])},
                   [f"Chinstrap penguins are {-observed:.2f} g heavier than Adelie penguins.",
                    f"{extreme} of {repetitions} permutations differ as much: p = {p:.4f}."])
