#!/usr/bin/env python3
"""doxygen_filter.py FILE: prints a header as Doxygen is to read it.

In these headers one comment tells of all the functions that follow it, and a flat form is often told of by the heading of
its section alone. Doxygen takes a comment for the one declaration behind it: so each exported function gets the comment
that holds for it, and the comment at the top becomes that of the file. Other files are printed as they are.
"""

import re
import sys
from pathlib import Path

from contracts import ROOT
from declarations import MARK, HeaderError, read_header
from header_comments import comments_by_line

# What Doxygen would take for a command of its own.
SPECIAL = re.compile(r"([@\\<>&#])")


def quoted(line):
    """The line with nothing special left in it, but for code, which Doxygen takes as it is."""
    parts = re.split(r"(`[^`]*`)", line)
    return "".join(part if part.startswith("`") else SPECIAL.sub(r"\\\1", part) for part in parts)


def as_comment(lines, indent=""):
    """The lines of a comment for Doxygen. Lines set in by four blanks more, but for those of a list, are tables."""
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
    """A heading without its rule: the title, then what is told below it."""
    if not lines:
        return ()
    text = re.sub(r"^ ?-{3,} ?| ?-{3,}$", "", lines[0])
    rest = [line for line in lines[1:] if line.strip(" -")]
    title = text.strip(" -")
    if title == "flat forms":
        return tuple(rest)
    return (f" {title[:1].upper()}{title[1:]}.", *([""] if rest else []), *rest)


def flat_form_of(name, names):
    """The function of which a name is the flat form, or None where that can't be told."""
    base = re.sub(r"^(VB|Cpp)_", "", name)
    known = [other for other in (base, re.sub(r"(Dbl|Lng|Str|Bool)$", "", base)) if other in names and other != name]
    return known[0] if known else None


def told(name, comments, owner, names):
    """What is told of a function that has no comment of its own; the comment in force is that of `owner`."""
    base = flat_form_of(name, names)
    lines = [f" The flat form of `{base}`."] if base else []
    if comments.function:
        if owner not in (name, base):
            lines.append(f" Told along with `{owner}`:")
        return [*lines, *([""] if lines else []), *comments.function]
    section = comments.section or without_rule(comments.heading)
    return [*lines, *([""] if lines and section else []), *section] or [" As told at the top of the file."]


def documented(text, name):
    """The text of a header with a comment ahead of each exported function."""
    held = comments_by_line(text)
    lines = text.split("\n")
    declarations = {declaration.line - 1: declaration.name for declaration in read_header(text, name)}
    names = set(declarations.values())
    out = ["/// @file"] + as_comment(held[-1].header)
    block, owner = [], None  # the lines of a `///` comment, and the function behind it
    for number, line in enumerate(lines):
        indent = re.match(r" *", line).group()
        if line.strip().startswith("///"):
            block.append(line.strip()[3:])
            continue
        if number in declarations:
            function = declarations[number]
            if block:
                owner = function
            else:
                block = told(function, held[number], owner, names)
        out += as_comment(block, indent)
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
        except HeaderError as error:
            print(f"{path}: {error}", file=sys.stderr)
            return 1
    sys.stdout.write(text.replace(f"{MARK} ", ""))
    return 0


if __name__ == "__main__":
    sys.exit(main())
