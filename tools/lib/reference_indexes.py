"""The indexes of the reference: by subject, by name, by task. See reference.py."""

import csv

from contracts import HEADERS
from reference_model import as_markdown, summary, without_prefix
from reference_pages import FAMILY_TITLES, contract_anchor, label_of


def link(function):
    """The name as code, which becomes a link: see reference_sphinx.py."""
    return f"`{function.name}`"


def by_unit(functions):
    units = {}
    for function in functions.values():
        units.setdefault(function.unit, []).append(function)
    return units


def family_page(family, functions):
    """One subject: a table for each unit, with the forms of a function in one row."""
    title = FAMILY_TITLES[family]
    lines = [f"# {title}", ""]
    units = {unit: members for unit, members in by_unit(functions).items() if members[0].family == family}
    for unit, members in units.items():
        header = as_markdown(members[0].contracts[0].prose.header.prose)
        first = header[:next((k for k, line in enumerate(header) if not line), len(header))]
        lines += [f"({label_of(unit)})=", f"## {unit.split('/')[-1].replace('_', ' ').capitalize()}", "", *first, "",
                  "```{rst-class} functions", "```", "| Function | Computes | Flat forms |", "|---|---|---|"]
        for function in members:
            if function.base:
                continue
            flat = ", ".join(link(functions[form]) for form in function.flat_forms)
            lines.append(f"| {link(function)} | {summary(function, functions)} | {flat} |")
        lines += ["", f"[The contracts of this unit side by side](../contracts/{family}.md#{contract_anchor(unit)})", ""]
    return "\n".join(lines).rstrip() + "\n"


def name_page(functions):
    """All names by the letter they start with, prefixes left out."""
    letters = {}
    for function in functions.values():
        key = function.name.split("::")[-1].lstrip("~") if "::" in function.name else without_prefix(function.name)
        key = key[2:] if key.startswith(("M_", "V_")) else key
        letters.setdefault(key[:1].upper(), []).append((key.lower(), function.name.lower(), function))
    lines = ["# All functions by name", "", "Sorted without `VB_`, `Cpp_`, `M_` and `V_`: like functions stand together.", "",
             " · ".join(f"[{letter}](letter-{letter.lower()})" for letter in sorted(letters)), ""]
    for letter in sorted(letters):
        lines += [f"(letter-{letter.lower()})=", f"## {letter}", "", "```{rst-class} functions", "```", "| Name | Computes |",
                  "|---|---|"]
        lines += [f"| {link(function)} | {summary(function, functions)} |" for *_, function in sorted(
            letters[letter], key=lambda item: item[:2])]
        lines.append("")
    return "\n".join(lines).rstrip() + "\n"


def read_tasks(path):
    """The tasks by chapter: pairs of what a reader wants and the names of functions."""
    chapters = {}
    with open(path, encoding="utf-8", newline="") as file:
        for row in csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE):
            chapters.setdefault(row["chapter"], []).append((row["task"], row["functions"].split(" "), row["note"]))
    return chapters


def task_page(path, functions):
    lines = ["# By task", "", "What to call for what. The functions over tables; their pages name the flat forms.", ""]
    for chapter, tasks in read_tasks(path).items():
        lines += [f"## {chapter}", "", "```{rst-class} functions", "```", "| To | Call | Mind |", "|---|---|---|"]
        for task, names, note in tasks:
            unknown = [name for name in names if name not in functions]
            if unknown:
                raise ValueError(f"{path.name}: {task}: there is no function {', '.join(unknown)}")
            lines.append(f"| {task} | {', '.join(link(functions[name]) for name in names)} | "
                         f"{'' if note == '-' else note} |")
        lines.append("")
    return "\n".join(lines).rstrip() + "\n"


def reference_page(functions):
    flat = sum(1 for function in functions.values() if function.call)
    overloads = sum(len(function.contracts) for function in functions.values())
    lines = ["# Reference", "",
             f"{len(functions)} names, {overloads} functions with the overloads, {flat} of them flat: each has its page. "
             f"The pages are written from the headers in `{HEADERS}`, where each contract stands once.", "",
             "- By [task](tasks.md): what to call for what", "- By [name](names.md)", "- By subject:", ""]
    for family, title in FAMILY_TITLES.items():
        count = sum(1 for function in functions.values() if function.family == family)
        lines.append(f"  - [{title}](reference/{family}.md), {count} names")
    lines += ["", "Or type a part of a name into the search: prefixes and underscores can be left out.", "",
              "C++ readers find classes, files and declarations [in the pages that Doxygen writes](doxygen:), too.", ""]
    return "\n".join(lines)
