"""What a survey has left in its data directory."""

import re
from dataclasses import dataclass, field
from pathlib import Path


class Unreadable(Exception):
    """A file that isn't as the survey writes it."""


@dataclass
class Table:
    name: str
    key_columns: int  # so many of the first columns name the rows
    align: list  # for each column: left, right or point
    headings: list
    rows: list
    whole: int = 0  # rows of the file that has all of them; 0 where this has


@dataclass
class Section:
    name: str
    title: str
    lead: str
    note: str
    tables: list = field(default_factory=list)
    pictures: list = field(default_factory=list)  # names


@dataclass
class Survey:
    data: Path
    title: str = ""
    summary: str = ""
    lists: list = field(default_factory=list)  # of a label and its items
    remarks: list = field(default_factory=list)
    sections: list = field(default_factory=list)

    def records(self, name):
        """The records of a table, with the names of the columns ahead."""
        return records_of(self.data / f"{name}.tsv")


def readable(text):
    """The text without what can't stand in a page; blanks at the ends remain."""
    return re.sub("[^\t\n\x20-\x7e\xa0-\ud7ff\ue000-\ufffd\U00010000-\U0010ffff]", "\ufffd", text)


def records_of(path):
    text = readable(path.read_bytes().decode("utf-8", errors="replace"))
    return [line.split("\t") for line in text.removesuffix("\n").split("\n")]


def read(data):
    survey = Survey(data)
    for kind, *fields in records_of(data / "contents.tsv"):
        try:
            if kind == "title":
                survey.title, survey.summary = fields
            elif kind == "list":
                survey.lists.append((fields[0], fields[1:]))
            elif kind == "section":
                survey.sections.append(Section(*fields))
            elif kind == "table":
                name, key_columns, *align = fields
                headings, *rows = survey.records(name)
                survey.sections[-1].tables.append(Table(name, int(key_columns), align, headings, rows))
            elif kind == "picture":
                (name,) = fields
                survey.sections[-1].pictures.append(name)
            elif kind == "remark":
                survey.remarks += fields
            elif kind == "whole":
                survey.sections[-1].tables[-1].whole = int(fields[1])
            else:
                raise ValueError
        except (ValueError, TypeError, IndexError) as error:
            raise Unreadable(f"{data / 'contents.tsv'}: a line of the kind '{kind}' can't be read") from error
    return survey
