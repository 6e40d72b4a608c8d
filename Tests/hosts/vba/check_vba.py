#!/usr/bin/env python3
"""check_vba.py DIRECTORY [PAGE...]: does every host compile the modules of VBA there, and what the pages show?

Reads all of them as the language's definition has it, once for each host: VBA6 and VBA7, 32 and 64 bits, Windows and Mac.
"""

import re
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from expressions import value_of
from modules import ModuleParser
from names import Project
from source import HOSTS, VbaError, logical_lines, select, tokens_of


# What the pages use of a host.
SPREADSHEET = """\
Attribute VB_Name = "Spreadsheet"
Option Explicit
Public Const xlErrNA As Long = 2042
Public Function Range(ByVal address As String) As Object
    Set Range = Nothing
End Function
""".replace("\n", "\r\n")


def modules_of_page(title, text):
    """The macros of a page, each as a module. They call the library, which 32-bit Windows does not have."""
    modules = {}
    for number, code in enumerate(re.findall(r"^```vb\n(.*?)^```$", text, re.MULTILINE | re.DOTALL), start=1):
        name = f"{title}{number}"
        lines = f'Attribute VB_Name = "{name}"\nOption Explicit\n#If Mac Or Win64 Then\n{code}#End If\n'
        modules[name] = re.sub(r"^Sub ", "Private Sub ", lines, flags=re.MULTILINE).replace("\n", "\r\n")
    return modules


def parsed(lines, tokens, host):
    kept = select(lines, host, value_of)
    return kept, ModuleParser([token for number, _ in kept for token in tokens[number]]).parse()


def check(texts):
    """What is wrong with modules, given as a dictionary of names and texts."""
    wrong, used, sources = [], {name: set() for name in texts}, {}
    for name, text in texts.items():
        try:
            lines = logical_lines(text)
            tokens = {number: [] if line.lstrip().startswith("#") else tokens_of(number, line) for number, line in lines}
            sources[name] = (lines, tokens)
        except VbaError as error:
            wrong.append(f"{name}, {error}")
    for host in HOSTS if not wrong else ():
        modules = {}
        for name, (lines, tokens) in sources.items():
            try:
                kept, modules[name] = parsed(lines, tokens, host)
                used[name].update(number for number, _ in kept)
            except VbaError as error:
                wrong.append(f"{name}, {error} ({host})")
        if len(modules) == len(sources):
            wrong += check_names(modules, host)
    for name, (lines, tokens) in sources.items() if not wrong else ():
        wrong += [f"{name}, line {number}: no host compiles it" for number, _ in lines
                  if tokens[number] and number not in used[name]]
    return together(wrong)


def together(wrong):
    """Each message once, with all the hosts that it is true of."""
    hosts = {}
    for line in wrong:
        message, found, host = line.rpartition(" (")
        hosts.setdefault(message if found else line, []).append(host.rstrip(")") if found else "")
    return [message if names in ([""], list(HOSTS)) else f"{message} ({'; '.join(names)})"
            for message, names in hosts.items()]


def check_names(modules, host):
    try:
        project = Project(list(modules.values()), host)
    except VbaError as error:
        return [f"{error} ({host})"]
    wrong = []
    for name, module in modules.items():
        try:
            if module.name != name:
                raise VbaError(1, f"the module's name is {module.name}, not the file's")
            project.check(module)
        except VbaError as error:
            wrong.append(f"{name}, {error} ({host})")
    return wrong


def main():
    paths = sorted(Path(sys.argv[1]).glob("*.bas"))
    texts = {path.stem: path.read_bytes().decode("ascii", "replace") for path in paths}
    shown = {}
    for page in map(Path, sys.argv[2:]):
        found = modules_of_page(page.stem, page.read_text(encoding="utf-8"))
        if not found:
            sys.exit(f"{page}: no macro is shown")
        shown.update(found)
    wrong = check({**texts, **shown, "Spreadsheet": SPREADSHEET})
    print("\n".join(f"WRONG: {line}" for line in wrong))
    print(f"{len(texts)} modules and {len(shown)} macros of pages for {len(HOSTS)} hosts, {len(wrong)} wrong")
    return 1 if wrong or not texts else 0


if __name__ == "__main__":
    sys.exit(main())
