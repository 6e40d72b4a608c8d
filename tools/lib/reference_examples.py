#!/usr/bin/env python3
"""reference_examples.py [--write]: runs the examples of the reference, and fails where one prints something else.

The examples are in Docs/examples: chosen.txt has those in Python that were written by hand, flat.txt those made up from
the table of arguments for the other flat functions, cpp.txt those in C++ for what has no flat form. A line `## NAME...`
opens the example of these functions; what it prints stands below `>>>`, and in C++ in the comments at the end. With
--write what is printed is written into the files, and flat.txt made anew; look at the differences before they are kept.
Needs the package vecmat: see tools/lib/test_reference.

    Examples(root).of(function, functions)     the example for the page of a function
"""

import ast
import re
import sys
from pathlib import Path

from reference_cpp_examples import run_all

HEADING = re.compile(r"^## (.+)$", re.M)
FILES = ("chosen.txt", "flat.txt")
HELPER = re.compile(r"(?<![\w:])print\(")


def read_examples(path):
    """The examples by name: the lines below each heading."""
    found = {}
    if path.exists():
        parts = HEADING.split(path.read_text(encoding="utf-8"))
        for names, body in zip(parts[1::2], parts[2::2]):
            for name in names.split():
                found[name] = body.strip("\n")
    return found


class Examples:
    """The examples of all functions, for their pages."""

    def __init__(self, root):
        folder = root / "Docs/examples"
        self.python = {name: body for file in reversed(FILES) for name, body in read_examples(folder / file).items()}
        self.cpp = read_examples(folder / "cpp.txt")

    def of(self, function, functions):
        """The example as Markdown: the function's own, or that of its flat form."""
        for name in [function.name, *function.flat_forms]:
            if name in self.python:
                told = f", by its flat form `{name}`" if name != function.name else ""
                return [f"In Python{told}, with `np` for NumPy, `flat` and `MISSING` from [`vecmat`](../python.md):", "",
                        "```pycon", self.python[name], "```"]
        if function.name in self.cpp:
            code = self.cpp[function.name]
            helper = ", with `print` writing the first rows and columns of a table" if HELPER.search(code) else ""
            shows = "In C++" if function.name.split("::")[-1] in code else "Of its relatives, in C++"
            return [f"{shows}{helper}; the comments at the end are what it prints:", "", "```cpp", code, "```"]
        return []


# ---- run ------------------------------------------------------------------------------------------------------------


def statements(body):
    """What is typed, statement by statement, and the text around: pairs of kind and text."""
    parts, lines = [], body.split("\n")
    place = 0
    while place < len(lines):
        if not lines[place].startswith(">>> "):
            place += 1
            continue
        typed = [lines[place][4:]]
        place += 1
        while place < len(lines) and lines[place].startswith("... "):
            typed.append(lines[place][4:])
            place += 1
        printed = []
        while place < len(lines) and lines[place] and not lines[place].startswith(">>> "):
            printed.append(lines[place])
            place += 1
        parts.append((typed, printed))
    return parts


def shown(value):
    """A value as the examples show it: arrays by rows with six digits, a missing cell as MISSING."""
    import numpy as np
    from vecmat import flat

    if isinstance(value, (bool, np.bool_)):
        return repr(bool(value))
    if isinstance(value, (float, np.floating)):
        return "MISSING" if value == flat.MISSING else repr(float(value))
    if isinstance(value, np.ndarray):
        return _shown_array(value, lambda cell: _cell(cell, flat.MISSING))
    if isinstance(value, list) and value and isinstance(value[0], np.ndarray):
        return "[" + ",\n ".join(shown(column) for column in value) + "]"
    return repr(value)


def _cell(cell, missing):
    if isinstance(cell, float):
        return "MISSING" if cell == missing else f"{cell + 0.0:.6g}"
    return str(cell)


