#!/usr/bin/env python3
"""check_links.py FOLDER: finds dead links among the HTML pages below a folder, anchors and pictures included.

Links to other machines are not followed; a page may have none to a picture, a style or a script there, so that all
of it can be read from the disk. Exits with 1 if anything is wrong.
"""

import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

ADDRESSES = {"a": "href", "img": "src", "link": "href", "script": "src", "iframe": "src", "object": "data",
             "source": "src"}
ELSEWHERE = ("http", "https", "mailto")


class Page(HTMLParser):
    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.links, self.anchors = [], set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        for name in ("id", "name"):
            if given.get(name) and (name == "id" or tag == "a"):
                self.anchors.add(given[name])
        address = given.get(ADDRESSES.get(tag, ""))
        if address:
            self.links.append((tag, address))


def dead_links(folder):
    """The faults of all pages, as lines, and the number of links that were followed."""
    folder = folder.resolve()
    pages = {path: Page(path.read_text(encoding="utf-8")) for path in sorted(folder.rglob("*.html"))}
    wrong, followed = [], 0
    for path, page in pages.items():
        for tag, address in page.links:
            parts = urlsplit(address)
            where = f"{path.relative_to(folder)}: {address}"
            if parts.scheme in ELSEWHERE or address.startswith("//"):
                if tag != "a":
                    wrong.append(f"{where}: has to be fetched from another machine")
                continue
            if parts.scheme in ("javascript", "data"):
                continue
            if parts.scheme:
                wrong.append(f"{where}: what scheme is that?")
                continue
            followed += 1
            target = path if not parts.path else (path.parent / unquote(parts.path)).resolve()
            if target.is_dir():
                target = target / "index.html"
            if not target.exists():
                wrong.append(f"{where}: there is no such file")
            elif parts.fragment and target.suffix == ".html" and target in pages \
                    and unquote(parts.fragment) not in pages[target].anchors:
                wrong.append(f"{where}: there is no such anchor")
    if followed == 0:
        wrong.append(f"{folder}: no links at all: are these the pages?")
    return wrong, followed, len(pages)


def main():
    wrong, followed, pages = dead_links(Path(sys.argv[1]))
    print("\n".join([*wrong[:50], f"{followed} links in {pages} pages, {len(wrong)} of them dead"]))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
