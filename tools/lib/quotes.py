#!/usr/bin/env python3
"""Keeps quotations in the documents identical to the quoted files.

    quotes.py [--check]

A quotation is enclosed by two comments in a document:

    <!-- quote FILE -->                        a whole file
    <!-- quote FILE FUNCTION -->               one function of a source in C or C++, with the comment above it
    <!-- quote FILE.md rows NAME... -->        the rows of a table whose first cell is one of these
    <!-- quote FILE.md rows NAME... columns TITLE... -->
    <!-- end of quote -->

Paths are relative to the repository; names with blanks are in double quotes. Updates all quotations, or with --check
names the documents whose quotations are out of date and exits with 1.
"""

import re
import shlex
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DOCUMENTS = ("README.md", "Docs/*.md", "Examples/**/*.md", "Bindings/**/*.md")
LANGUAGES = {".cpp": "cpp", ".h": "cpp", ".c": "c", ".py": "python", ".txt": "text"}
QUOTATION = re.compile(r"(<!-- quote (.*?) -->\n)(.*?)(<!-- end of quote -->)", re.DOTALL)


class QuoteError(Exception):
    """A quotation whose source does not exist."""


def function(text, name):
    """The lines of a function that starts and ends at the left margin, including the comment above it."""
    lines = text.splitlines()
    starts = [i for i, line in enumerate(lines) if re.match(rf"\w[^;]*\b{re.escape(name)}\(", line)]
    if len(starts) != 1:
        raise QuoteError(f"{len(starts)} functions of the name {name}")
    first = starts[0]
    last = next((i for i in range(first, len(lines)) if lines[i] == "}"), None)
    if last is None:
        raise QuoteError(f"no end of {name}")
    while first > 0 and lines[first - 1].startswith("//"):
        first -= 1
    return "\n".join(lines[first:last + 1])


def cells(line):
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


def table(text, names, titles):
    """Rows of the first table that has the first of them, in the order requested, with its header."""
    lines = text.splitlines()
    place = next((i for i, line in enumerate(lines) if line.startswith("|") and cells(line)[0] == names[0]), None)
    if place is None:
        raise QuoteError(f"no row {names[0]}")
    first = last = place
    while first > 0 and lines[first - 1].startswith("|"):
        first -= 1
    while last < len(lines) and lines[last].startswith("|"):
        last += 1
    head, *rows = [cells(line) for line in lines[first:last]]
    by_name = {row[0]: row for row in rows}
    absent = [name for name in names if name not in by_name] + [title for title in titles if title not in head]
    if absent:
        raise QuoteError(f"no {', '.join(absent)} in the table")
    places = [head.index(title) for title in titles] or range(len(head))
    chosen = [head, ["---"] * len(head), *(by_name[name] for name in names)]
    return "\n".join("| " + " | ".join(row[k] for k in places) + " |" for row in chosen)


def quoted(root, specification):
    name, *rest = shlex.split(specification)
    file = root / name
    if not file.is_file():
        raise QuoteError("no such file")
    text = file.read_text(encoding="utf-8")
    if rest and rest[0] == "rows":
        end = rest.index("columns") if "columns" in rest else len(rest)
        return table(text, rest[1:end], rest[end + 1:]) + "\n"
    text = function(text, rest[0]) if rest else text.rstrip("\n")
    return f"```{LANGUAGES.get(file.suffix, '')}\n{text}\n```\n"


def renewed(root, text):
    """The text of a document with all its quotations up to date."""

    def replacement(match):
        opening, specification, body, end = match.groups()
        if "<!-- quote " in body:
            raise QuoteError(f"{specification}: no end of the quotation")
        try:
            return opening + "\n" + quoted(root, specification) + "\n" + end
        except QuoteError as error:
            raise QuoteError(f"{specification}: {error}") from error

    result = QUOTATION.sub(replacement, text)
    if len(re.findall("<!-- quote ", text)) != len(QUOTATION.findall(text)):
        raise QuoteError("a quotation without an end")
    return result


def faults(root, check):
    """What is wrong with the documents; without `check` updates them as far as possible."""
    found, quotations = [], 0
    for document in sorted({path for pattern in DOCUMENTS for path in root.glob(pattern)}):
        text = document.read_text(encoding="utf-8")
        quotations += len(QUOTATION.findall(text))
        name = document.relative_to(root)
        try:
            new = renewed(root, text)
        except QuoteError as error:
            found.append(f"{name}: {error}")
            continue
        if new == text:
            continue
        if check:
            found.append(f"{name} quotes what has changed: run tools/lib/quotes.py")
        else:
            document.write_text(new, encoding="utf-8")
    if quotations == 0:
        found.append("No document quotes anything: are the markers still what this script looks for?")
    return found


def main():
    found = faults(ROOT, "--check" in sys.argv[1:])
    if found:
        sys.exit("\n".join(found))


if __name__ == "__main__":
    main()
