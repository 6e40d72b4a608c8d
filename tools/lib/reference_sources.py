"""The hand-written pages below Docs, and the README, as sources of the site: see reference.py."""

import os
import re
import shutil
from pathlib import Path, PurePosixPath

from contracts import HEADERS, PRIVATE

# The order of the pages of a folder; others follow in the order of their names.
GROUPS = (
    ("Start", ("readme", *(f"guide/tutorials/{name}" for name in ("macro", "c", "cpp", "python", "r", "javascript")),
               "guide/tutorials/*")),
    ("Concepts", (*(f"guide/concepts/{name}" for name in ("missing", "masks", "weights", "divisors", "bits", "seeds",
                                                          "columns")), "guide/concepts/*")),
    ("For those who know", ("guide/known/*",)),
    ("Reference", ("reference", "tasks", "names")),
    ("Contracts", ("contracts/overview", "contracts/*")),
    ("More", ("guide/glossary", "guide/weak", "guide/gallery", "guide/*", "tables", "border", "hosts/overview", "hosts/*",
              "python", "r", "js", "cluster", "same-bits", "speed", "arguments", "layout", "versions", "site/*", "*")),
)
LINK = re.compile(r"(!?)\[((?:[^\[\]]|\[[^\]]*\]\([^)]*\)|\[[^\]]*\])*)\]\(([^()\s]+)\)")
FENCED = re.compile(r"(^[ ]*(?:```+|~~~+).*?^[ ]*(?:```+|~~~+)[ ]*$)", re.S | re.M)
START = "guide/start.md"  # becomes the first page
# Pages from elsewhere in the tree.
OTHERS = {"README.md": "readme.md", "Bindings/python/README.md": "python.md", "Bindings/r/README.md": "r.md",
          "Bindings/js/README.md": "js.md", "Examples/cluster/README.md": "cluster.md"}
COMMAND = "tools/docs"  # a link to it is one to what it writes


class Sources:
    """Copies pages into the folder of the site's sources and mends their links."""

    def __init__(self, root, target):
        self.root, self.target = root, target
        docs = root / "Docs"
        self.pages = {path: path.relative_to(docs).as_posix() for path in sorted(docs.rglob("*.md"))
                      if path != docs / "site/cpp.md"}
        if docs / START in self.pages:
            self.pages[docs / START] = "index.md"
        self.pages.update({root / name: page for name, page in OTHERS.items() if (root / name).exists()})
        self.linked = {**self.pages, root / COMMAND: "reference.md"}

    def copy(self):
        for path, page in self.pages.items():
            if page == "index.md":
                continue
            target = self.target / page
            target.parent.mkdir(parents=True, exist_ok=True)
            write_if_new(target, self.mended(path, page))
        for folder in ("images", "guide"):
            for path in (self.root / "Docs" / folder).rglob("*") if (self.root / "Docs" / folder).is_dir() else ():
                if path.is_file() and path.suffix in (".svg", ".png", ".jpg"):
                    target = self.target / path.relative_to(self.root / "Docs")
                    target.parent.mkdir(parents=True, exist_ok=True)
                    shutil.copyfile(path, target)

    def first_page(self):
        path = self.root / "Docs" / START
        return self.mended(path, "index.md") if path in self.pages else "# VecMat\n\n- [The reference](reference.md)\n"

    def mended(self, path, page):
        """The text of a page with its links as the site has them; quoted code stays as it is."""
        parts = FENCED.split(path.read_text(encoding="utf-8"))
        parts[::2] = [LINK.sub(lambda match: self.mended_link(match, path, page), part) for part in parts[::2]]
        return "".join(parts)

    def mended_link(self, match, path, page):
        image, text, address = match.groups()
        text = LINK.sub(lambda inner: self.mended_link(inner, path, page), text)
        if re.match(r"\w+:|#", address):
            return f"{image}[{text}]({address})"
        name, _, anchor = address.partition("#")
        found = Path(os.path.normpath(path.parent / name))
        here = PurePosixPath(page).parent.as_posix()
        anchor = f"#{anchor}" if anchor else ""
        if found in self.linked:
            return f"{image}[{text}]({os.path.relpath(self.linked[found], here)}{anchor})"
        readme = found / "README.md"
        if readme in self.pages:
            return f"{image}[{text}]({os.path.relpath(self.pages[readme], here)}{anchor})"
        if found.is_relative_to(self.root / "Docs/images") or found.suffix in (".svg", ".png", ".jpg"):
            return f"{image}[{text}]({os.path.relpath(found.relative_to(self.root / 'Docs'), here)})"
        headers = self.root / HEADERS
        if found.suffix == ".h" and found.is_relative_to(headers) and not PRIVATE & set(found.relative_to(headers).parts):
            unit = found.relative_to(headers).with_suffix("").as_posix()
            return f"[{text}](doxygen:{unit})"
        if not found.exists() and not (self.target / os.path.relpath(found, self.root / "Docs")).exists():
            raise ValueError(f"{path.relative_to(self.root)}: there is no {address}")
        if (self.target / os.path.relpath(found, self.root / "Docs")).exists():
            return match.group(0)
        return text  # a file of the repository, which the site does not have

    def groups(self):
        """The pages of the sidebar, by title of the group."""
        left = [page.removesuffix(".md") for page in self.pages.values()]
        left += ["reference", "tasks", "names"]
        taken, out = {"index"}, {}
        explicit = {pattern for _, patterns in GROUPS for pattern in patterns if "*" not in pattern}
        for title, patterns in GROUPS:
            for pattern in patterns:
                for page in sorted(left):
                    fits = PurePosixPath(page).match(pattern) and page.count("/") == pattern.count("/")
                    if fits and page not in taken and (page == pattern or page not in explicit):
                        taken.add(page)
                        out.setdefault(title, []).append(page)
        lost = sorted(set(left) - taken)
        return {**out, **({"Others": lost} if lost else {})}


def write_if_new(path, text):
    """Writes a file if its text changes, so that Sphinx reads again only what is new."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")
