#!/usr/bin/env python3
"""concept_pictures.py [--check]: draws the pictures of the concepts, Docs/images/concepts/*.svg.

With --check draws nothing, and exits with 1 where a picture is not what would be drawn.
"""

import sys
from html import escape
from pathlib import Path

FOLDER = Path(__file__).resolve().parents[2] / "Docs/images/concepts"

# Light background, dark background. `a`, `b` and `c` tell columns or cases apart; `out` is what doesn't count.
COLOURS = {"paper": ("#ffffff", "#16191d"), "ink": ("#1f2328", "#e6e8eb"), "muted": ("#5d6770", "#a3adb8"),
           "line": ("#8a96a3", "#6b7885"), "cell": ("#eef4fa", "#1e2a36"), "out": ("#f6dcd8", "#4a2320"),
           "a": ("#cfe3f5", "#17405f"), "b": ("#fbe0c8", "#5a3512"), "c": ("#d0eedd", "#12483a"),
           "mark": ("#c2261a", "#ff7b6b")}
CELL_WIDTH, CELL_HEIGHT = 64, 30


def style_sheet():
    def rules(k):
        return "\n".join(f".{name} {{ fill: {pair[k]}; }} .{name}-line {{ stroke: {pair[k]}; }}"
                         for name, pair in COLOURS.items())
    fixed = ("text { font-family: Helvetica, Arial, sans-serif; font-size: 14px; } .small { font-size: 12px; }\n"
             ".code { font-family: ui-monospace, Menlo, Consolas, monospace; font-size: 13px; } .bold { font-weight: bold; }\n"
             "path, line { fill: none; stroke-width: 1.5; }")
    return f"{fixed}\n{rules(0)}\n@media (prefers-color-scheme: dark) {{\n{rules(1)}\n}}"


class Picture:
    """Shapes in the order in which they are drawn; coordinates in pixels from the top left corner."""

    def __init__(self, title, width, height):
        self.title, self.width, self.height, self.shapes = title, width, height, []

    def text(self, x, y, text, classes="ink", anchor="start"):
        self.shapes.append(f'<text x="{x}" y="{y}" class="{classes}" text-anchor="{anchor}">{escape(text)}</text>')

    def cell(self, x, y, text, fill="cell", width=CELL_WIDTH, height=CELL_HEIGHT, classes="ink code"):
        self.shapes.append(f'<rect x="{x}" y="{y}" width="{width}" height="{height}" class="{fill} line-line"/>')
        self.text(x + width / 2, y + height / 2 + 5, text, classes, "middle")

    def column(self, x, y, texts, fills="cell"):
        for k, text in enumerate(texts):
            self.cell(x, y + k * CELL_HEIGHT, text, fills if isinstance(fills, str) else fills[k])

    def line(self, *points, colour="line"):
        path = " L".join(f"{x} {y}" for x, y in points)
        self.shapes.append(f'<path d="M{path}" class="{colour}-line"/>')

    def arrow(self, x1, y1, x2, y2, colour="line"):
        """A straight arrow, level or upright."""
        self.line((x1, y1), (x2, y2), colour=colour)
        along_x = (x2 > x1) - (x2 < x1)
        along_y = (y2 > y1) - (y2 < y1)
        points = [(x2, y2)] + [(x2 - 8 * along_x + side * along_y, y2 - 8 * along_y + side * along_x) for side in (-4, 4)]
        corners = " ".join(f"{x},{y}" for x, y in points)
        self.shapes.append(f'<polygon points="{corners}" class="{"ink" if colour == "ink" else colour}"/>')

    def circle(self, x, y, radius, fill):
        self.shapes.append(f'<circle cx="{x}" cy="{y}" r="{radius}" class="{fill} line-line"/>')

    def svg(self):
        return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width}" height="{self.height}" '
                f'viewBox="0 0 {self.width} {self.height}" role="img">\n<title>{escape(self.title)}</title>\n'
                f"<style>\n{style_sheet()}\n</style>\n"
                f'<rect class="paper" width="{self.width}" height="{self.height}"/>\n' + "\n".join(self.shapes) + "\n</svg>\n")


