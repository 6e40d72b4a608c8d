"""The page of a survey, which needs no other file."""

import itertools
import re
import xml.etree.ElementTree as xml
from pathlib import Path

import colours


def element(tag, *content, **attributes):
    """An element of texts and elements. Attributes that are none or empty are left out."""
    result = xml.Element(tag, {name.rstrip("_"): str(value) for name, value in attributes.items() if value})
    for part in content:
        if isinstance(part, xml.Element):
            result.append(part)
        elif len(result):
            result[-1].tail = (result[-1].tail or "") + part
        else:
            result.text = (result.text or "") + part
    return result


def text_of(survey, pictures, links):
    """`links` has the address of each whole table by its name."""
    style = Path(__file__).with_name("page.css").read_text(encoding="utf-8") + colours.sheet()
    head = element(
        "head",
        element("meta", charset="utf-8"),
        element("meta", name="viewport", content="width=device-width, initial-scale=1"),
        element("meta", name="color-scheme", content="light dark"),
        element("title", f"Survey of {survey.title}"),
        element("style", style),
    )
    body = element(
        "body",
        element(
            "header",
            element("h1", "Survey of ", element("span", survey.title, class_="file")),
            element("p", survey.summary, class_="lead"),
            facts(survey.lists),
            *[element("p", remark, class_="remark") for remark in survey.remarks],
        ),
        element("nav", element("p", "Contents", id="contents"), element("ol", *[link(section) for section in survey.sections]), aria_labelledby="contents"),
        element("main", *[section_of(section, pictures, links) for section in survey.sections]),
        element(
            "footer",
            element("p", "By the survey of VecMat, a library of vector and matrix routines for statistical work."),
        ),
    )
    html = element("html", head, body, lang="en")
    for part in html.iter():
        for name in [name for name in part.attrib if name.startswith("aria_")]:
            part.set(name.replace("_", "-"), part.attrib.pop(name))
    return "<!DOCTYPE html>\n" + xml.tostring(html, encoding="unicode", method="html") + "\n"


def facts(lists):
    content = []
    for label, items in lists:
        content += [element("dt", label), element("dd", ", ".join(items))]
    return element("dl", *content)


def link(section):
    return element("li", element("a", section.title, href=f"#{section.name}"))


def whole_of(table, links):
    """A link to the file with all rows of a table that is cut."""
    link = element("a", f"all {table.whole} rows as CSV", href=links[table.name], download=f"{table.name}.csv")
    return element("p", "The table is cut: ", link, ".", class_="whole")


def section_of(section, pictures, links):
    content = [element("h2", section.title), element("p", section.lead, class_="lead")]
    drawn = [figure(pictures[name]) for name in section.pictures]
    content += drawn if len(drawn) < 2 else [element("div", *drawn, class_="pictures")]
    for table in section.tables:
        content.append(element("div", table_of(table), class_="wide"))
        if table.whole:
            content.append(whole_of(table, links))
    if section.note:
        content.append(element("p", section.note, class_="note"))
    return element("section", *content, id=section.name)


def figure(picture):
    svg = picture.svg
    svg.set("role", "img")
    svg.set("aria-label", picture.caption)
    return element("figure", svg, element("figcaption", picture.caption))


def table_of(table):
    head = element(
        "tr",
        *[element("th", heading, scope="col", class_=align) for heading, align in zip(table.headings, table.align)],
    )
    return element("table", element("thead", head), *bodies(table))


def bodies(table):
    """The rows; where two columns name them, those that have the first in common below one name."""
    behind = [decimals_missing(table, j) for j in range(len(table.headings))]
    placed = [any(cells[j].startswith(" ") for cells in table.rows) for j in range(len(table.headings))]
    if table.key_columns < 2:
        return [element("tbody", *[row(table, behind, placed, i) for i in range(len(table.rows))])]
    result = []
    for _, run in itertools.groupby(range(len(table.rows)), key=lambda i: table.rows[i][0]):
        run = list(run)
        first = element("th", table.rows[run[0]][0], scope="rowgroup", rowspan=len(run), class_=table.align[0])
        result.append(element("tbody", *[row(table, behind, placed, i, first if i == run[0] else None) for i in run]))
    return result


def row(table, behind, placed, i, run_name=None):
    cells = [] if run_name is None else [run_name]
    for j, text in enumerate(table.rows[i]):
        if j == 0 and table.key_columns == 2:
            continue
        tag, scope = ("th", "row") if j < table.key_columns else ("td", None)
        short = behind[j][i]
        style = f"--short: {short}" if short else None
        cells.append(element(tag, text, scope=scope, class_=table.align[j] + (" placed" if placed[j] else ""), style=style))
    return element("tr", *cells)


def decimals_missing(table, j):
    """For each cell of a column, how many places it takes fewer behind its units than the one that takes most."""
    if table.align[j] != "point":
        return [0] * len(table.rows)
    places = [len(re.search(r"[.e].*|$", cells[j]).group()) for cells in table.rows]
    return [max(places, default=0) - n for n in places]
