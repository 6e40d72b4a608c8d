#!/usr/bin/env python3
"""guide.py [--check] [--libraries FOLDER] [--javascript FOLDER] PAGE...: runs what the pages of the guide show, and renews
what it prints.

    ```python    a session, `>>> ` before each statement; a warning is shown as a line of its own
    ```r         statements, `#> ` before each line that they print
    ```js        statements of one module, `//> ` before each line that they print
    ```html      a whole document; the next ```text block is what a browser shows of it
    ```c ```cpp  a whole program; the next ```text block is what it prints. A block that starts with a comment in which a
                 name of a header comes first is that header, for the programs below

The blocks of a page share one session for each language. A comment `<!-- check python` ... `-->`, also of r, is run like
a block and shows nothing. Other blocks are left as they are.

Writes what differs into the pages; with --check shows it as a difference and exits with 1. The first FOLDER holds the
library and its companions, the second the package for JavaScript, as npm installs it. Programs run in the repository's
root. Needs the packages that the pages use. A name of a function that does not exist is wrong, too.
"""

import argparse
import contextlib
import csv
import difflib
import doctest
import io
import re
import shutil
import subprocess
import sys
import tempfile
import traceback
import warnings
from dataclasses import dataclass
from pathlib import Path

from guide_javascript import in_javascript_package, run_documents, run_javascript

ROOT = Path(__file__).resolve().parents[2]
BLOCK = re.compile(r"^(?:```(?P<shown>\w+)|<!-- check (?P<hidden>\w+))\n(?P<body>.*?)^(?:```|-->)$", re.MULTILINE | re.DOTALL)
HEADER = re.compile(r"(?:/\*|//) (\w+\.h)\b")
COMPILERS = {"c": ("cc", "-std=c11"), "cpp": ("c++", "-std=c++20")}
PEERS = {"#include <gsl/": ("-lgsl", "-lgslcblas")}  # what a program that includes them is linked with
R_SESSION = Path(__file__).with_name("guide_session.R")


class PageError(Exception):
    """A page that cannot be run."""


@dataclass
class Block:
    language: str
    body: str
    start: int  # of the body, in the page
    line: int


def blocks_of(text):
    return [Block(found["shown"] or found["hidden"], found["body"], found.start("body"), text.count("\n", 0, found.start()) + 1)
            for found in BLOCK.finditer(text)]


# ---- Python ----

def printed_by(source, names):
    """What a statement of a session prints, its warnings and its error included."""
    printed = io.StringIO()
    with contextlib.redirect_stdout(printed), warnings.catch_warnings(record=True) as warned:
        warnings.simplefilter("always")
        try:
            exec(compile(source, "<page>", "single"), names)  # pylint: disable=exec-used
        except Exception as error:  # pylint: disable=broad-except
            print("Traceback (most recent call last):\n    ...\n" + "".join(traceback.format_exception_only(error)), end="")
    lines = [f"{warning.category.__name__}: {warning.message}" for warning in warned] + printed.getvalue().splitlines()
    return [line.rstrip() or "<BLANKLINE>" for line in lines]


def run_python(blocks):
    names = {"__name__": "__main__"}
    for block in blocks:
        pieces = doctest.DocTestParser().parse(block.body)
        if not any(isinstance(piece, doctest.Example) for piece in pieces):
            raise PageError(f"line {block.line}: no statement of a session")
        lines = []
        for piece in pieces:
            if isinstance(piece, str):
                lines += piece.splitlines()
                continue
            source = piece.source.rstrip("\n").split("\n")
            lines += [">>> " + source[0], *(f"... {line}".rstrip() for line in source[1:]), *printed_by(piece.source, names)]
        yield "".join(line + "\n" for line in lines)


# ---- R ----

