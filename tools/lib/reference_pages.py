"""The page of a function: see reference.py."""

import re

from header_comments import TITLES
from reference_model import (IN_CONTEXT, LIKE_ANOTHER, as_markdown, description, escaped, own_description, paragraphs, summary,
                             words_of)
from reference_siblings import differences, forms, relatives, spellings, storage_of

FAMILY_TITLES = {
    "tables": "Tables and the frame of a call", "elementary": "Elementary operations", "sorting": "Sorting and ranks",
    "missing": "Missing data", "qualitative": "Qualitative variables and groups", "descriptive": "Descriptive statistics",
    "randomisation": "Randomisation, ranges and designs", "decompositions": "Decompositions", "fitting": "Model fitting",
}
KINDS = {
    "flat form for macros": "The flat form of {} for macros, over plain arrays",
    "flat form for native callers": "The flat form of {} for native callers, over plain arrays",
    "flat function": "The flat form of {}, over plain arrays",
}
# The parts of a contract that get a row of their own, in this order; formulas and costs stand elsewhere.
ROWS = ("missing", "mask", "weights", "divisor", "empty", "failure", "memory", "seed", "source", "weak")


def label_of(unit):
    """The label of a unit on the page of its subject."""
    return "unit-" + unit.replace("/", "-").replace("_", "-").lower()


def contract_anchor(unit):
    """The anchor of a unit on the page of contracts: that of its heading."""
    return unit.replace("/", "").lower()


def front_matter(function):
    words = [*spellings(function.name), *words_of(function.name)]
    return ["---", "orphan: true", "myst:", "  html_meta:", f'    keywords: "{", ".join(dict.fromkeys(words))}"', "---", ""]


