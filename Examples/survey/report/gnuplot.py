"""Drawing by gnuplot: scripts get numbers and texts from here, and what they draw becomes an SVG element."""

import re
import subprocess
import tempfile
import xml.etree.ElementTree as xml
from pathlib import Path

import colours


class Undrawable(Exception):
    """gnuplot is missing, or says what is wrong."""


def quoted(text):
    """A text as gnuplot reads it, in every place but tics. An entity would be passed on to the picture as it is."""
    return "'" + text.replace("'", "''").replace("&#", "&\u2060#") + "'"


def quoted_tic(text):
    return quoted(text.replace("%", "%%"))  # tics are formats


def shortened(text, most=24):
    return text if len(text) <= most else text[: most - 1] + "\u2026"


def drawn(script, settings, files):
    """What a script beside this file draws, as an SVG element without a namespace.

    `settings` are lines of commands that the script finds done, `files` the lines of the data files that it finds in
    its working directory.
    """
    here = Path(__file__).resolve().parent
    palette = [f"{name} = {quoted(light)}" for name, (light, _) in colours.named.items()]
    with tempfile.TemporaryDirectory() as directory:
        for name, lines in files.items():
            Path(directory, name).write_text("".join(" ".join(map(repr, line)) + "\n" for line in lines))
        style = f"style = {quoted(str(here / 'style.gp'))}"
        commands = [*palette, style, *settings, f"load {quoted(str(here / script))}"]
        try:
            result = subprocess.run(
                ["gnuplot", "-"],
                input="\n".join(commands) + "\n",
                cwd=directory,
                capture_output=True,
                encoding="utf-8",
            )
        except FileNotFoundError as error:
            raise Undrawable("gnuplot draws the pictures, and isn't installed") from error
        if result.returncode != 0:
            raise Undrawable(f"{script}: {result.stderr.strip()}")
        return plain(xml.fromstring(result.stdout))


MARKS = ("path", "circle", "rect", "use")  # what can be used by its name; other elements don't keep theirs


def plain(svg):
    """The picture without namespaces, its colours by classes, which a style sheet can tell for light and dark."""
    for element in svg.iter():
        element.tag = re.sub("{.*}", "", element.tag)
        attributes = {re.sub("{.*}", "", name): value for name, value in element.attrib.items()}
        element.attrib.clear()
        if attributes.get("class") == "gridline":  # to which gnuplot gives neither colour nor pattern
            attributes = {"stroke": colours.named["faint"][0], "d": attributes["d"]}
        for name, value in attributes.items():
            colour = colours.name_of(value) if name in ("color", "fill", "stroke") else None
            if colour:
                element.set("class", (element.get("class", "") + f" {name}-{colour}").strip())
            elif name != "font-family" and (name != "id" or element.tag in MARKS):
                element.set(name, value)
    for parent in list(svg.iter()):
        for child in list(parent):
            if child.tag in ("title", "desc", "filter"):
                parent.remove(child)
    drop_unused_marks(svg)
    drop_empty(svg)
    return svg


def drop_unused_marks(svg):
    marks = {mark.get("id"): mark for definitions in svg.iter("defs") for mark in definitions}
    used = {use.get("href")[1:] for use in svg.iter("use") if use.get("id") not in marks}
    while True:  # marks are made of other marks
        more = used | {marks[name].get("href")[1:] for name in used if marks[name].get("href")}
        if more == used:
            break
        used = more
    for definitions in svg.iter("defs"):
        for mark in list(definitions):
            if mark.get("id") not in used:
                definitions.remove(mark)


def drop_empty(element):
    for child in list(element):
        drop_empty(child)
        if child.tag == "g" and len(child) == 0:
            element.remove(child)
        child.tail = "\n"
    if len(element):
        element.text = "\n"


def with_prefix(svg, prefix):
    """Names of the marks that no other picture on a page has."""
    for element in svg.iter():
        if element.get("id"):
            element.set("id", f"{prefix}-{element.get('id')}")
        if element.get("href"):
            element.set("href", f"#{prefix}-{element.get('href')[1:]}")
    return svg
