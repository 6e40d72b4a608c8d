"""What the reference tells of each exported name, gathered from the headers and the tables: see reference.py.

    functions = read_functions(root)
    functions["V_Mean"].flat_forms        # ["VB_V_Mean"]
"""

import re
from dataclasses import dataclass, field
from functools import cache

from arguments import read_calls
from contracts import contracts, family_of

STORAGE = {"SPV": "array of columns", "SPV_T": "triangle of columns", "_T": "triangle of columns"}
CELLS = {"Dbl": "doubles", "Lng": "ints", "Str": "strings", "Bool": "Booleans"}
# What stands at the end of a name and tells storage, cells or a variant.
ENDINGS = re.compile(r"(SPV_T|SPV|Dbl|Lng|Str|Bool|W|MW|M|Seq|Q|\d+|_T)$")


@dataclass
class Function:
    """An exported name with all of its overloads."""

    name: str
    unit: str
    contracts: list = field(default_factory=list)  # one for each overload, see contracts.py
    call: object = None                            # its arguments, if it is flat; see arguments.py
    base: str = ""                                 # the name of the function whose flat form this is
    flat_forms: list = field(default_factory=list)

    @property
    def family(self):
        return family_of(self.unit)

    @property
    def document(self):
        """The name of its page."""
        return document_of(self.name)

    @property
    def declarations(self):
        return [contract.declaration for contract in self.contracts]

    @property
    def linkage(self):
        return self.declarations[0].linkage

    def tags(self):
        """The tags that all overloads share."""
        first, *others = [contract.tags for contract in self.contracts]
        return {tag: text for tag, text in first.items() if all(other.get(tag) == text for other in others)}

    def kind(self):
        if "::" in self.name:
            return "member"
        if self.name.startswith("VB_"):
            return "flat form for macros"
        if self.name.startswith("Cpp_"):
            return "flat form for native callers"
        if self.call:
            return "flat function"
        if any("**" in kind for declaration in self.declarations for kind in declaration.types):
            return "function over arrays of columns"
        return "function over tables"

    def parameters(self):
        return list(dict.fromkeys(name for declaration in self.declarations for name in declaration.names if name))


def document_of(name):
    """A file name: `matrix.vbget`, `matrix.destructor`."""
    return name.replace("::~", ".destructor.").replace("::", ".")


def without_prefix(name):
    """`V_Mean` of `VB_V_Mean`, `Mean` of `V_Mean`."""
    name = re.sub(r"^(VB_|Cpp_|Run)", "", name.split("::")[-1])
    return re.sub(r"^c(?=[A-Z])", "", name)


@cache
def stem(name):
    """What the names of relatives have in common: `Mean` of `VB_M_MeanSPV` and of `V_Mean2`."""
    text = re.sub(r"^[MV]_", "", without_prefix(name))
    shorter = ENDINGS.sub("", text)
    while shorter and shorter != text:
        text, shorter = shorter, ENDINGS.sub("", shorter)
    return text if "::" not in name else f"::{text}"


def words_of(name):
    """The words of a name, for the search: `mean`, `var` of `V_MeanVar`."""
    text = re.sub(r"([a-z])([A-Z])", r"\1 \2", without_prefix(name).replace("_", " "))
    return [word.lower() for word in re.sub(r"([A-Z]+)([A-Z][a-z])", r"\1 \2", text).split()]


def read_functions(root):
    """All exported names, in the order of the headers."""
    calls = read_calls(root)
    functions = {}
    for contract in contracts(root):
        name = contract.declaration.name
        function = functions.setdefault(name, Function(name, contract.unit, call=calls.get(name)))
        function.contracts.append(contract)
        function.base = function.base or contract.flat_form_of
    for function in functions.values():
        if function.base:
            functions[function.base].flat_forms.append(function.name)
    return functions


# ---- what headers say, as Markdown ----------------------------------------------------------------------------------

SPECIAL = re.compile(r"([\\*_<>\[\]{}|$~])")


def escaped(text):
    """The text with what Markdown would take for markup escaped, but for code."""
    parts = re.split(r"(`[^`]*`)", text)
    return "".join(part if part.startswith("`") else SPECIAL.sub(r"\\\1", part) for part in parts)


def as_markdown(lines):
    """Lines of a comment as Markdown: paragraphs, lists, and what is indented by four more blanks as it stands."""
    out, in_list, in_block = [], False, False
    for line in lines:
        is_item = bool(re.match(r" *- ", line))
        in_list = is_item or (in_list and line.startswith("   "))
        is_block = line.startswith("     ") and not in_list
        if (is_block != in_block or (is_item and out and not out[-1].lstrip().startswith("-"))) and out and out[-1]:
            if not is_item or not in_list or is_block != in_block or not out[-1].startswith("  "):
                out.append("")
        in_block = is_block
        text = line.rstrip()[1:] if line.startswith(" ") else line.rstrip()
        out.append(text if is_block else re.sub(r"^(\s*)([+#]|\d+\.)(\s)", r"\1\\\2\3", escaped(text)))
    return out


def paragraphs(block):
    return as_markdown(block.prose) if block.prose else []


def heading_text(block):
    """What a `// ----` heading says below its rule."""
    return as_markdown([line for line in block.prose[1:] if line.strip(" -")]) if block.prose else []


def first_sentence(lines):
    """The first sentence of Markdown lines, for lists."""
    text = " ".join(line.strip() for line in _first_paragraph(lines))
    match = re.match(r"(.+?[.:])(?= [A-Z`]|$)", text)
    return (match.group(1) if match else text).rstrip(":.")


def _first_paragraph(lines):
    for line in lines:
        if not line.strip():
            return
        yield line


def own_description(function):
    """What the headers tell of this function itself, as Markdown lines; overloads with other words add theirs."""
    seen, out = set(), []
    for contract in function.contracts:
        prose = contract.prose.function.prose
        if prose and prose not in seen:
            seen.add(prose)
            out += ([""] if out else []) + as_markdown(prose)
    return out


def description(function, functions):
    """What the function computes: its own words, those of the function whose flat form it is, or of its section."""
    if function.base:
        return description(functions[function.base], functions)
    own = own_description(function)
    if own:
        return own
    comments = function.contracts[0].prose
    section = paragraphs(comments.section) or heading_text(comments.heading)
    title = as_markdown(comments.header.prose[:1])
    return section or title


def summary(function, functions):
    return first_sentence(description(function, functions))


# Words that begin what is told of a function only within its unit, and against the one before it.
IN_CONTEXT = ("From ", "All blocks", "C is ", "With weights", "One draw", "Flat forms", "Only ", "max(", "nA + nB")
LIKE_ANOTHER = ("The same", "Likewise", "Also")


def summary_alone(function, functions):
    """The summary where nothing around it tells of the unit: if it needs that, after what the unit is for."""
    text = summary(function, functions)
    if not text.startswith(IN_CONTEXT + LIKE_ANOTHER):
        return text
    base = functions[function.base] if function.base else function
    unit = first_sentence(as_markdown(base.contracts[0].prose.header.prose))
    return f"{unit} – {text[:1].lower() if text[1:2].islower() else text[:1]}{text[1:]}"
