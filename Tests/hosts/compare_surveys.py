#!/usr/bin/env python3
"""compare_surveys.py WHOLE PART: do the digits of the survey in BASIC equal those of the program in C++?

WHOLE and PART are what the two have printed. Under each title of the part every line must stand, in its order, under the
same title of the whole: it begins with the same word, and has all the others in their order. The program in C++ may have
columns more, and how they are spaced does not count.
"""

import sys
from pathlib import Path


def sections(text):
    """The lines below each title, as words: {title: [[word, ...], ...]}."""
    lines = text.splitlines()
    found, title = {}, None
    for line, following in zip(lines, lines[1:] + [""]):
        if following and not following.strip("="):
            title = line
            found[title] = []
        elif title and line.strip("=- "):
            found[title].append(line.split())
    return found


def stands_in(words, line):
    """Whether the line begins as the words do and has all of them in their order."""
    rest = iter(line)
    return words[:1] == line[:1] and all(word in rest for word in words)


def compare(whole, part):
    wrong, count = [], 0
    for title, lines in part.items():
        rest = iter(whole.get(title, []))
        if not lines:
            wrong.append(f"nothing stands under '{title}'")
        for line in lines:
            count += 1
            if not any(stands_in(line, other) for other in rest):
                wrong.append(f"not under '{title}' of the whole, or not in this order: {' '.join(line)}")
                break
    return wrong, count


def main():
    whole, part = (sections(Path(name).read_text(encoding="utf-8")) for name in sys.argv[1:3])
    wrong, count = compare(whole, part)
    if len(part) < 7:
        wrong.append(f"only {len(part)} sections")
    print("\n".join([f"WRONG: {line}" for line in wrong] + [f"{count} lines of {len(part)} sections, {len(wrong)} wrong"]))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
