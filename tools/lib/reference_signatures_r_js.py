"""How R and JavaScript call a function, read from the tree where their packages are in it: see reference_signatures.py."""

import re
from dataclasses import dataclass

# Names of arguments that are words of R.
R_WORDS = {"if", "else", "repeat", "while", "function", "for", "next", "break", "in"}


@dataclass(frozen=True)
class PackageFunction:
    """A function of a package over its flat layer."""
    name: str
    signature: str
    summary: str


def read_r_flat(root, calls, wrapped):
    """The flat functions of the R package by name. A result that is left out is made by the call."""
    if not (root / "Bindings/r/R").is_dir():
        return {}
    found = {}
    for call in calls.values():
        parts = [argument.name + ("." if argument.name in R_WORDS else "") + (" = NULL" if argument.role == "out" else "")
                 for argument in call.arguments]
        found[call.name] = wrapped(f"flat${call.name}(", parts, ")")
    return found


def read_js_flat(root, calls, wrapped):
    if not (root / "Bindings/js/src").is_dir():
        return {}
    return {call.name: wrapped(f"vm.flat.{call.name}(", [argument.name for argument in call.arguments], ")")
            for call in calls.values()}


def read_r_functions(root):
    """For each flat function, the functions of the R package that call it."""
    found = {}
    folder = root / "Bindings/r/R"
    for path in sorted(folder.glob("*.R")) if folder.is_dir() else ():
        text = path.read_text(encoding="utf-8")
        starts = list(re.finditer(r"^(vm_\w+) <- function(\()", text, re.M))
        titles = {match.group(2): match.group(1) for match in re.finditer(
            r"^#' ((?!@)[^\n]+)\n(?:#'[^\n]*\n)*(vm_\w+) <- function", text, re.M)}
        for start, end in zip(starts, [*(match.start() for match in starts[1:]), len(text)]):
            close = closing(text, start.start(2))
            parameters = " ".join(text[start.start(2) + 1:close].split())
            name = start.group(1)
            function = PackageFunction(name, f"{name}({parameters})", titles.get(name, ""))
            for called in set(re.findall(r"\bflat\$(\w+)", text[close:end])):
                found.setdefault(called, []).append(function)
    return found


def closing(text, opening):
    """The place of the bracket that closes the one at a place."""
    depth = 0
    for place in range(opening, len(text)):
        depth += (text[place] == "(") - (text[place] == ")")
        if depth == 0:
            return place
    raise ValueError("a bracket is never closed")
