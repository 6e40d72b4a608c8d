"""Every flat function gives through Python the bits that it gives in C++."""

import json
import os
from collections import Counter

import pytest
from flat_values import CALLS, array_of, floats, same
from shapes import evaluate

from vecmat import flat

DUMP = os.environ.get("VECMAT_DUMPED_CALLS")
pytestmark = pytest.mark.skipif(not DUMP, reason="VECMAT_DUMPED_CALLS names no file: tools/test python makes one")


def dumped():
    with open(DUMP, encoding="ascii") as file:
        for line in file:
            yield json.loads(line, strict=False)


def is_refused(call, name, values):
    """Where C is silent and Python tells: a position in nothing, and an option that is none."""
    domain = call.argument(name).domain
    if domain.kind == "option":
        return values[name] not in domain.options
    return domain.low is not None and evaluate(domain.high, values) < evaluate(domain.low, values)


def given(call, told):
    values = {}
    for argument, entry in zip(call.arguments, told):
        if "before" in entry:
            values[argument.name] = array_of(argument, entry["before"])
        elif argument.type == "double":
            values[argument.name] = float(floats(entry["value"])[0])
        else:
            values[argument.name] = entry["value"]
    return values


def test_every_call_has_the_same_bits():
    counts, wrong = Counter(), []
    for line in dumped():
        call = CALLS[line["call"]]
        values = given(call, line["arguments"])
        try:
            result = getattr(flat, call.name)(*values.values())
        except ValueError as error:
            if is_refused(call, str(error).split("'")[1].rstrip("_"), values):
                counts["refused"] += 1
                continue
            wrong.append(f"{call.name}: {error}")
            continue
        counts[call.name] += 1
        counts["calls"] += 1
        expected = line.get("returns")
        if call.returns == "double":
            expected = float(floats(expected)[0])
        if repr(result) != repr(expected) and not (call.returns == "void" or (result or "") == (expected or "")):
            wrong.append(f"{call.name}: returns {result!r}, expected {expected!r}")
        for argument, entry in zip(call.arguments, line["arguments"]):
            if "after" in entry and not same(argument, values[argument.name], entry["after"]):
                wrong.append(f"{call.name}: {argument.name} is {values[argument.name]!r}")
    assert not wrong, "\n".join(wrong[:20]) + f"\n({len(wrong)} in all)"
    assert all(counts[name] for name in CALLS), [name for name in CALLS if not counts[name]]
    print(f"{counts['calls']} calls of {len(CALLS)} functions with the same bits, {counts['refused']} refused")


def test_the_module_has_every_function():
    missing = [name for name in CALLS if not callable(getattr(flat, name, None))]
    assert not missing
