"""The pictures of a survey."""

import copy
import math
import xml.etree.ElementTree as xml
from dataclasses import dataclass

import colours
import gnuplot
from gnuplot import Undrawable, quoted, quoted_tic, shortened

LETTER = 8  # pixels that a letter of the pictures takes, about
LINE = 18
MOST_NAMES = 12  # of columns in a biplot


@dataclass
class Drawn:
    svg: xml.Element
    caption: str


def draw(survey, directory):
    """Draws what the survey has data for: pictures by name, each also in a file of the directory. Those of an earlier
    survey are removed."""
    drawers = {
        "correlation_map": correlation_map,
        "scree": scree,
        "biplot": biplot,
        "residuals": residuals,
        "residual_quantiles": residual_quantiles,
    }
    for path in [*directory.glob("distribution_*.svg"), *[directory / f"{name}.svg" for name in drawers]]:
        path.unlink(missing_ok=True)
    result = {}
    for name in [name for section in survey.sections for name in section.pictures]:
        drawn = distribution(survey, name) if name.startswith("distribution_") else drawers[name](survey)
        drawn.svg = gnuplot.with_prefix(with_paper(drawn.svg), name)
        directory.mkdir(exist_ok=True)
        (directory / f"{name}.svg").write_text(standalone(drawn.svg, drawn.caption), encoding="utf-8")
        result[name] = drawn
    return result


def with_paper(svg):
    """A background, without which a picture would take that of whatever shows it."""
    svg.insert(0, xml.Element("rect", {"width": "100%", "height": "100%", "class": "fill-paper"}))
    return svg


def standalone(svg, caption):
    file = copy.deepcopy(svg)
    file.set("role", "img")
    title = xml.Element("title")
    title.text = caption
    file.insert(0, title)
    file.set("xmlns", "http://www.w3.org/2000/svg")
    file.set("font-family", "sans-serif")
    style = xml.Element("style")
    style.text = colours.sheet()
    file.insert(0, style)
    for element in file.iter("use"):  # older readers of pictures know no other
        element.set("xlink:href", element.attrib.pop("href"))
    file.set("xmlns:xlink", "http://www.w3.org/1999/xlink")
    return xml.tostring(file, encoding="unicode") + "\n"


def assigned(**values):
    return [f"{name} = {value!r}" for name, value in values.items()]


# ---------------------------------------------------------------------------------------------------------------------


