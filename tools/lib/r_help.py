"""The help pages and the NAMESPACE of the R package, from the comments (#') above its functions.

The tags are roxygen's: @param, @return, @details, @section, @examples, @seealso, @export, @rdname, @format, @docType,
@importFrom. Text is Rd, but `code` stands for \\code{code}. Two tags are this package's own:

    @shared x weights    describes these arguments in the words of SHARED
    @contract NAME...    quotes the contracts of these flat functions
"""

import re
from dataclasses import dataclass, field

from r_flat import TAGS, contract_words
from arguments import ROOT, read_calls

SHARED = {
    "x": "a numeric vector, matrix or data frame; `NA` and `NaN` are missing. Of a table there is a result for each column.",
    "vector": "a numeric vector; `NA` and `NaN` are missing.",
    "table": "a numeric matrix or data frame with a variable in each column; `NA` and `NaN` are missing.",
    "square": "a square numeric matrix or data frame without missing cells.",
    "weights": "a weight for each row, not negative; `NULL` weighs each with 1.",
    "exclude": "a logical vector with `TRUE` for each row to leave out, or `NULL`.",
    "divisor": "by what is divided: `\"frequency\"` is \\eqn{W - 1}{W - 1} (weights count rows), `\"reliability\"` "
               "\\eqn{W - W/m}{W - W/m} (weights are relative; m rows), `\"population\"` \\eqn{W}{W}, the sum of weights.",
    "zero_weights": "whether a row of weight 0 counts in m, the number of rows: `\"counted\"` or `\"skipped\"`.",
    "seed": "a whole number that starts the series; the same seed gives the same series on every machine. `NULL` draws one.",
    "labels": "a factor, a character vector, or what `as.character` makes one of; `NA` and empty strings are missing.",
    "dots": "not used.",
}
GENERICS = ("print", "summary", "plot", "format", "coef", "fitted", "residuals", "predict", "as.data.frame", "vcov", "nobs")


@dataclass
class Block:
    lines: list
    name: str = ""
    formals: str = ""
    tags: list = field(default_factory=list)    # pairs: tag, text

    def texts(self, tag):
        return [text for found, text in self.tags if found == tag]

    def text(self, tag):
        return "\n\n".join(self.texts(tag))


def balanced(text, start):
    """The place behind the bracket that closes the one at start."""
    depth, quote, k = 0, None, start
    while k < len(text):
        c = text[k]
        if quote:
            if c == "\\":
                k += 1
            elif c == quote:
                quote = None
        elif c in "\"'":
            quote = c
        else:
            depth += (c in "([{") - (c in ")]}")
            if depth == 0:
                return k + 1
        k += 1
    raise ValueError("an open bracket in R's source")


def blocks_of(source):
    """The commented definitions of a file."""
    pattern = re.compile(r"((?:^#'.*\n)+)([^\n]*)", re.M)
    for match in pattern.finditer(source):
        lines = [line[2:].removeprefix(" ") for line in match.group(1).splitlines()]
        block = Block(lines)
        head = match.group(2)
        defined = re.match(r"(?:([\w.]+)|\"([\w.]+)\"|(NULL))(?:\s*<-\s*(function)\s*\()?", head)
        if defined and not defined.group(3):
            block.name = defined.group(1) or defined.group(2)
            if defined.group(4):
                start = match.start(2) + defined.end() - 1
                block.formals = re.sub(r"\s+", " ", source[start + 1:balanced(source, start) - 1]).strip()
        block.tags = list(tags_of(lines))
        yield block


def tags_of(lines):
    tag, held = "intro", []
    for line in lines:
        found = re.match(r"@(\w+) ?(.*)", line)
        if found:
            yield tag, "\n".join(held).strip("\n")
            tag, held = found.group(1), [found.group(2)]
        else:
            held.append(line)
    yield tag, "\n".join(held).strip("\n")


def marked(text):
    """Code between backticks, and per cent signs, in Rd's markup."""
    text = re.sub(r"(?<!\\)%", r"\\%", text)
    return re.sub(r"`([^`]*)`", lambda found: "\\code{" + found.group(1) + "}", text)


def plain(text):
    """Words of a contract, in which nothing is markup but code between backticks."""
    return marked(re.sub(r"([\\{}])", r"\\\1", text))


def method_of(name):
    for generic in GENERICS:
        if name.startswith(generic + "."):
            return generic, name[len(generic) + 1:]
    return None


def usage_of(block):
    method = method_of(block.name)
    head = f"\\method{{{method[0]}}}{{{method[1]}}}" if method else block.name
    if not block.formals and "format" in dict(block.tags):
        return block.name
    text = f"{head}({block.formals})".replace("%", "\\%")
    if len(text) <= 88:
        return text
    return re.sub(r", (?=[\w.]+(?: =|,|\)|$))", ",\n  ", text)


