#!/usr/bin/env python3
"""reference.py FOLDER: writes the sources of the reference for Sphinx, which tools/docs makes pages of.

A page for each exported name is made from the headers, exports.tsv, arguments.tsv, what the bindings declare, the
examples in Docs/examples and the table of peers; the pages below Docs and the README are copied, with links that fit.

    reference_model        what is known of each function
    reference_siblings     its relatives, and in what they differ
    reference_signatures   how each language calls it
    reference_arguments    its arguments in words
    reference_examples     its example
    reference_pages        its page
    reference_indexes      by subject, by name, by task
    reference_sources      the hand-written pages
    reference_sphinx       what Sphinx is taught: formulas, links of names, the search
"""

import argparse
import csv
import re
import sys
from pathlib import Path

from arguments import ROOT
from reference_arguments import Arguments
from reference_examples import Examples
from reference_indexes import family_page, name_page, reference_page, task_page
from reference_model import read_functions, summary_alone
from reference_pages import FAMILY_TITLES, Pages
from reference_signatures import Signatures
from reference_sources import Sources, write_if_new

PEER_COLUMNS = ["function", "ecosystem", "name", "differs"]


def read_peers(path, functions):
    """How functions differ from those of other libraries, by name."""
    peers = {}
    if not path.exists():
        return peers
    with open(path, encoding="utf-8", newline="") as file:
        reader = csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE)
        if reader.fieldnames != PEER_COLUMNS:
            raise ValueError(f"{path.name}: the columns are not {', '.join(PEER_COLUMNS)}")
        for row in reader:
            if row["function"] not in functions:
                raise ValueError(f"{path.name}: there is no function {row['function']}")
            peers.setdefault(row["function"], []).append(row)
    return peers


def start_page(sources):
    """The first page: the start page of the guide, and the contents of the sidebar."""
    lines = ["---", "hide-toc: true", "---", "", sources.first_page(), ""]
    for title, pages in sources.groups().items():
        lines += ["```{toctree}", ":hidden:", f":caption: {title}", "", *map(in_sidebar, pages), "```", ""]
    return "\n".join(lines)


def in_sidebar(page):
    """The entry of a page in the sidebar, where its own title is too long, or that of another page."""
    folder, _, name = page.rpartition("/")
    if page == "readme":
        return "Overview, installing <readme>"
    return f"{FAMILY_TITLES[name]} <{page}>" if folder == "contracts" and name in FAMILY_TITLES else page


def subjects():
    return ["```{toctree}", ":hidden:", "", *(f"reference/{family}" for family in FAMILY_TITLES), "```", ""]


def write(root, target, only=None):
    """Writes all sources, removes pages that are no longer wanted, and counts the functions' pages.

    With `only`, a pattern, pages are made of the functions whose name or unit it matches: quick to look at.
    """
    functions = read_functions(root)

    def is_wanted(function):
        return not only or re.search(only, f"{function.unit} {function.name}")

    pages = Pages(functions, Signatures(root), Arguments(root), read_peers(root / "Docs/guide/peers.tsv", functions),
                  Examples(root))
    texts = {f"functions/{function.document}.md": pages.page(function) for function in functions.values() if is_wanted(function)}
    texts.update({f"reference/{family}.md": family_page(family, functions) for family in FAMILY_TITLES})
    texts["names.md"] = name_page(functions)
    texts["tasks.md"] = task_page(root / "Docs/site/tasks.tsv", functions)
    texts["reference.md"] = reference_page(functions) + "\n" + "\n".join(subjects())
    for name, text in texts.items():
        write_if_new(target / name, text)
    sources = Sources(root, target)
    sources.copy()
    write_if_new(target / "index.md", start_page(sources))
    write_if_new(target / "functions.tsv", "".join(
        f"{function.name}\t{function.document}\t{summary_alone(function, functions)}\n" for function in functions.values()
        if f"functions/{function.document}.md" in texts))
    wanted = {*texts, *sources.pages.values(), "index.md"}
    for path in target.rglob("*.md"):
        if path.relative_to(target).as_posix() not in wanted:
            path.unlink()
    return len(functions)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=Path)
    parser.add_argument("--only", metavar="PATTERN", help="only the pages of functions whose unit or name it matches")
    arguments = parser.parse_args()
    try:
        count = write(ROOT, arguments.folder, arguments.only)
    except ValueError as error:
        print(error, file=sys.stderr)
        return 1
    print(f"{count} pages of functions")
    return 0


if __name__ == "__main__":
    sys.exit(main())
