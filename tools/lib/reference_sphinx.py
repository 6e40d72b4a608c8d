"""What Sphinx is taught for the reference, as an extension.

- Formulas become MathML, which browsers show without a script.
- Code that is the name of an exported function links to its page, wherever it stands.
- `doxygen:UNIT` as the address of a link is the page that Doxygen writes of the unit's header.
- The search shows in its results what each function computes.
"""

import html
import json
import re
import zlib
from pathlib import Path
from xml.etree import ElementTree

from docutils import nodes
from docutils.utils.math.latex2mathml import tex2mathml
from pygments import token
from pygments.lexer import RegexLexer, words
from sphinx.util.osutil import relative_uri

FUNCTIONS = "functions.tsv"
MATHML = "{http://www.w3.org/1998/Math/MathML}"
ACCENTS = ("ˉ", "ˆ")
ElementTree.register_namespace("", MATHML[1:-1])
HIGHLIGHTED = (nodes.title, nodes.reference)


class MacroLexer(RegexLexer):
    """The macro language, of which Pygments knows only a later relative."""

    name, aliases, flags = "Macro", ["vb"], re.IGNORECASE
    tokens = {"root": [
        (r"'[^\n]*", token.Comment),
        (r'"(?:[^"\n]|"")*"', token.String),
        (r"#\w[^\n]*", token.Comment.Preproc),
        (words(("And", "As", "ByRef", "ByVal", "Call", "Const", "Declare", "Dim", "Do", "Each", "Else", "ElseIf", "Empty",
                "End", "Erase", "Exit", "Explicit", "For", "Function", "If", "In", "Is", "Loop", "Mod", "Next", "Not",
                "Nothing", "Null", "Option", "Or", "Private", "PtrSafe", "Public", "ReDim", "Select", "Set", "Step", "Sub",
                "Then", "To", "Type", "Until", "Wend", "While", "With"), prefix=r"\b", suffix=r"\b"), token.Keyword),
        (words(("Any", "Boolean", "Byte", "Double", "Integer", "Long", "LongPtr", "Object", "Range", "Single", "String",
                "Variant"), prefix=r"\b", suffix=r"\b"), token.Keyword.Type),
        (r"\b(True|False)\b", token.Keyword.Constant),
        (r"\b\d[\d.]*(?:E[+-]?\d+)?#?", token.Number),
        (r"[A-Za-z_]\w*", token.Name),
        (r"\s+|.", token.Text),
    ]}


def read_names(app):
    """Documents and summaries by name."""
    names = {}
    for line in (Path(app.srcdir) / FUNCTIONS).read_text(encoding="utf-8").splitlines():
        name, document, summary = line.split("\t")
        names[name] = (f"functions/{document}", re.sub(r"[`\\]", "", summary))
    app.env.function_names = names


def link_names(app, doctree, docname):
    """Makes links of code that is a name, and of the addresses of Doxygen's pages."""
    names = app.env.function_names
    for node in list(doctree.findall(nodes.literal)):
        name = node.astext().removesuffix("()")
        target = names.get(name, (docname,))[0]
        if target == docname or any(isinstance(parent, HIGHLIGHTED) for parent in parents(node)):
            continue
        uri = app.builder.get_relative_uri(docname, target)
        node.replace_self(nodes.reference("", "", node.deepcopy(), internal=True, refuri=uri))
    for node in doctree.findall(nodes.reference):
        if node.get("refuri", "").startswith("doxygen:"):
            page = doxygen_page(node["refuri"].removeprefix("doxygen:"))
            node["refuri"] = relative_uri(app.builder.get_target_uri(docname), f"cpp/{page}")


def doxygen_page(unit):
    """The file name of the page of a header, or of Doxygen's first page."""
    return unit.split("/")[-1].replace("_", "__") + "_8h.html" if unit else "index.html"


def parents(node):
    while node.parent is not None:
        node = node.parent
        yield node


def with_indices(formula):
    """A formula with the indices of accented letters beside them: the converter takes them for limits and puts them below."""
    formula = re.sub(r"&(?!lt;|gt;|amp;)\w+;", lambda entity: html.unescape(entity.group()), formula)  # unknown in XML
    root = ElementTree.fromstring(formula)
    for element in list(root.iter(MATHML + "munderover")):
        letter, index, accent = element
        if accent.tag == MATHML + "mo" and accent.text in ACCENTS:
            accented = ElementTree.Element(MATHML + "mover")
            accented.extend([letter, accent])
            element.tag = MATHML + "msub"
            element[:] = [accented, index]
    return ElementTree.tostring(root, encoding="unicode")


def mathml(writer, node, inline):
    tag = "span" if inline else "div"
    try:
        formula = with_indices(tex2mathml(node.astext(), inline=inline))
    except SyntaxError as error:
        raise SyntaxError(f"{writer.builder.current_docname}: {error}: {node.astext()}") from error
    writer.body.append(f'<{tag} class="math">{formula}</{tag}>')
    raise nodes.SkipNode


def visit_math(writer, node):
    mathml(writer, node, True)


def visit_math_block(writer, node):
    mathml(writer, node, False)


def write_static(app, error):
    """What the search shows of each function, as a script: pages cannot be fetched from the disk. The dark colours."""
    if error:
        return
    summaries = {document: summary for document, summary in app.env.function_names.values()}
    text = f"var functionSummaries = {json.dumps(summaries, sort_keys=True)};\n"
    static = Path(app.outdir) / "_static"
    (static / "summaries.js").write_text(text, encoding="utf-8")
    (static / "dark.css").write_text(dark_style((static / "styles/furo.css").read_text(encoding="utf-8")), encoding="utf-8")


def dark_style(style):
    """The theme's dark colours for systems that are set to dark: a theme built by some compilers of styles lacks them."""
    if "prefers-color-scheme" in style:
        return ""
    dark = re.search(r'body\[data-theme="dark"\] (\{[^}]*\})', style).group(1)
    return f'@media not print {{ @media (prefers-color-scheme: dark) {{ body:not([data-theme="light"]) {dark} }} }}\n'


def setup(app):
    app.add_html_math_renderer("mathml", (visit_math, None), (visit_math_block, None))
    app.add_lexer("vb", MacroLexer)
    app.connect("builder-inited", read_names)
    app.connect("doctree-resolved", link_names)
    app.connect("build-finished", write_static)
    version = zlib.crc32(Path(__file__).read_bytes())  # pages are made anew where this file has changed
    return {"version": "1", "env_version": version, "parallel_read_safe": True, "parallel_write_safe": True}