def missing():
    picture = Picture("Which cells count under the test for equality, the test for order, and without a test", 640, 240)
    cells = ["4", "missing", "-inf", "NaN", "5"]
    tests = {"equality": [1, 0, 1, 1, 1], "order": [1, 0, 0, 1, 1], "no test": [1, 1, 1, 1, 1]}
    picture.text(72, 34, "the cells", "muted", "middle")
    for k, cell in enumerate(cells):
        picture.cell(24, 48 + 34 * k, cell, width=96)
    for j, (name, counted) in enumerate(tests.items()):
        x = 170 + 155 * j
        picture.text(x + 65, 34, name, "ink bold", "middle")
        for k, (cell, counts) in enumerate(zip(cells, counted)):
            shown = "left out" if not counts else "-1.8e308" if cell == "missing" else cell
            picture.cell(x, 48 + 34 * k, shown, "cell" if counts else "out", 130)
    picture.text(24, 232, "A NaN counts under every test.", "muted small")
    return picture


def masks():
    picture = Picture("A mask beside a table: two readings of its entries", 640, 240)
    entries, rows = ["0", "-1", "0", "1"], [["4", "10"], ["5", "20"], ["6", "30"], ["90", "40"]]
    picture.text(56, 34, "mask", "muted", "middle")
    picture.column(24, 48, entries, "b")
    for number, (name, dropped) in enumerate((("any entry but 0 drops", {1, 3}), ("exactly -1 drops", {1}))):
        x = 150 + 250 * number
        picture.text(x, 34, name, "ink bold")
        for i, row in enumerate(rows):
            for j, cell in enumerate(row):
                picture.cell(x + j * CELL_WIDTH, 48 + i * CELL_HEIGHT, cell, "out" if i in dropped else "cell")
            if i in dropped:
                picture.line((x, 63 + i * CELL_HEIGHT), (x + 2 * CELL_WIDTH, 63 + i * CELL_HEIGHT), colour="mark")
        mean = {2: "mean 5, 20", 1: "mean 33.3, 26.7"}[len(dropped)]
        picture.text(x, 192, mean, "ink code")
    picture.text(24, 226, "The contract says which reading a function takes. Write 0 and -1, and both agree.", "muted small")
    return picture


def weights():
    picture = Picture("Three values with weights on a line, and where their means lie", 640, 210)
    values, w = (4.0, 5.0, 7.0), (1, 3, 2)

    def place(value):
        return 60 + (value - 3.5) * 140

    picture.line((40, 90), (600, 90))
    for value, weight in zip(values, w):
        picture.circle(place(value), 90, 12 + 7 * weight ** 0.5, "a")
        picture.text(place(value), 95, f"{value:g}", "ink code", "middle")
        picture.text(place(value), 56, f"weight {weight}", "muted small", "middle")
    plain = sum(values) / 3
    weighted = sum(value * weight for value, weight in zip(values, w)) / sum(w)
    for mean, name, y in ((plain, f"mean {plain:.3f}", 160), (weighted, f"weighted mean {weighted:.3f}", 190)):
        picture.arrow(round(place(mean), 1), y - 16, round(place(mean), 1), 118, "mark" if mean == weighted else "muted")
        picture.text(place(mean) + (8 if mean == weighted else -8), y, name, "ink", "start" if mean == weighted else "end")
    return picture


def divisors():
    picture = Picture("One sum of squares, three divisors, three variances", 640, 190)
    total, rows, squares = 15.0, 5, 49.733333333333334
    picture.text(24, 34, "Q = 49.733 over the divisor, for the weights 1, 2, 3, 4, 5: W = 15, m = 5", "muted")
    for k, (name, divisor, fill) in enumerate((("W", total, "a"), ("W - 1", total - 1, "b"), ("W - W/m", total - total / rows, "c"))):
        y = 52 + 42 * k
        picture.text(24, y + 20, name, "ink code")
        picture.cell(110, y, f"{divisor:g}", fill, round(divisor * 22), 30)
        picture.text(120 + round(divisor * 22), y + 20, f"variance {squares / divisor:.3f}", "ink")
    return picture