def run_r(blocks):
    if not shutil.which("Rscript"):
        raise PageError("R is not installed")
    with tempfile.TemporaryDirectory() as folder:
        files = []
        for number, block in enumerate(blocks):
            files.append(Path(folder) / f"{number:03}.R")
            kept = [line for line in block.body.splitlines() if not line.startswith("#>")]
            files[-1].write_text("\n".join(kept) + "\n", encoding="utf-8")
        done = subprocess.run(["Rscript", "--vanilla", R_SESSION, *files], cwd=ROOT, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            raise PageError(f"R: {done.stderr.strip()}")
        for file in files:
            yield file.with_suffix(".out").read_text(encoding="utf-8")


# ---- programs ----

def output_of(block, headers, libraries):
    with tempfile.TemporaryDirectory() as folder:
        for name, body in headers.items():
            (Path(folder) / name).write_text(body, encoding="utf-8")
        source, program = Path(folder) / f"page.{block.language}", Path(folder) / "page"
        source.write_text(block.body, encoding="utf-8")
        peers = [option for include, options in PEERS.items() if include in block.body for option in options]
        built = subprocess.run([*COMPILERS[block.language], "-Wall", "-Wextra", "-Werror", "-IBindings/c",
                                "-ISources/Shared/VecMat", source, *sorted(libraries.glob("lib*.so.1")),
                                *peers, f"-Wl,-rpath,{libraries}", "-o", program], cwd=ROOT, capture_output=True, text=True, check=False)
        if built.returncode != 0:
            raise PageError(f"line {block.line}: {built.stderr}")
        done = subprocess.run([program], cwd=ROOT, capture_output=True, text=True, timeout=60, check=False)
        if done.returncode != 0:
            raise PageError(f"line {block.line}: the program ended with {done.returncode}: {done.stderr}")
        return done.stdout


def run_programs(blocks, libraries):
    """Pairs of a block of output and what it has to be."""
    headers = {}
    for number, block in enumerate(blocks):
        header = HEADER.match(block.body) if block.language in COMPILERS else None
        if header:
            headers[header[1]] = block.body
        if header or block.language not in COMPILERS or "int main" not in block.body:
            continue
        shown = blocks[number + 1] if number + 1 < len(blocks) else None
        if shown is None or shown.language != "text":
            raise PageError(f"line {block.line}: what the program prints is not shown")
        yield shown, output_of(block, headers, libraries)


# ---- names ----

FLAT_NAME = re.compile(r"\b(?:VB_|Cpp_|M_|V_)\w+")
PACKAGE_NAME = re.compile(r"\bvm\.(\w+)")
R_NAME = re.compile(r"\bvm_\w+")


def exported():
    with open(ROOT / "exports.tsv", encoding="utf-8", newline="") as file:
        return {row[0] for row in csv.reader(file, delimiter="\t")}


def in_r_package():
    return {name for file in (ROOT / "Bindings/r/R").glob("*.R")
            for name in re.findall(r"^(vm_\w+) *<-", file.read_text(encoding="utf-8"), re.MULTILINE)} | {"vm_penguins"}


def unknown_names(text, functions, package):
    """The names of functions in a page that the library, the Python package or that for R or JavaScript doesn't have."""
    others = in_javascript_package() if "```js" in text else set()
    found = {name for name in FLAT_NAME.findall(text) + R_NAME.findall(text) if name not in functions and not name.endswith("_")}
    return sorted(found | {f"vm.{name}" for name in PACKAGE_NAME.findall(text) if not hasattr(package, name) and name not in others})


# ---- pages ----

def renewed(text, libraries, javascript):
    """The page with what its blocks print now, and how many were run."""
    blocks = blocks_of(text)
    sessions = {language: [block for block in blocks if block.language == language] for language in ("python", "r", "js")}
    found = [*zip(sessions["python"], run_python(sessions["python"])), *run_programs(blocks, libraries)]
    try:
        found += [*zip(sessions["js"], run_javascript(sessions["js"], javascript)), *run_documents(blocks, javascript)]
    except (OSError, RuntimeError, subprocess.SubprocessError) as error:
        raise PageError(error) from error
    if sessions["r"]:
        found += zip(sessions["r"], run_r(sessions["r"]))
    for block, body in sorted(found, key=lambda pair: -pair[0].start):
        text = text[:block.start] + body + text[block.start + len(block.body):]
    return text, len(found)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--libraries", type=Path, default=ROOT / "build/release/lib")
    parser.add_argument("--javascript", type=Path, default=ROOT / "build/guide/javascript")
    parser.add_argument("pages", type=Path, nargs="+")
    arguments = parser.parse_args()

    import vecmat  # pylint: disable=import-outside-toplevel

    wrong = ran = 0
    for page in arguments.pages:
        text = page.read_text(encoding="utf-8")
        unknown = unknown_names(text, exported() | in_r_package(), vecmat)
        if unknown:
            print(f"{page}: there is no {', '.join(unknown)}")
            wrong += 1
        try:
            new, count = renewed(text, arguments.libraries.resolve(), arguments.javascript.resolve())
        except PageError as error:
            print(f"{page}, {error}")
            wrong += 1
            continue
        ran += count
        if new == text:
            continue
        if arguments.check:
            print("\n".join(difflib.unified_diff(text.splitlines(), new.splitlines(), str(page), "what it prints now", lineterm="")))
            wrong += 1
        else:
            page.write_text(new, encoding="utf-8")
            print(f"{page} renewed")
    print(f"{len(arguments.pages)} pages, {ran} snippets run, {wrong} pages wrong")
    return 1 if wrong or not ran else 0


if __name__ == "__main__":
    sys.exit(main())
