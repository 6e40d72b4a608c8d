#!/usr/bin/env python3
"""growth.py FILE: whether what a call costs grows faster than its header says. FILE has the lines of count_steps: function,
what grows, style of the data, its size, cells of all arguments, steps.

A function may take steps in proportion to the cells of its arguments, and, where its @cost names an order ("of the order
n p^2"), to that. The growth of a doubling is log2 of the growth of the steps; of the two doublings the smaller counts, as one
of them may lead to another algorithm. The allowance covers a logarithm, and what differs between inputs; where all
dimensions grow these are short, and small sorts take the place of large ones.

Prints the functions that exceed it; exit status 1 if there is one, or if nothing was measured.
"""

import math
import re
import sys
from collections import defaultdict
from pathlib import Path

from arguments import read_calls
from contracts import contracts

ALLOWANCE = 0.35
ALLOWANCE_FOR_ALL = 0.6
LEAST_STEPS = 2000  # below that, chance decides
PRODUCT = "for each cell of the result and each step of the inner index"
GROWING = {"count": "counts", "rows": "rows", "columns": "columns", "all": "dimensions", "texts": "texts"}
ORDER = re.compile(r"of the order ((?:\w+(?:\^\d)? ?)+)")
WORD = re.compile(r"(\w+?)(?:\^(\d))?$")


def stated_powers(cost, kinds):
    """The powers that an order has of each kind of dimension, the largest of all orders in the text. A name that is no
    argument of the function stands for every kind."""
    powers = defaultdict(int)
    if PRODUCT in cost:
        powers.update({"any": 2, "all": 1})
    for match in ORDER.finditer(cost.replace("log n", "")):
        term = defaultdict(int)
        for word in match.group(1).split():
            name, power = WORD.match(word).groups()
            if name in kinds:
                term[kinds[name]] += int(power or 1)
            elif len(name) == 1:
                term["any"] += int(power or 1)
        for kind, power in term.items():
            powers[kind] = max(powers[kind], power)
    return powers


def exponent(smaller, larger):
    return math.log2(larger / smaller) if smaller > 0 and larger > 0 else 0.0


def limit(growth, cells, powers):
    """The exponent that may be reached: that of the cells, or of the stated order."""
    if growth == "texts":
        return 1.0
    stated = sum(powers.values()) if growth == "all" else powers[growth] + powers["any"]
    return max(1.0 if cells else 0.0, cells, stated)


def read_steps(path):
    """By function, what grows and style: the sizes with cells and steps."""
    measured = defaultdict(list)
    for line in Path(path).read_text(encoding="ascii").splitlines():
        name, growth, style, size, cells, steps = line.split("\t")
        measured[name, growth, style].append((int(size), int(cells), int(steps)))
    return measured


def judge(measured, costs, kinds):
    """Rows (function, what grows, style, exponent, limit) of what exceeds its limit."""
    found = []
    for (name, growth, style), rows in measured.items():
        if len(rows) < 3 or rows[-1][2] < LEAST_STEPS:
            continue
        reached = min(exponent(before[2], after[2]) for before, after in zip(rows, rows[1:]))
        allowed = limit(growth, exponent(rows[-2][1], rows[-1][1]), stated_powers(costs.get(name, ""), kinds[name]))
        if reached > allowed + (ALLOWANCE_FOR_ALL if growth == "all" else ALLOWANCE):
            found.append((name, growth, style, reached, allowed))
    return found


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    measured = read_steps(sys.argv[1])
    costs = {contract.declaration.name: contract.tags.get("cost", "") for contract in contracts()}
    kinds = {call.name: {argument.name: argument.domain.kind for argument in call.arguments} for call in read_calls().values()}
    found = judge(measured, costs, kinds)
    for name, growth, style, reached, allowed in found:
        print(f"{name}: as its {GROWING[growth]} grow, the steps grow by the power {reached:.2f}, where {allowed:.2f} is "
              f"stated (data: {style})")
    names = {name for name, _, _ in measured}
    print(f"{len(names)} functions, {sum(len(rows) for rows in measured.values())} calls measured, {len(found)} too steep")
    sys.exit(1 if found or not names else 0)


if __name__ == "__main__":
    main()