def contract_of(names, words):
    for name in names:
        rows = [f"\\item{{{title}}}{{{plain(words[name][tag])}.}}" for tag, title in TAGS.items() if words[name].get(tag)]
        if rows:
            yield f"\\code{{{name}}}\n\\describe{{\n" + "\n".join(rows) + "\n}"


def page_of(name, blocks, words):
    """The Rd of a page: that of its first block, with the usage and arguments of the others."""
    first = blocks[0]
    title, _, rest = first.text("intro").partition("\n\n")
    description, _, details = rest.partition("\n\n")
    yield "% Written by tools/lib/r_help.py from the comments in R's files: change those, not this page."
    yield f"\\name{{{name}}}"
    for block in blocks:
        yield f"\\alias{{{block.name or name}}}"
    for kind in first.texts("docType"):
        yield f"\\docType{{{kind}}}"
    yield f"\\title{{{marked(title.rstrip('.'))}}}"
    yield f"\\description{{\n{marked(description or title)}\n}}"
    usages = [usage_of(block) for block in blocks if block.name]
    if usages and first.text("docType") != "package":
        yield "\\usage{\n" + "\n\n".join(usages) + "\n}"
    arguments = {}
    for block in blocks:
        for text in block.texts("shared"):
            for word in text.split():
                formal = {"vector": "x", "table": "x", "square": "a", "dots": "..."}.get(word, word)
                arguments.setdefault(formal.split("=")[0], SHARED[word.split("=")[-1]])
        for text in block.texts("param"):
            formal, _, told = text.partition(" ")
            arguments.setdefault(formal, told)
    if arguments:
        yield "\\arguments{"
        order = re.findall(r"(?:^|, )([\w.]+)", ", ".join(block.formals for block in blocks))
        for formal, told in sorted(arguments.items(), key=lambda pair: order.index(pair[0].split(",")[0])):
            shown = ", ".join("\\dots" if part == "..." else part for part in formal.split(","))
            yield f"\\item{{{shown}}}{{{marked(told)}}}"
        yield "}"
    if first.texts("format"):
        yield f"\\format{{\n{marked(first.text('format'))}\n}}"
    if first.texts("return"):
        yield f"\\value{{\n{marked(first.text('return'))}\n}}"
    details = "\n\n".join(part for part in (details, first.text("details")) if part)
    if details:
        yield f"\\details{{\n{marked(details)}\n}}"
    for text in first.texts("section"):
        head, _, body = text.partition(":")
        yield f"\\section{{{head.strip()}}}{{\n{marked(body.strip())}\n}}"
    names = [one for block in blocks for text in block.texts("contract") for one in text.split()]
    told = list(contract_of(dict.fromkeys(names), words))
    if told:
        yield ("\\section{Contract}{\nWhat the library does, in whose words a missing cell is what is \\code{NA} in R, "
               "and what follows is said of its own functions (see \\code{\\link{flat}}).\n\n" + "\n\n".join(told) + "\n}")
    if first.texts("source"):
        yield f"\\source{{\n{marked(first.text('source'))}\n}}"
    if first.texts("seealso"):
        yield f"\\seealso{{\n{marked(first.text('seealso'))}\n}}"
    examples = "\n".join(text for block in blocks for text in block.texts("examples"))
    if examples:
        yield "\\examples{\n" + re.sub(r"(?<!\\)%", r"\\%", examples.strip("\n")) + "\n}"


def namespace(blocks):
    yield "# Written by tools/lib/r_help.py from the comments in R's files: change those, not this file."
    yield 'useDynLib(vecmat, .registration = TRUE, .fixes = "C_")'
    imported = sorted({text.strip() for block in blocks for text in block.texts("importFrom")})
    for text in imported:
        package, *names = text.split()
        yield f"importFrom({package}, {', '.join(names)})"
    exports, methods = set(), set()
    for block in blocks:
        if not block.texts("export"):
            continue
        method = method_of(block.name)
        (methods if method else exports).add(method or block.name)
    yield from (f"export({name})" for name in sorted(exports))
    yield from (f"S3method({generic}, {kind})" for generic, kind in sorted(methods))


def files(package):
    """The pages and the NAMESPACE by their paths in the package."""
    blocks = [block for path in sorted((package / "R").glob("*.R"))
              for block in blocks_of(path.read_text(encoding="utf-8"))]
    words = contract_words(ROOT, read_calls(ROOT))
    pages = {}
    for block in blocks:
        name = block.text("rdname").strip() or block.text("name").strip() or block.name
        if name and "noRd" not in dict(block.tags) and (block.text("intro") or block.texts("rdname")):
            pages.setdefault(name, []).append(block)
    for name, members in pages.items():
        members.sort(key=lambda block: not block.text("intro"))
        if not members[0].text("intro"):
            raise ValueError(f"{name}: the page has no title")
    texts = {f"man/{name}.Rd": "\n".join(page_of(name, members, words)) + "\n" for name, members in pages.items()}
    texts["NAMESPACE"] = "\n".join(namespace(blocks)) + "\n"
    return texts
