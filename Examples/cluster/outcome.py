"""What a job gives back: numbers, which are compared by their bits, and lines to read."""

from __future__ import annotations

import hashlib
from dataclasses import dataclass
from typing import Any

import numpy as np


@dataclass(frozen=True)
class Outcome:
    numbers: dict[str, Any]
    lines: list[str]

    def fingerprint(self) -> str:
        """A digest of all numbers: it changes with any bit of them."""
        digest = hashlib.sha256()
        for name, given in self.numbers.items():
            array = np.ascontiguousarray(given)
            digest.update(f"{name} {array.dtype.str} {array.shape} ".encode())
            digest.update(array.tobytes())
        return digest.hexdigest()
