#!/usr/bin/env python3
"""doxygen_filter.py FILE: prints a header in the form that Doxygen reads.

In these headers one comment describes all functions that follow it, and a flat form is often described only by the
heading of its section. Doxygen attaches a comment to the next declaration only: so each exported function gets the
comment and the tags that apply to it, each tag as a paragraph with a title, and the comment at the top becomes that of
the file. Other files are printed unchanged.
"""

import re
import sys
from pathlib import Path

from contracts import ROOT, base_of, read_unit
from declarations import MARK, HeaderError
from header_comments import OF_THE_REFERENCE, TITLES, TagError, comments_by_line, read_block

# What Doxygen would mistake for one of its commands.
SPECIAL = re.compile(r"([@\\<>&#])")


def quoted(line):
    """The line with special characters escaped, except in code, which Doxygen leaves alone."""
    parts = re.split(r"(`[^`]*`)", line)
    return "".join(part if part.startswith("`") else SPECIAL.sub(r"\\\1", part) for part in parts)


def as_comment(lines, indent=""):
    """The lines of a comment for Doxygen. Lines indented by four more blanks, except in a list, are tables."""
    out, in_list, in_table = [], False, False
    for line in lines:
        is_in = line.startswith("     ")
        in_list = bool(re.match(r" *- ", line)) or (in_list and line.startswith("   "))
        is_table = is_in and not in_list
        if is_table != in_table and out and out[-1].strip(" /") and line.strip():
            out.append(f"{indent}///")
        in_table = is_table
        out.append(f"{indent}///{line if is_table else quoted(line)}")
    return out


def without_rule(lines):
    """A heading without its rule: the title, then the text below it."""
    if not lines:
        return ()
    text = re.sub(r"^ ?-{3,} ?| ?-{3,}$", "", lines[0])
    rest = [line for line in lines[1:] if line.strip(" -")]
    title = text.strip(" -")
    if title == "flat forms":
        return tuple(rest)
    return (f" {title[:1].upper()}{title[1:]}.", *([""] if rest else []), *rest)


def as_paragraphs(tags, indent=""):
    """Tags, texts by name, as paragraphs with their titles."""
    out = []
    for name, text in tags.items():
        if name in OF_THE_REFERENCE:
            continue
        out += [f"{indent}///", f"{indent}/// @par {TITLES[name]}", f"{indent}/// {quoted(text)}"]
    return out


def told(contract, owner, names):
    """The prose for a function without its own comment; the current comment is that of `owner`."""
    comments, base = contract.prose, base_of(contract.declaration.name, names)
    lines = [f" The flat form of `{base}`."] if base else []
    if comments.function.prose:
        if owner not in (contract.declaration.name, base):
            lines.append(f" Described with `{owner}`:")
        return [*lines, *([""] if lines else []), *comments.function.prose]
    section = comments.section.prose or without_rule(comments.heading.prose)
    return [*lines, *([""] if lines and section else []), *section] or [" See the top of the file."]


def documented(text, name):
    """The text of a header with a comment before each exported function."""
    header = comments_by_line(text)[-1].header
    lines = text.split("\n")
    contracts = {contract.declaration.line - 1: contract for contract in read_unit(text, name.removesuffix(".h"))}
    names = {contract.declaration.name for contract in contracts.values()}
    out = ["/// @file", *as_comment(header.prose),
           *as_paragraphs({tag: value.text for tag, value in header.tags.items()})]
    block, owner = [], None  # the lines of a `///` comment, and the function after it
    for number, line in enumerate(lines):
        indent = re.match(r" *", line).group()
        if line.strip().startswith("///"):
            block.append(line.strip()[3:])
            continue
        prose, tags = read_block(block).prose, {}
        if number in contracts:
            if prose:
                owner = contracts[number].declaration.name
            else:
                prose = told(contracts[number], owner, names)
            tags = contracts[number].tags
        out += as_comment(prose, indent) + as_paragraphs(tags, indent)
        block = []
        if "///<" in line:
            code, comment = line.split("///<", 1)
            line = f"{code}///<{quoted(comment)}"
        out.append(line)
    return "\n".join(out)


def main():
    path = Path(sys.argv[1])
    text = path.read_text(encoding="utf-8")
    if path.suffix == ".h" and path.resolve().is_relative_to(ROOT / "Sources"):
        try:
            text = documented(text, path.name)
        except (HeaderError, TagError) as error:
            print(f"{path}: {error}", file=sys.stderr)
            return 1
    sys.stdout.write(text.replace(f"{MARK} ", ""))
    return 0


if __name__ == "__main__":
    sys.exit(main())