class Pages:
    """What all pages are written from."""

    def __init__(self, functions, signatures, arguments, peers, examples):
        self.functions, self.signatures, self.arguments = functions, signatures, arguments
        self.peers, self.examples = peers, examples

    def page(self, function):
        base = self.functions[function.base] if function.base else function
        lines = [*front_matter(function), f"# {escaped(function.name)}", "", *self.place(function), *self.lead(function),
                 *self.formula(base), *self.signature(function), *self.argument_table(function), *self.contract(function),
                 *self.cost(base), *self.example(function), *self.compared(base), *self.siblings(function), *self.common(base)]
        return "\n".join(lines).rstrip("\n") + "\n"

    def place(self, function):
        """Where in the reference the page is, and which form of which function it tells of."""
        crumbs = (f"[Reference](../reference.md) › [{FAMILY_TITLES[function.family]}](../reference/{function.family}.md) › "
                  f"[{function.unit.split('/')[-1].replace('_', ' ')}]({label_of(function.unit)})")
        return ["```{rst-class} crumbs", "```", crumbs, ""]

    def lead(self, function):
        lines = []
        if function.base:
            kind = KINDS.get(function.kind(), "The form over plain arrays of {}").format(f"`{function.base}`")
            lines += [f"*{kind}.*", ""]
        elif function.kind() in ("flat form for macros", "flat form for native callers"):
            lines += [f"*A {function.kind().removeprefix('flat form ').replace('for', 'function for', 1)}, over plain arrays.*", ""]
        lines += [*self.quoted_neighbour(function), *self.told(function), ""]
        if function.base and own_description(function):
            own = own_description(function)
            if own != description(function, self.functions):
                lines += ["In this form: " + own[0], *own[1:], ""]
        elif function.base:
            section = paragraphs(function.contracts[0].prose.section)
            if section:
                lines += [*section, ""]
        return lines

    def told(self, function):
        """What the function computes; what the whole unit is for, where its own words do not say so."""
        base = self.functions[function.base] if function.base else function
        own = description(base, self.functions)
        header = as_markdown(base.contracts[0].prose.header.prose)
        if own == header[:1]:
            return header
        if own and own[0].startswith(IN_CONTEXT):
            return [*header[:next((k for k, line in enumerate(header) if not line), len(header))], "", *own]
        return own

    def quoted_neighbour(self, function):
        """A comment that begins with "The same" tells what changes against the one before it: that one in a quotation."""
        base = self.functions[function.base] if function.base else function
        own = description(base, self.functions)
        if not own or not own[0].startswith(LIKE_ANOTHER):
            return []
        names = [name for name, other in self.functions.items() if other.unit == base.unit and not other.base]
        for name in reversed(names[:names.index(base.name)]):
            before = description(self.functions[name], self.functions)
            if before != own and not before[0].startswith(LIKE_ANOTHER):
                return [f"> `{name}`: {before[0]}", *(f"> {line}" for line in before[1:]), ""]
        return []

    def formula(self, function):
        text = function.tags().get("formula")
        return ["$$", text, "$$", ""] if text else []

    def signature(self, function):
        lines = ["## Signature", ""]
        for signature in self.signatures.of(function, self.functions):
            lines += [f"````{{tab}} {signature.language}", f"```{signature.lexer}", signature.text, "```"]
            callers = self.signatures.callers_in(signature.language, function)
            if callers:
                lines += ["", f"In {signature.language}'s own habits, with labels and its missing values:", "",
                          f"```{signature.lexer}", *dict.fromkeys(caller.signature for caller in callers), "```"]
            lines += ["````", ""]
        if not function.call and not function.flat_forms and "::" not in function.name:
            lines += ["Only C++ calls it: it has no form over plain arrays.", ""]
        return lines

    def argument_table(self, function):
        table = self.arguments.table(function, self.functions)
        return ["## Arguments", "", "```{rst-class} arguments", "```", *table, ""] if table else []

    def contract(self, function):
        lines = ["## Contract", ""]
        groups = {}
        for contract in function.contracts:
            groups.setdefault(tuple((tag, contract.tags.get(tag, "")) for tag in ROWS), []).append(contract)
        for tags, members in groups.items():
            if len(groups) > 1:
                lines += [", ".join(f"`{member.declaration.signature()}`" for member in members) + ":", ""]
            rows = [f"| {TITLES[tag]} | {escaped(text)} |" for tag, text in tags if text]
            if rows:
                lines += ["```{rst-class} contract", "```", "| | |", "|---|---|", *rows, ""]
            else:
                lines += ["It takes nothing that could be missing, masked or empty.", ""]
        unit = contract_anchor(function.unit)
        lines += [f"[What the words mean](../contracts/overview.md#the-words-of-the-tables) · "
                  f"[the unit side by side](../contracts/{function.family}.md#{unit})", ""]
        return lines

    def cost(self, function):
        text = function.tags().get("cost")
        if not text:
            return []
        text = re.sub(r"\^([23])", lambda match: "²³"[int(match.group(1)) - 2], text[:1].upper() + text[1:])
        return ["## Cost", "", escaped(text).rstrip(".") + ".", ""]

    def example(self, function):
        found = self.examples.of(function, self.functions)
        return ["## Example", "", *found, ""] if found else []

    def siblings(self, function):
        lines = []
        same = forms(function, self.functions)
        others = relatives(function, self.functions)
        if same or others:
            lines += ["## Siblings", ""]
        if same:
            told = [f"`{name}`" + (f" ({self.functions[name].kind()})" if self.functions[name].kind() else "") for name in same]
            lines += ["The same function in other forms: " + ", ".join(told) + ".", ""]
        if others:
            lines += [f"Relatives, and in what they differ from `{function.name}`:", ""]
            for name in others:
                lines += self.sibling(function, self.functions[name])
        return lines

    def sibling(self, function, other):
        """A relative: its name, what it computes, and a table of the differences."""
        found = list(differences(function, other))
        text = summary(other, self.functions)
        told = f"`{other.name}`: {text}" if text and text != summary(function, self.functions) else f"`{other.name}`"
        notes = [difference.there for difference in found if not difference.here]
        rows = [difference for difference in found if difference.here
                and (difference.title != "Mask" or "–" not in (difference.here, difference.there))]
        if not found:
            notes = ["the same contract"]
        lines = ["```{rst-class} relative", "```", f"{told}{' – ' if notes else ''}{'; '.join(notes)}.", ""]
        if rows:
            lines += ["```{rst-class} siblings", "```", f"| | {escaped(other.name)} | {escaped(function.name)} |", "|---|---|---|"]
            lines += [f"| {row.title} | {escaped(row.there)} | {escaped(row.here)} |" for row in rows]
            lines.append("")
        return lines

    def compared(self, function):
        rows = self.peers.get(function.name, [])
        if not rows:
            return []
        lines = ["## Elsewhere", "", "| In | It is | How it differs |", "|---|---|---|"]
        for row in rows:
            name = row["name"] if "`" in row["name"] else f"`{row['name']}`"
            lines.append(f"| {row['ecosystem']} | {name} | {escaped_table(escaped(row['differs']))} |")
        return [*lines, ""]

    def common(self, function):
        """What the header says of all functions of the unit."""
        comments = function.contracts[0].prose
        header = as_markdown(comments.header.prose)
        lines = [f"## Common to {escaped(function.unit)}", "", *([] if self.told(function) == header else header), ""]
        section = paragraphs(comments.section)
        if section and section != description(function, self.functions):
            lines += [*section, ""]
        heading = as_markdown([line for line in comments.heading.prose[1:] if line.strip(" -")])
        if heading:
            lines += [*heading, ""]
        lines += [f"Declared in [`{function.unit}.h`](doxygen:{function.unit}).", ""]
        return lines


def escaped_table(text):
    return text.replace("\n", " ")
