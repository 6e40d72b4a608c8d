"""The relatives of a function and in what they differ, from their contracts: see reference.py."""

import re
from dataclasses import dataclass
from functools import cache

from header_comments import TITLES
from reference_model import CELLS, stem, without_prefix

# What tells two functions apart, in this order. Memory and sources are no difference of results.
COMPARED = ("missing", "mask", "weights", "divisor", "empty", "failure", "seed", "weak")
MOST = 10


@dataclass(frozen=True)
class Difference:
    title: str
    there: str
    here: str


def storage_of(name):
    if re.search(r"SPV\d*_T$", name) or name.endswith("_T"):
        return "a triangle of columns"
    if re.search(r"SPV\d*$", name):
        return "an array of columns"
    return ""


def cells_of(name):
    match = re.search(r"(Dbl|Lng|Str|Bool)(SPV\w*|\d*)$", name)
    return CELLS[match.group(1)] if match else ""


def forms(function, functions):
    """The same function in other forms: its flat forms, or the function itself and the other flat forms."""
    base = functions[function.base] if function.base else function
    return [name for name in [base.name, *base.flat_forms] if name != function.name]


def representative(name, function, functions):
    """The form of a relative that is compared with a function: flat with flat."""
    base = functions[functions[name].base] if functions[name].base else functions[name]
    if not function.call:
        return base.name
    of_kind = [form for form in base.flat_forms if form[:3] == function.name[:3]] or base.flat_forms
    same_cells = [form for form in of_kind if cells_of(form) == cells_of(function.name)]
    return (same_cells or of_kind or [base.name])[0]


def mentioned(function):
    """The names that the function's own comment has in code."""
    return _names_in_code(tuple(contract.prose.function.prose for contract in function.contracts))


@cache
def _names_in_code(proses):
    return frozenset(re.findall(r"`([\w:]+)`", "\n".join(line for prose in proses for line in prose)))


def relatives(function, functions):
    """The functions that a reader may take for this one: of the same stem, or named in its comment or naming it."""
    base = functions[function.base] if function.base else function
    own = {function.name, *forms(function, functions)}
    close = mentioned(base)
    found = {}
    for other in functions.values():
        if other.name in own or other.base in own:
            continue
        same_unit = other.unit == base.unit
        closeness = (2 * (other.name in close or (same_unit and base.name in mentioned(other)))
                     + 3 * (stem(other.name) == stem(base.name) and (same_unit or len(stem(base.name)) > 2))
                     + same_unit)
        if closeness >= 2 and "::" not in other.name + base.name or closeness >= 3:
            name = representative(other.name, function, functions)
            if name not in own:
                found[name] = max(closeness, found.get(name, 0))
    order = sorted(found, key=lambda name: (-found[name], storage_of(name) != storage_of(function.name)))
    return order[:MOST]


def argument_differences(here, there):
    """Arguments that only one of the two has, by their names; those of one letter are too short to tell anything."""
    telling = {name.lower(): name for name in [*here.parameters(), *there.parameters()]
               if len(name) > 1 or name in ("w", "Z")}
    here_names = {name.lower() for name in here.parameters()}
    there_names = {name.lower() for name in there.parameters()}
    there_only = [name for key, name in telling.items() if key in there_names - here_names]
    here_only = [name for key, name in telling.items() if key in here_names - there_names]
    if there_only or here_only:
        told = ["also takes " + ", ".join(f"`{name}`" for name in there_only)] if there_only else []
        told += ["has no " + ", ".join(f"`{name}`" for name in here_only)] if here_only else []
        yield Difference("Arguments", "; ".join(told), "")


def differences(here, there):
    """In what `there` differs from `here`: storage, cells and arguments, with nothing to say of `here`; then tag by tag."""
    for title, of in (("Storage", storage_of), ("Cells", cells_of)):
        if of(here.name) != of(there.name):
            plain = "a plain table or vector" if title == "Storage" else "doubles"
            yield Difference(title, f"over {of(there.name) or plain}", "")
    yield from argument_differences(here, there)
    here_tags, there_tags = here.tags(), there.tags()
    for tag in COMPARED:
        a, b = here_tags.get(tag, ""), there_tags.get(tag, "")
        if a != b:
            yield Difference(TITLES[tag], b or "–", a or "–")


def spellings(name):
    """How a reader may type a name in the search."""
    bare = without_prefix(name)
    short = re.sub(r"^[MV]_", "", bare)
    return sorted({name, bare, short, name.replace("_", ""), bare.replace("_", ""), name.replace("::", "")})
