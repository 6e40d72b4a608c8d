"""Which comments of a header hold for a declaration in it."""

import re
from dataclasses import dataclass

MARK = "VECMAT_API"


@dataclass(frozen=True)
class Comments:
    """Each a tuple of lines without their slashes; empty where there is none."""
    header: tuple   # ahead of the code
    of_class: tuple
    heading: tuple  # the last `// ----`
    section: tuple  # the last other plain comment since
    function: tuple  # the last `///` since any of them

    def texts(self):
        """The comments that there are, each as one line of words, however they are laid out."""
        blocks = (self.header, self.of_class, self.heading, self.section, self.function)
        texts = (re.sub(r"\s+", " ", " ".join(block)).strip() for block in blocks if block)
        return tuple(re.sub(r"-{3,}[- ]*", "---- ", text) for text in texts)  # however long the rule of a heading is


def comments_by_line(text):
    """For each line of a header, the comments that hold for a declaration on it.

    A `///` comment holds for all declarations behind it, to the next comment. But in a section that opens with a
    declaration of no such comment, for which the heading is enough, each holds for the one behind it alone.
    """
    now = {"header": (), "of_class": (), "heading": (), "section": (), "function": ()}
    in_header, held, block, is_function = True, [], [], False
    opened_bare = was_used = False

    def close():
        nonlocal opened_bare, was_used
        if not block:
            return
        lines = tuple(block)
        block.clear()
        if in_header:
            now["header"] += lines
        elif is_function:
            now["function"] = lines
            was_used = False
        elif lines[0].lstrip().startswith("----"):
            now.update(heading=lines, section=(), function=())
            opened_bare = False
        else:
            now.update(section=lines, function=())
            opened_bare = False

    for line in text.split("\n"):
        stripped = line.strip()
        if stripped.startswith("//"):
            if block and is_function != stripped.startswith("///"):
                close()  # a comment of a function and a plain one that touch are two
            is_function = stripped.startswith("///")
            block.append(stripped.lstrip("/"))
        else:
            close()
            if stripped.startswith("#"):
                in_header = False
            if re.match(r"(class|struct)\b.*[^;]$", line):
                now.update(of_class=now["function"], function=())
            elif line.startswith("};"):
                now.update(of_class=())
            if MARK in line:
                if now["function"] and opened_bare and was_used:
                    now.update(function=())
                opened_bare = opened_bare or not now["function"] and bool(now["heading"] or now["section"])
                was_used = True
        held.append(Comments(**now))
    return held
