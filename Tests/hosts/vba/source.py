"""Reads the text of a VBA module: physical lines, logical lines, conditional compilation, tokens."""

import re
from dataclasses import dataclass

LONGEST_LINE, MOST_CONTINUED, LONGEST_NAME = 1023, 24, 255
LONGEST_MODULE, MOST_LINES = 64 * 1024, 65534
LONGEST_PROCEDURE = 32 * 1024  # of text: compiled it may have 64 KB, which only the host can measure

# The constants of conditional compilation that the hosts define, for each of the hosts.
HOSTS = {
    "VBA6, Windows": {"win32": -1, "vba6": -1},
    "VBA7, 32-bit Windows": {"win32": -1, "vba6": -1, "vba7": -1},
    "VBA7, 64-bit Windows": {"win32": -1, "win64": -1, "vba6": -1, "vba7": -1},
    "VBA6, Mac": {"mac": -1, "vba6": -1},
    "VBA7, 32-bit Mac": {"mac": -1, "vba6": -1, "vba7": -1},
    "VBA7, 64-bit Mac": {"mac": -1, "win64": -1, "vba6": -1, "vba7": -1},
}
HOST_CONSTANTS = {"mac", "vba6", "vba7", "win16", "win32", "win64"}


class VbaError(Exception):
    """What is wrong, and in which line."""

    def __init__(self, line, message):
        super().__init__(f"line {line}: {message}")


@dataclass(frozen=True)
class Token:
    kind: str        # name, foreign, string, number, date, op, end
    text: str
    line: int
    is_spaced: bool  # a blank stands before it

    @property
    def word(self):
        return self.text.lower() if self.kind == "name" else ""


def logical_lines(text):
    """Pairs of a line number and the line, with its continuations as one."""
    if len(text) > LONGEST_MODULE or text.count("\n") > MOST_LINES:
        raise VbaError(1, "the module is too long")
    if re.search(r"(?<!\r)\n|\r(?!\n)", text):
        raise VbaError(1, "a line does not end with carriage return and line feed")
    found, current, start, continued = [], "", 1, 0
    for number, line in enumerate(text.split("\r\n"), start=1):
        if len(line) > LONGEST_LINE:
            raise VbaError(number, "the line is too long")
        if not line.isascii():
            raise VbaError(number, "a character is not ASCII")
        if not continued:
            start, current = number, ""
        if re.search(r"[ \t]_$", line):
            current += line[:-1]
            continued += 1
            if continued > MOST_CONTINUED:
                raise VbaError(number, "too many lines are continued")
            continue
        found.append((start, current + line))
        continued = 0
    if continued:
        raise VbaError(start, "the last line is continued")
    return found


TOKEN = re.compile(r"""
    (?P<blank>[ \t]+)
  | (?P<comment>'.*)
  | (?P<string>"(?:[^"]|"")*")
  | (?P<number>&[Hh][0-9A-Fa-f]+[&%^]? | &[Oo][0-7]+[&%^]? | (?:\d+\.?\d*|\.\d+)(?:[EeDd][+-]?\d+)?[&%^!\#@]?)
  | (?P<date>\#[0-9A-Za-z][^#]*\#)
  | (?P<name>[A-Za-z][A-Za-z0-9_]*(?:[$%&!\#@^](?![A-Za-z0-9_\[]))?)
  | (?P<foreign>\[[^\]]+\])
  | (?P<op>:=|<=|>=|<>|[-+*/\\^&=<>().,:;!\#])
    """, re.VERBOSE)


def tokens_of(number, line):
    """The tokens of a logical line, without its comment, and an end."""
    found, at, is_spaced = [], 0, False
    while at < len(line):
        match = TOKEN.match(line, at)
        if not match:
            raise VbaError(number, f"no token of the language: {line[at:at + 20]}")
        at = match.end()
        kind, text = match.lastgroup, match.group()
        if kind == "name" and text.lower() == "rem" and (not found or found[-1].text == ":"):
            break
        if kind == "name" and len(text) > LONGEST_NAME:
            raise VbaError(number, "a name is too long")
        if kind not in ("blank", "comment"):
            found.append(Token(kind, text, number, is_spaced))
        is_spaced = kind == "blank"
    if found:
        found.append(Token("end", "end of line", number, False))
    return found


def select(lines, host, value_of):
    """The logical lines that a host compiles. value_of(tokens, constants) evaluates the conditions."""
    constants = dict(HOSTS[host])
    kept, open_blocks = [], []  # of each block: is it compiled, was one compiled, was there an Else, its line
    for number, line in lines:
        words = line.strip().lower()
        if not words.startswith("#"):
            if all(block[0] for block in open_blocks):
                kept.append((number, line))
            continue
        rest = tokens_of(number, line.strip()[1:]) or [Token("end", "", number, False)]
        first = rest[0].word + (" if" if rest[0].word == "end" and len(rest) > 1 and rest[1].word == "if" else "")
        is_outer = all(block[0] for block in open_blocks[:-1])
        if first in ("if", "elseif"):
            if rest[-2].word != "then":
                raise VbaError(number, "Then expected")
            holds = value_of(rest[1:-2] + rest[-1:], constants) != 0
        if first == "if":
            open_blocks.append([holds, holds, False, number])
        elif first == "const":
            if all(block[0] for block in open_blocks):
                if len(rest) < 5 or rest[2].text != "=":
                    raise VbaError(number, "#Const takes a name, = and a value")
                constants[rest[1].word] = value_of(rest[3:], constants)
        elif not open_blocks:
            raise VbaError(number, f"no #If before {line.strip()}")
        elif first in ("elseif", "else"):
            block = open_blocks[-1]
            if block[2]:
                raise VbaError(number, f"{line.strip()} after #Else")
            is_compiled = not block[1] and (first == "else" or holds) and is_outer
            open_blocks[-1] = [is_compiled, block[1] or is_compiled, first == "else", block[3]]
        elif first == "end if":
            open_blocks.pop()
        else:
            raise VbaError(number, f"not a directive: {line.strip()}")
    if open_blocks:
        raise VbaError(open_blocks[-1][3], "no #End If")
    return kept