def _shown_array(array, cell):
    if array.ndim == 0:
        return cell(array.item())
    if array.ndim == 1:
        return f"[{' '.join(cell(item) for item in array.tolist())}]"
    texts = [[cell(item) for item in row] for row in array.tolist()]
    widths = [max(len(row[j]) for row in texts) for j in range(len(texts[0]) if texts else 0)]
    rows = ["[" + " ".join(text.rjust(width) for text, width in zip(row, widths)) + "]" for row in texts]
    return "[" + "\n ".join(rows) + "]"


def run(body):
    """The example with what it prints now."""
    import numpy as np
    from vecmat import flat

    import vecmat

    place = {"np": np, "flat": flat, "MISSING": flat.MISSING, "vecmat": vecmat, "vm": vecmat}
    out = []
    for typed, _ in statements(body):
        out += [f"{'>>>' if k == 0 else '...'} {line}" for k, line in enumerate(typed)]
        code = "\n".join(typed)
        try:
            tree = ast.parse(code)
            if isinstance(tree.body[-1], ast.Expr):
                value = eval(compile(code, "<example>", "eval"), place)
                if value is not None:
                    out.append(shown(value))
            else:
                exec(compile(code, "<example>", "exec"), place)
        except Exception as error:  # what a user would see is part of the example
            out.append(f"{type(error).__name__}: {error}")
    return "\n".join(out)


def libraries():
    """Where the package has the library and its companions."""
    import vecmat

    return Path(vecmat.__file__).parent


def without_example(root):
    """Exported names whose page would show none."""
    from reference_model import read_functions

    functions, examples = read_functions(root), Examples(root)
    return [name for name, function in functions.items() if not examples.of(function, functions)]


def made_up(root, chosen):
    """The examples of the flat functions that have no other, not yet run: by name."""
    from arguments import read_calls
    from reference_example_calls import example_of
    from reference_model import read_functions

    functions = read_functions(root)
    for name, call in read_calls(root).items():
        if name not in chosen:
            yield name, "\n".join(f">>> {line}" for line in example_of(call, functions[name].tags()))


def sections(path):
    """Headings and bodies in the order of the file."""
    parts = HEADING.split(path.read_text(encoding="utf-8")) if path.exists() else [""]
    return parts[0], list(zip(parts[1::2], (body.strip("\n") for body in parts[2::2])))


def main():
    root = Path(__file__).resolve().parents[2]
    folder = root / "Docs/examples"
    is_writing = "--write" in sys.argv[1:]
    head, chosen = sections(folder / "chosen.txt")
    flat_head, flat = sections(folder / "flat.txt")
    names = {name for heading, _ in chosen for name in heading.split()}
    wrong, count = [], 0
    if is_writing:
        flat = list(made_up(root, names))
    cpp_head, cpp = sections(folder / "cpp.txt")
    for file, start, held in (("chosen.txt", head, chosen), ("flat.txt", flat_head, flat), ("cpp.txt", cpp_head, cpp)):
        texts = []
        bodies = [body for _, body in held]
        results = run_all(root, bodies, libraries()) if file == "cpp.txt" else map(run, bodies)
        for (heading, body), printed in zip(held, results):
            count += 1
            texts.append(f"## {heading}\n\n{printed}\n")
            if printed != body:
                wrong.append(f"{file}: {heading} prints:\n{printed}")
        if is_writing and (held or start):
            (folder / file).write_text(start + "\n".join(texts), encoding="utf-8")
    if not is_writing:
        bare = without_example(root)
        print("\n\n".join([*wrong[:10], f"{count} examples run, {len(wrong)} print something else; "
                           f"functions without an example: {' '.join(bare) or 'none'}"]))
        return 1 if wrong or bare or not count else 0
    errors = [name for name, body in read_examples(folder / "flat.txt").items() if re.search(r"^\w*Error: ", body, re.M)]
    print(f"{count} examples written; with an error: {' '.join(errors) or 'none'}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
