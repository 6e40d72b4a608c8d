"""python -m vecmat survey FILE --by COLUMN: what a table holds, on the terminal and as a page."""

from __future__ import annotations

import argparse
import sys
from pathlib import Path
from typing import Optional, Sequence

from vecmat.data import read_table
from vecmat.survey import survey, write_page


def main(words: Optional[Sequence[str]] = None) -> int:
    parser = argparse.ArgumentParser(prog="python -m vecmat", description="Statistics of a table.")
    commands = parser.add_subparsers(dest="command", required=True)
    of_survey = commands.add_parser("survey", help="what a table holds, by groups")
    of_survey.add_argument("file", type=Path, help="a CSV file with a line of names")
    of_survey.add_argument("--by", metavar="COLUMN", help="the column with the groups")
    of_survey.add_argument("--page", type=Path, metavar="FOLDER", help="also write a page, FOLDER/index.html")
    given = parser.parse_args(words)
    try:
        tables = survey(read_table(given.file), given.by, progress=_progress)
        for table in tables:
            print(table.text())
        if given.page is not None:
            print(write_page(given.page, given.file.name, tables))
    except (OSError, ValueError, UnicodeDecodeError) as error:
        print(f"vecmat: {error}", file=sys.stderr)
        return 1
    return 0


def _progress(step: str) -> None:
    """One line that each step overwrites, where someone looks on."""
    if sys.stderr.isatty():
        print(f"\r{step:<40}", end="\r" if not step else "", file=sys.stderr, flush=True)


if __name__ == "__main__":
    sys.exit(main())