def scree(survey):
    variances = [(int(k), float(variance), float(percent)) for k, variance, percent in survey.records("scree")[1:]]
    last = len(variances)
    top = max(1.2, 1.12 * variances[0][1])
    labels = [
        f"set label {quoted(f'{percent:.1f} %')} at {k}, {variance!r} offset 0.9, 0.5 front textcolor rgb name"
        for k, variance, percent in variances
        if last <= 12
    ]
    settings = assigned(width=640, height=340, last=last, top=top, step=max(1, last // 12))
    svg = gnuplot.drawn("scree.gp", [*settings, *labels], {"variances": [v[:2] for v in variances]})
    return Drawn(
        svg,
        "Scree plot: the variance of each component"
        + (", with its share" if last <= 12 else "")
        + ". The dashed line is the variance of a single column.",
    )


# ---------------------------------------------------------------------------------------------------------------------


def biplot(survey):
    columns = [(name, float(x), float(y)) for name, x, y in survey.records("biplot_columns")[1:]]
    groups = [(name, float(x), float(y)) for name, x, y in survey.records("biplot_groups")[1:]]
    rows = survey.records("biplot_rows")[1:]
    share = [float(percent) for _, _, percent in survey.records("scree")[1:]]
    every = int(rows[1][0]) - int(rows[0][0])
    coloured = 0 < len(groups) <= colours.groups
    number = {name: k for k, (name, _, _) in enumerate(groups, 1)} if coloured else {}
    points = [(float(row[1]), float(row[2]), number[row[3]] if coloured else 1) for row in rows]

    stretch = stretch_of(points, columns)
    named = sorted(columns, key=lambda column: -math.hypot(*column[1:]))[:MOST_NAMES]
    frame = frame_of(points, named, stretch, above=100 if coloured else 70)
    settings = assigned(
        **frame,
        stretch=stretch,
        series=len(groups) if coloured else 1,
        legend=len(groups) if coloured else 0,
        size=0.55 if len(points) < 1000 else 0.35,
    )
    settings.append(f"set xlabel {quoted(f'component 1 ({share[0]:.1f} %)')}")
    settings.append(f"set ylabel {quoted(f'component 2 ({share[1]:.1f} %)')}")
    titles = [quoted(shortened(name)) for name, _, _ in groups] if coloured else ["''"]
    settings.append(f"array group_name[{len(titles)}] = [{', '.join(titles)}]")
    settings += arrows(columns, frame, stretch) + names(named, frame, stretch)
    means = [(x, y, k) for k, (_, x, y) in enumerate(groups, 1)] if coloured else []
    svg = gnuplot.drawn("biplot.gp", settings, {"rows": points, "means": means or [(math.nan, math.nan, 0)]})
    caption = (
        "Biplot: the rows as points, on the scales below and on the left; the columns as arrows, on those above and on "
        "the right, where the dotted circle has radius 1."
    )
    if coloured:
        caption += " The large marks are the means of the groups."
    if len(columns) > len(named):
        caption += f" Of the columns, the {len(named)} with the longest arrows are named."
    if every > 1:
        caption += f" One row in {every} is drawn."
    return Drawn(svg, caption)


def stretch_of(points, columns):
    """How many units of the rows one of the columns takes, so that arrows and points fill the same room."""
    farthest = max(math.hypot(x, y) for x, y, _ in points)
    longest = max(math.hypot(x, y) for _, x, y in columns)
    fitting = [s for s in (1, 1.5, 2, 2.5, 3, 4, 5, 7, 10, 15, 20) if s * longest <= 0.75 * farthest]
    return float(fitting[-1] if fitting else 1)


def frame_of(points, columns, stretch, above):
    """A picture with equal units both ways that holds the points, the circle, and the names of the columns."""
    across, most_down, left, margin = 620, 800, 70, 14
    xs = [x for x, _, _ in points] + [-stretch, stretch]
    ys = [y for _, y, _ in points] + [-stretch, stretch]
    low, high = min(xs), max(xs)
    for _ in range(20):  # the more room the names take, the more units a letter takes
        unit = (high - low) / (across - 2 * margin)
        low, high = min(xs), max(xs)
        for side in (-1, 1):
            here = [column for column in columns if math.copysign(1, column[1]) == side]
            if here:
                letters = max(len(shortened(name)) for name, _, _ in here)
                end = stretch * max(side * x for _, x, _ in here) + (12 + LETTER * letters) * unit
                low, high = min(low, side * end), max(high, side * end)
    unit = max((high - low) / (across - 2 * margin), (max(ys) - min(ys)) / (most_down - 2 * margin))
    step = next(m * 10**k for k in range(9) for m in (1, 2, 5) if 8 * m * 10**k >= across * unit)
    down = math.ceil((max(ys) - min(ys)) / unit + 2 * margin)
    middle_x, middle_y = (low + high) / 2, (min(ys) + max(ys)) / 2
    return {
        "across": float(across),
        "down": float(down),
        "left": float(left),
        "above": float(above),
        "width": left + across + 80,
        "height": above + down + 70,
        "unit": unit,
        "step": step,
        "x_low": middle_x - unit * across / 2,
        "x_high": middle_x + unit * across / 2,
        "y_low": middle_y - unit * down / 2,
        "y_high": middle_y + unit * down / 2,
    }


def arrows(columns, frame, stretch):
    head = f"filled size {9 * frame['unit']!r}, 18"
    return [
        f"set arrow {k} from 0, 0 to {x * stretch!r}, {y * stretch!r} front {head} lc rgb ink lw 1.6"
        for k, (_, x, y) in enumerate(columns, 1)
    ]


def names(columns, frame, stretch):
    """The name of each column behind its tip, moved up or down where it would stand on another."""
    unit = frame["unit"]
    commands = []
    for side, align in ((1, "left"), (-1, "right")):
        here = [(y * stretch, x * stretch, name) for name, x, y in columns if math.copysign(1, x) == side]
        here.sort()
        for run in spread([y for y, _, _ in here], LINE * unit):
            of_run, here = here[: len(run)], here[len(run) :]
            farthest = max(side * x for _, x, _ in of_run)
            for place, (_, _, name) in zip(run, of_run):
                at = f"{side * (farthest + 6 * unit)!r}, {place!r}"
                commands.append(f"set label {quoted(shortened(name))} at {at} {align} front textcolor rgb name")
    return commands


def spread(places, distance):
    """Ascending places moved apart to that distance, in runs of those that touch, each around where it was."""
    runs = []  # of the sum of the wanted first places, and how many
    for place in places:
        runs.append([place, 1])
        while len(runs) > 1 and runs[-2][0] / runs[-2][1] + distance * runs[-2][1] > runs[-1][0] / runs[-1][1]:
            total, count = runs.pop()
            runs[-1][0] += total - count * distance * runs[-1][1]
            runs[-1][1] += count
    return [[total / count + i * distance for i in range(count)] for total, count in runs]


# ---------------------------------------------------------------------------------------------------------------------


def cell_text(coefficient):
    """What stands in a cell, and in which colour. Those on coloured cells are the same on light and dark paper."""
    if coefficient == "NA":
        return "\u2013", "muted"
    number = float(coefficient)
    return f"{number:.3f}".replace("-", "\u2212"), "0xfefefe" if abs(number) > 0.82 else "0x010101"


def correlation_map(survey):
    records = survey.records("correlation_map")[1:]
    count = math.isqrt(len(records))
    names = [shortened(record[1]) for record in records[:count]]
    cell = max(14, min(96, 640 // count))
    longest = LETTER * max(map(len, names))
    level = longest <= cell - 4
    side, left = cell * count, longest + 20
    below = LINE + 20 if level else 20 + int(0.75 * longest)
    slant = 0 if level else int(0.75 * longest)  # how far the first name reaches to the left
    left = max(left, slant)
    settings = assigned(
        count=count,
        side=float(side),
        left=float(left),
        above=14.0,
        width=left + side + 100,
        height=14 + side + below,
        half=0.5 - 1.0 / cell,
    )
    tics = ", ".join(f"{quoted_tic(name)} {k}" for k, name in enumerate(names, 1))
    settings.append(f"set ytics ({tics})")
    settings.append(f"set xtics {'' if level else 'rotate by 45 right '}({tics})")
    cells = []
    for place, (_, _, coefficient, _) in enumerate(records):
        x, y = place % count + 1, place // count + 1
        if coefficient != "NA":
            cells.append((x, y, float(coefficient)))
        if cell >= 48:
            text, colour = cell_text(coefficient)
            settings.append(f"set label {quoted(text)} at {x}, {y} center front textcolor rgb {colour}")
    svg = gnuplot.drawn("correlation_map.gp", settings, {"cells": cells or [(0, 0, 0)]})
    return Drawn(svg, "Correlation map: from orange for \u22121 over white to blue for 1.")


# ---------------------------------------------------------------------------------------------------------------------


def size_of_points(points):
    return 0.55 if len(points) < 1000 else 0.35


def residuals(survey):
    points = [(float(fitted), float(residual)) for fitted, residual in survey.records("residuals")[1:]]
    settings = assigned(width=640, height=380, size=size_of_points(points))
    svg = gnuplot.drawn("residuals.gp", settings, {"residuals": points})
    return Drawn(svg, "Residuals over fitted values. A fit that holds leaves them without a shape around the dashed line.")


def residual_quantiles(survey):
    points = [(float(normal), float(residual)) for normal, residual in survey.records("residual_quantiles")[1:]]
    low, high = points[0][0], points[-1][0]
    room = 0.05 * (high - low)
    settings = assigned(width=640, height=380, size=size_of_points(points), low=low - room, high=high + room)
    svg = gnuplot.drawn("residual_quantiles.gp", settings, {"quantiles": points})
    return Drawn(
        svg, "Normal quantile plot of the residuals. Normal ones lie along the dashed line; long tails leave it at the ends."
    )


# ---------------------------------------------------------------------------------------------------------------------


def distribution(survey, name):
    heading, *boxes = survey.records(f"{name}_boxes")
    groups = [box[0] for box in boxes]
    numbers = [[k, *map(float, box[1:])] for k, box in enumerate(boxes, 1)]
    bars = [(int(k), *map(float, rest)) for k, *rest in survey.records(f"{name}_bars")[1:]]
    highest = max(bar[3] for bar in bars)
    bars = [(k, low, high, share / highest) for k, low, high, share in bars if share > 0]
    outside = [(int(k), float(cell)) for k, cell in survey.records(f"{name}_outside")[1:]]
    longest = LETTER * max(len(shortened(group)) for group in groups)
    settings = assigned(
        width=640,
        height=88 + 80 * len(groups),
        left=24.0 + longest,
        groups=len(groups),
        coloured=int(len(groups) <= colours.groups),
    )
    settings.append(f"set xlabel {quoted(heading[0])}")
    tics = ", ".join(f"{quoted_tic(shortened(group))} {k}" for k, group in enumerate(groups, 1))
    settings.append(f"set ytics ({tics})")
    files = {"bars": bars, "boxes": numbers, "outside": outside or [(math.nan, math.nan)]}
    svg = gnuplot.drawn("distribution.gp", settings, files)
    medians = ", ".join(f"{box[0]} {float(box[3]):.6g}" for box in boxes)
    return Drawn(svg, f"{heading[0]}: histograms, and box plots below them. Medians: {medians}.")
