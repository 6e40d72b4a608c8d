"""What a table holds: missing cells, moments, quantiles, correlations, components, means by group."""

from __future__ import annotations

import base64
import html
import importlib
import io
from dataclasses import dataclass
from pathlib import Path
from typing import Any, Callable, Optional

import numpy as np

from vecmat._inputs import Floats
from vecmat.components import principal_components
from vecmat.covariance import corr
from vecmat.groups import group_by
from vecmat.missing import count_missing
from vecmat.qualitative import categories
from vecmat.quantiles import median, quantile
from vecmat.spread import value_range
from vecmat.univariate import moments

__all__ = ["Table", "survey", "write_page"]


@dataclass(frozen=True)
class Table:
    """A titled table of texts, the first column the names of the rows; `picture` draws it, where matplotlib is there."""

    title: str
    header: list[str]
    rows: list[list[str]]
    picture: Optional[Callable[[Any], None]] = None

    def text(self) -> str:
        widths = [max(len(row[j]) for row in [self.header, *self.rows]) for j in range(len(self.header))]
        lines = [self.title, "-" * len(self.title)]
        for row in [self.header, *self.rows]:
            cells = [row[0].ljust(widths[0]), *(cell.rjust(width) for cell, width in zip(row[1:], widths[1:]))]
            lines.append("  ".join(cells).rstrip())
        return "\n".join(lines) + "\n"

    def html(self) -> str:
        def line(cells: list[str], tag: str) -> str:
            first, *rest = (html.escape(cell) for cell in cells)
            return f"<tr><th>{first}</th>" + "".join(f"<{tag}>{cell}</{tag}>" for cell in rest) + "</tr>"
        body = "\n".join(line(row, "td") for row in self.rows)
        return f"<h2>{html.escape(self.title)}</h2>\n<table>\n{line(self.header, 'th')}\n{body}\n</table>\n"


def _number(x: float) -> str:
    return "-" if np.isnan(x) else f"{x:.4g}" if abs(x) < 1e4 else f"{x:.1f}"


def survey(columns: dict[str, Any], by: Optional[str] = None, *,
           progress: Callable[[str], None] = lambda step: None) -> list[Table]:
    """The tables of a survey.

    Parameters
    ----------
    columns : dict
        Columns by name, as `read_table` gives them: arrays of numbers, lists of strings.
    by : str, optional
        The column with the groups.
    progress : callable, optional
        Is told each step.

    Returns
    -------
    list of Table
    """
    if by is not None and by not in columns:
        raise ValueError(f"there is no column {by}; there are: {', '.join(columns)}")
    measures = {name: column for name, column in columns.items() if isinstance(column, np.ndarray) and name != by}
    names = {name: column for name, column in columns.items() if not isinstance(column, np.ndarray)}
    tables = [_missing_cells(columns)]
    if names:
        progress("categories")
        tables.append(_categories(names))
    if measures:
        progress("moments")
        tables += [_moments(measures), _quantiles(measures)]
    complete = {name: column for name, column in measures.items() if not np.isnan(column).all() and np.nanstd(column) > 0}
    if len(complete) > 1:
        progress("correlations")
        tables.append(_correlations(complete))
        if not np.isnan(np.asarray(corr(np.column_stack(list(complete.values()))))).any():
            progress("components")
            tables.append(_components(complete, columns.get(by) if by else None))
    if by is not None and measures:
        progress(f"means by {by}")
        tables.append(_by_group(measures, columns[by], by))
    progress("")
    return tables


def _missing_cells(columns: dict[str, Any]) -> Table:
    rows = []
    for name, column in columns.items():
        missing = count_missing(column) if isinstance(column, np.ndarray) else sum(cell is None for cell in column)
        rows.append([name, str(len(column) - missing), str(missing)])
    return Table("Cells", ["column", "present", "missing"], rows)


def _categories(names: dict[str, Any]) -> Table:
    rows = []
    for name, column in names.items():
        found = categories(column)
        for category, weight in list(zip(found.names, found.weights))[:20]:
            rows.append([f"{name}: {category}", f"{weight:.0f}"])
        if len(found.names) > 20:
            rows.append([f"{name}: {len(found.names) - 20} more", ""])
    return Table("Categories", ["category", "rows"], rows)


def _moments(measures: dict[str, Floats]) -> Table:
    rows = []
    for name, column in measures.items():
        found = moments(column, ddof=1)
        shape = moments(column)
        rows.append([name, *map(_number, (found.mean, float(np.sqrt(found.var)), shape.skewness, shape.skewness_error,
                                          shape.kurtosis, shape.kurtosis_error))])
    return Table("Moments", ["column", "mean", "deviation", "skewness", "+-", "kurtosis", "+-"], rows,
                 lambda axes: _draw_histograms(axes, measures))


