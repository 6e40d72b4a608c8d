"""Which comments of a header, and which tags in them, apply to a declaration in it.

A comment ends in tagged lines, one for each part of the contract:

    /// Sum of the cells.
    /// @missing left out (equality)
    /// @empty 0.0; a long text goes on
    ///     in lines indented like this one

Tags in the comment at the top apply to the file, in a plain comment to its section, in a `///` comment to the functions
after it. Of two tags of one name the nearest wins; a tag that is `-` cancels an outer one.
"""

import re
from dataclasses import dataclass, field

MARK = "VECMAT_API"
TAG = re.compile(r"^ ?@(\w+)(?:\s+(.*))?$")
# Every tag, with the title that it has in the reference.
TITLES = {"missing": "Missing cells", "mask": "Mask", "weights": "Weights", "divisor": "Divisor", "empty": "Empty input",
          "failure": "Failure", "memory": "Memory", "seed": "Random numbers", "source": "Source",
          "weak": "Known weakness", "formula": "Formula", "cost": "Cost"}
# Tags that the reference shows in places of their own, and the pages of contracts not at all.
OF_THE_REFERENCE = ("formula", "cost")
NONE = "-"


class TagError(Exception):
    pass


@dataclass(frozen=True)
class Tag:
    text: str
    line: int  # of the header, from 0: distinguishes tags with the same text


@dataclass(frozen=True)
class Block:
    """A comment: the lines of its prose without their slashes, and its tags by name."""
    prose: tuple = ()
    tags: dict = field(default_factory=dict)


@dataclass(frozen=True)
class Comments:
    """The comments that apply to a line, each an empty block if there is none."""
    header: Block    # before the code
    of_class: Block
    heading: Block   # the last `// ----`
    section: Block   # the last other plain comment since
    function: Block  # the last `///` since any of them

    def nearest_first(self):
        return self.function, self.section, self.heading, self.of_class, self.header


def read_block(lines, first=0):
    """The block formed by the lines of a comment, whose first line is line `first` of the header."""
    prose, tags, name = [], {}, None
    for number, line in enumerate(lines, start=first):
        match = TAG.match(line)
        where = f"line {number + 1}: "
        if match:
            name, text = match.groups()
            if name not in TITLES:
                raise TagError(where + f"there is no tag @{name}")
            if name in tags:
                raise TagError(where + f"@{name} twice in one comment")
            if not text:
                raise TagError(where + f"@{name} without a text")
            tags[name] = Tag(text.strip(), number)
        elif name is None:
            prose.append(line)
        elif line.startswith("     "):
            tags[name] = Tag(f"{tags[name].text} {line.strip()}", tags[name].line)
        elif line.strip():
            raise TagError(where + "prose after a tag; a tag continues on lines indented by four more blanks")
    while prose and not prose[-1].strip():
        prose.pop()
    return Block(tuple(prose), tags)


def comments_by_line(text):
    """For each line of a header, the comments that apply to a declaration on it.

    A `///` comment applies to all declarations after it, up to the next comment. But in a section that opens with a
    declaration without one, for which the heading is enough, each applies to the next declaration only. A `///`
    comment of tags alone leaves the prose in force and always applies up to the next comment.
    """
    none = Block()
    now = {"header": none, "of_class": none, "heading": none, "section": none, "function": none}
    in_header, held, block, start, is_function = True, [], [], 0, False
    opened_bare = was_used = False

    def close():
        nonlocal opened_bare, was_used
        if not block:
            return
        closed = read_block(block, start)
        is_heading = block[0].lstrip().startswith("----")
        block.clear()
        if in_header:
            now["header"] = Block(now["header"].prose + closed.prose, {**now["header"].tags, **closed.tags})
        elif is_function and not closed.prose:
            outer = none if opened_bare and was_used and now["function"].prose else now["function"]
            now["function"] = Block(outer.prose, {**outer.tags, **closed.tags})
            was_used = False
        elif is_function:
            now["function"] = closed
            was_used = False
        elif is_heading:
            now.update(heading=closed, section=none, function=none)
            opened_bare = False
        else:
            now.update(section=closed, function=none)
            opened_bare = False

    for number, line in enumerate(text.split("\n")):
        stripped = line.strip()
        if stripped.startswith("//"):
            if block and is_function != stripped.startswith("///"):
                close()  # a function's comment and a plain one next to it are two
            if not block:
                start = number
            is_function = stripped.startswith("///")
            block.append(stripped.lstrip("/"))
        else:
            close()
            if stripped.startswith("#"):
                in_header = False
            if re.match(r"(class|struct)\b.*[^;]$", line):
                now.update(of_class=now["function"], function=none)
            elif line.startswith("};"):
                now.update(of_class=none)
            if MARK in line:
                if now["function"].prose and opened_bare and was_used:
                    now.update(function=none)
                opened_bare = opened_bare or not now["function"].prose and (now["heading"] != none
                                                                            or now["section"] != none)
                was_used = True
        held.append(Comments(**now))
    return held
