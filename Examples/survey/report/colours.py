"""The colours of pictures, on light paper and on dark.

Those of the groups are told apart by all who see colours otherwise, too: M. Okabe and K. Ito (2008), "Color universal
design". On dark paper they are lightened.
"""

import re

named = {
    "paper": ("#ffffff", "#16191d"),
    "ink": ("#1f2328", "#e6e8eb"),
    "name": ("#1f2329", "#e6e8ec"),  # ink of texts that stand on what was drawn: see `sheet`
    "muted": ("#6a737d", "#9aa4af"),
    "faint": ("#d5dade", "#3a4149"),
    "group1": ("#0072b2", "#56a9e8"),
    "group2": ("#d55e00", "#f4894a"),
    "group3": ("#009e73", "#3fcf9f"),
    "group4": ("#aa4f86", "#e79cc7"),
    "group5": ("#56b4e9", "#a9dcfa"),
    "group6": ("#c98a00", "#f0c04d"),
}

groups = sum(name.startswith("group") for name in named)


def name_of(value):
    """The name of a colour as gnuplot writes it; none if it has no name here."""
    numbers = re.fullmatch(r"rgb\(\s*(\d+),\s*(\d+),\s*(\d+)\)", value)
    hexadecimal = "#%02x%02x%02x" % tuple(map(int, numbers.groups())) if numbers else value.lower()
    hexadecimal = {"black": named["ink"][0], "white": named["paper"][0]}.get(hexadecimal, hexadecimal)
    for name, (light, _) in named.items():
        if hexadecimal == light:
            return name
    return None


def sheet():
    """The style sheet of pictures. Names have a rim of paper, which keeps them readable on points and lines."""

    def rules(theme):
        for name, themes in named.items():
            for attribute in ("color", "fill", "stroke"):
                yield f".{attribute}-{name} {{ {attribute}: {themes[theme]}; }}"
        rim = f"stroke: {named['paper'][theme]}; stroke-width: 4; stroke-linejoin: round;"
        yield f".fill-name {{ paint-order: stroke; {rim} }}"

    return "\n".join([*rules(0), "@media screen and (prefers-color-scheme: dark) {", *rules(1), "}"])