def _quantiles(measures: dict[str, Floats]) -> Table:
    rows = []
    for name, column in measures.items():
        low, high = value_range(column)
        rows.append([name, *map(_number, (low, quantile(column, 0.25), median(column), quantile(column, 0.75), high))])
    return Table("Quantiles", ["column", "smallest", "25 %", "median", "75 %", "largest"], rows)


def _correlations(measures: dict[str, Floats]) -> Table:
    matrix = np.asarray(corr(np.column_stack(list(measures.values()))))
    rows = [[name, *map(_number, matrix[i])] for i, name in enumerate(measures)]
    return Table("Correlations", ["column", *measures], rows, lambda axes: _draw_matrix(axes, matrix, list(measures)))


def _components(measures: dict[str, Floats], groups: Any) -> Table:
    found = principal_components(np.column_stack(list(measures.values())))
    header = ["column", *(f"axis {k + 1}" for k in range(len(measures)))]
    rows = [["per cent", *map(_number, found.percent)]]
    rows += [[name, *map(_number, found.loadings[j])] for j, name in enumerate(measures)]
    return Table("Principal components", header, rows, lambda axes: _draw_scores(axes, found.scores, groups))


def _by_group(measures: dict[str, Floats], groups: Any, by: str) -> Table:
    found = group_by(np.column_stack(list(measures.values())), groups)
    rows = [[str(key), str(size), *map(_number, means)] for key, size, means in zip(found.keys, found.sizes, found.table)]
    return Table(f"Means by {by}", [by, "rows", *measures], rows)


# ---- pictures ---------------------------------------------------------------------------------------------------------


def _draw_histograms(figure: Any, measures: dict[str, Floats]) -> None:
    for axes, (name, column) in zip(np.atleast_1d(figure.subplots(1, len(measures))), measures.items()):
        axes.hist(column[np.isfinite(column)], bins=20)
        axes.set_title(name, fontsize=8)


def _draw_matrix(figure: Any, matrix: Floats, names: list[str]) -> None:
    axes = figure.subplots()
    image = axes.imshow(matrix, vmin=-1.0, vmax=1.0, cmap="RdBu")
    axes.set_xticks(range(len(names)), names, rotation=30, ha="right", fontsize=7)
    axes.set_yticks(range(len(names)), names, fontsize=7)
    figure.colorbar(image)


def _draw_scores(figure: Any, scores: Floats, groups: Any) -> None:
    axes = figure.subplots()
    labels = np.array([str(group) for group in groups]) if groups is not None else np.full(len(scores), "rows")
    for label in sorted(set(labels)):
        rows = labels == label
        axes.scatter(scores[rows, 0], scores[rows, 1], s=8, label=label)
    axes.set_xlabel("axis 1")
    axes.set_ylabel("axis 2")
    if groups is not None:
        axes.legend(fontsize=8)


def _picture(table: Table) -> str:
    try:
        Figure: Any = importlib.import_module("matplotlib.figure").Figure
    except ImportError:
        return ""
    if table.picture is None:
        return ""
    figure = Figure(figsize=(9, 4), layout="constrained")
    table.picture(figure)
    file = io.BytesIO()
    figure.savefig(file, format="png", dpi=110)
    return (f'<img alt="{html.escape(table.title)}" '
            f'src="data:image/png;base64,{base64.b64encode(file.getvalue()).decode()}">\n')


STYLE = """:root { color-scheme: light dark; }
body { font: 16px/1.5 system-ui, sans-serif; margin: 2em auto; max-width: 62em; padding: 0 1em; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; display: block; overflow-x: auto; }
td, th { padding: 0.2em 0.8em; text-align: right; }
th:first-child { text-align: left; }
tr:first-child th { border-bottom: 1px solid; }
img { max-width: 100%; margin: 1em 0; background: white; }"""


def write_page(folder: Path, title: str, tables: list[Table]) -> Path:
    """The tables as a page, FOLDER/index.html, which holds its pictures."""
    folder.mkdir(parents=True, exist_ok=True)
    page = folder / "index.html"
    body = "".join(table.html() + _picture(table) for table in tables)
    page.write_text(f'<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n'
                    f'<meta name="viewport" content="width=device-width">\n<title>Survey of {html.escape(title)}</title>\n'
                    f"<style>\n{STYLE}\n</style>\n</head>\n<body>\n<h1>Survey of {html.escape(title)}</h1>\n{body}</body>\n"
                    f"</html>\n", encoding="utf-8")
    return page
