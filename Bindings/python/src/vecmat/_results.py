"""Results with names: their fields can be read as attributes or unpacked in order, and they print as a short list."""

from __future__ import annotations

from dataclasses import fields
from typing import Any, Iterator


class Result:
    """Base of the results that have several parts."""

    def __iter__(self) -> Iterator[Any]:
        return (getattr(self, field.name) for field in fields(self))

    def __repr__(self) -> str:
        lines = [type(self).__name__]
        for field in fields(self):
            value = getattr(self, field.name)
            text = repr(value) if not isinstance(value, float) else f"{value:.6g}"
            first, *rest = text.split("\n")
            lines.append(f"  {field.name}: {first}")
            lines += [" " * (len(field.name) + 4) + line for line in rest]
        return "\n".join(lines)


class PrecisionWarning(UserWarning):
    """Digits of a result are lost or were never there: the message says which, and why."""
