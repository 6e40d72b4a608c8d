#!/usr/bin/env python3
"""made_table.py ROWS [COLUMNS [GROUPS]]: prints a table with gaps, the same in every run, to time the survey on.

Two of the columns are text (`group` and `site`), the others numeric and correlated; about 1 cell in 50 is empty.
"""

import random
import sys


def main(rows, columns=20, groups=5):
    draw = random.Random(1)
    numeric = columns - 2
    out = sys.stdout
    out.write(",".join(["group", "site", *[f"m{k}" for k in range(1, numeric + 1)]]) + "\n")
    for i in range(rows):
        group, site = draw.randrange(groups), draw.randrange(4)
        common = draw.gauss(0.4 * (group % 7), 1)
        cells = [f"g{group + 1}", f"site {site + 1}"]
        cells += [f"{10 + common + draw.gauss(0, 1 + 0.1 * k):.4f}" for k in range(numeric)]
        out.write(",".join("" if draw.random() < 0.02 else cell for cell in cells) + "\n")


if __name__ == "__main__":
    main(*map(int, sys.argv[1:]))
