#!/usr/bin/env python3
"""floor_picture.py [--check]: draws the floors of the library, and the includes between them.

Writes Docs/images/floors.svg with Graphviz' dot. With --check draws nothing, and exits with 1 if the picture is out of
date (it records the includes it was drawn from), or Docs/layout.md has another order of the floors.
"""

import re
import subprocess
import sys
from html import escape
from pathlib import Path

import floors

DOCS = floors.ROOT.parents[2] / "Docs"
PICTURE = DOCS / "images/floors.svg"
PAGE = DOCS / "layout.md"

# The floors that all others build on. Includes of these are listed in the boxes: as arrows they would hide the rest.
GROUND = [floor for floor in floors.FLOORS if floors.ORDER[floor] <= floors.ORDER["frame"]]
ROOF = "umbrella"

# By the classes of nodes and edges below: light background, dark background.
COLOURS = {
    ".paper": ("fill", "#ffffff", "#16191d"),
    ".node path": ("fill", "#eef4fa", "#1e2a36"),
    ".ground path": ("fill", "#f3f1ea", "#2a2822"),
    ".node path, .cluster path": ("stroke", "#7d8b99", "#6b7885"),
    ".cluster path": ("fill", "none", "none"),
    "text": ("fill", "#1f2328", "#e6e8eb"),
    ".edge text": ("stroke", "#ffffff", "#16191d"),  # an outline for numbers on arrows
    ".edge path, .edge polygon": ("stroke", "#5b7f9f", "#7fa8cc"),
    ".edge polygon": ("fill", "#5b7f9f", "#7fa8cc"),
    ".up path, .up polygon": ("stroke", "#c2261a", "#ff7b6b"),
    ".up polygon": ("fill", "#c2261a", "#ff7b6b"),
}


def box(floor, edges):
    """A node: the name of the floor, its contents, and how often it includes each floor of the ground."""
    lines = [f"<B>{floor}</B>", f'<FONT POINT-SIZE="10">{escape(floors.FLOORS[floor])}</FONT>']
    if floor not in GROUND:
        below = [f"{e.target}\u00a0{e.count}" for e in edges if e.source == floor and e.target in GROUND]
        lines.append(f'<FONT POINT-SIZE="10"><I>{" · ".join(below)}</I></FONT>')
    kind = "ground" if floor in GROUND else "subject"
    return f'"{floor}" [class={kind} label=<{"<BR/>".join(lines)}>]'


def arrow(edge):
    kind = "class=up constraint=false" if edge.is_upward else "class=down"  # upward includes must not move the rows
    return (f'"{edge.source}" -> "{edge.target}" [{kind} label="{edge.count}" '
            f"penwidth={1 + min(edge.count, 40) / 20:g}]")


def drawn(edge):
    if edge.is_upward:
        return True
    return ROOF not in (edge.source, edge.target) and (edge.source in GROUND) == (edge.target in GROUND)


def dot_text(edges):
    """The input of dot: a row for each floor, an arrow for its includes of lower floors."""
    subjects = [floor for floor in floors.FLOORS if floor not in GROUND and floor != ROOF]
    lines = ["digraph floors {",
             'graph [rankdir=TB ranksep=0.45 nodesep=0.4 fontname="Helvetica" newrank=true]',
             'node [shape=box style="rounded,filled" fontname="Helvetica" fontsize=13 margin="0.3,0.08"]',
             'edge [fontname="Helvetica" fontsize=11 arrowsize=0.7]']
    for name, members in (("subjects", subjects), ("ground", GROUND)):
        boxes = [box(floor, edges) for floor in members]
        lines += [f"subgraph cluster_{name} {{", 'label="" style=rounded', *boxes, "}"]
    order = [floor for floor in reversed(floors.FLOORS) if floor != ROOF]
    lines += [f'"{above}" -> "{below}" [style=invis]' for above, below in zip(order, order[1:])]
    lines += [arrow(edge) for edge in edges if drawn(edge)]
    return "\n".join([*lines, "}"]) + "\n"


def sheet():
    """The style of the picture on a light and on a dark background."""

    def rules(theme):
        return [f"{selector} {{ {name}: {themes[theme]}; }}" for selector, (name, *themes) in COLOURS.items()]

    rim = ".edge text { paint-order: stroke; stroke-width: 3; }"
    return "\n".join([*rules(0), rim, "@media (prefers-color-scheme: dark) {", *rules(1), "}"])


def picture(text):
    run = subprocess.run(["dot", "-Tsvg"], input=text, capture_output=True, text=True, encoding="utf-8", check=True)
    svg = run.stdout[run.stdout.index("<svg"):]
    svg = re.sub(r"<title>.*?</title>\n?|<!--.*?-->\n?", "", svg, flags=re.DOTALL)
    svg = svg.replace('<polygon fill="white" stroke="transparent"', '<polygon class="paper" stroke="none"', 1)
    head_end = svg.index(">") + 1
    added = f"\n<metadata><![CDATA[\n{text}]]></metadata>\n<style>\n{sheet()}\n</style>"
    return svg[:head_end] + added + svg[head_end:]


def source_of(svg):
    match = re.search(r"<!\[CDATA\[\n(.*?)\]\]>", svg, re.DOTALL)
    return match[1] if match else None


def main():
    text = dot_text(floors.graph(floors.read_includes(floors.read_files())))
    if "--check" not in sys.argv[1:]:
        PICTURE.parent.mkdir(exist_ok=True)
        PICTURE.write_text(picture(text), encoding="utf-8")
        return
    faults = []
    if not PICTURE.exists() or source_of(PICTURE.read_text(encoding="utf-8")) != text:
        faults.append(f"{PICTURE} shows other includes than the sources have: run tools/layout")
    order = " < ".join(floor for floor in floors.FLOORS if floor != ROOF)
    if order not in " ".join(PAGE.read_text(encoding="utf-8").split()):
        faults.append(f"{PAGE} lacks the order of the floors: {order}")
    if faults:
        sys.exit("\n".join(faults))


if __name__ == "__main__":
    main()