def bits():
    picture = Picture("Four numbers summed in order and in pairs: the results differ in the last digit", 640, 270)
    terms = (0.1, 0.7, 0.2, 0.3)
    chain = [terms[0] + terms[1]]
    for term in terms[2:]:
        chain.append(chain[-1] + term)
    for number, name in enumerate(("in row order", "in pairs")):
        x = 30 + 310 * number
        picture.text(x, 34, name, "ink bold")
        for k, term in enumerate(terms):
            picture.cell(x + k * 70, 48, f"{term:g}", "a", 56)
    x = 30
    for k in range(3):
        y = 100 + 52 * k
        left, right = (x + 28, x + 98) if k == 0 else (x + 63 + 70 * (k - 1), x + 98 + 70 * k)
        picture.line((left, 78 if k == 0 else y - 22), (x + 63 + 70 * k, y))
        picture.line((right, 78), (x + 63 + 70 * k, y))
        picture.cell(x + 35 + 70 * k, y, f"≈ {chain[k]:.1f}" if k < 2 else repr(chain[k]), "c", 56 if k < 2 else 150)
    x = 340
    for k in range(2):
        for side in (28, 98):
            picture.line((x + 140 * k + side, 78), (x + 140 * k + 63, 126))
        picture.cell(x + 140 * k + 35, 126, f"≈ {terms[2 * k] + terms[2 * k + 1]:.1f}", "c", 56)
        picture.line((x + 140 * k + 63, 156), (x + 133, 204))
    picture.cell(x + 58, 204, repr((terms[0] + terms[1]) + (terms[2] + terms[3])), "c", 150)
    picture.text(30, 258, "Every sum here runs in row order, whatever the processor offers.", "muted small")
    return picture


def seeds():
    picture = Picture("A seed starts a series of draws and comes back as the seed that goes on", 640, 220)
    for number, (flag, seed, following) in enumerate((("-1", "20", "1169590032"), ("-1", "1169590032", "..."))):
        x = 24 + 300 * number
        picture.cell(x, 60, seed, "a", 110)
        picture.text(x + 55, 50, f"seed, flag {flag}", "muted small", "middle")
        picture.arrow(x + 110, 75, x + 150, 75)
        picture.cell(x + 150, 60, "draws", "c", 80)
        picture.arrow(x + 230, 75, x + 268 if number == 0 else x + 262, 75)
        if number == 1:
            picture.text(x + 270, 80, following, "ink code")
    picture.text(294, 112, "the call gives back the seed that goes on", "muted small", "middle")
    picture.cell(24, 150, "?", "out", 110)
    picture.text(79, 140, "seed, any other flag", "muted small", "middle")
    picture.arrow(134, 165, 174, 165)
    picture.cell(174, 150, "draws", "c", 80)
    picture.text(270, 170, "from a seed that nobody chose, which is stored in its place", "muted small")
    return picture


def columns():
    picture = Picture("A table, its memory column after column, an array of columns, and a triangle", 660, 300)
    names = [["11", "21", "31"], ["12", "22", "32"]]
    picture.text(24, 34, "a table", "ink bold")
    for j, fill in enumerate("ab"):
        picture.column(24 + j * CELL_WIDTH, 48, names[j], fill)
    picture.text(210, 34, "its memory", "ink bold")
    for k, name in enumerate(names[0] + names[1]):
        picture.cell(210 + k * CELL_WIDTH, 48, name, "a" if k < 3 else "b")
    picture.text(210, 106, "cell (i, j), from 0, is at i + rows * j", "muted small")
    picture.text(24, 180, "an array of columns", "ink bold")
    for j, fill in enumerate("ab"):
        picture.cell(24, 194 + j * 44, f"column {j + 1}", "cell", 90)
        picture.arrow(114, 209 + j * 44, 150, 209 + j * 44)
        for k, name in enumerate(names[j]):
            picture.cell(150 + k * CELL_WIDTH, 194 + j * 44, name, fill)
    picture.text(400, 180, "a triangle of columns", "ink bold")
    for j, fill in enumerate("abc"):
        for k in range(3 - j):
            picture.cell(400 + k * CELL_WIDTH, 194 + j * 32, f"{j + k + 1}{j + 1}", fill)
    return picture


PICTURES = (missing, masks, weights, divisors, bits, seeds, columns)


def main():
    check, wrong = "--check" in sys.argv[1:], []
    for draw in PICTURES:
        file, svg = FOLDER / f"{draw.__name__}.svg", draw().svg()
        if check:
            if not file.exists() or file.read_text(encoding="utf-8") != svg:
                wrong.append(f"WRONG: {file.name} is not what tools/pictures draws")
        else:
            FOLDER.mkdir(parents=True, exist_ok=True)
            file.write_text(svg, encoding="utf-8")
    print("\n".join(wrong), end="\n" if wrong else "")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
