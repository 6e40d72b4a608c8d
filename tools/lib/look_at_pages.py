#!/usr/bin/env python3
"""look_at_pages.py FOLDER: opens pages of the reference in a browser, from the disk, and tests what a reader sees.

The start page, pages of functions and what the search finds, in light and in dark. Pictures go to FOLDER-pictures, for
people; what is tested is read from the pages as they are shown. Exits with 1 if anything is wrong.
"""

import html
import json
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path
from urllib.parse import quote

PROBE = Path(__file__).with_name("browser_probe.html")
DARK = ("--force-dark-mode", "--blink-settings=preferredColorScheme=0")


class Browser:
    def __init__(self, folder, profile):
        self.folder, self.profile = folder, profile
        self.probe = folder.parent / f"{folder.name}-probe.html"
        shutil.copyfile(PROBE, self.probe)

    def run(self, *options):
        return subprocess.run(
            ["chromium", "--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--window-size=1300,1800",
             f"--user-data-dir={self.profile}", "--allow-file-access-from-files", "--virtual-time-budget=15000", *options],
            check=True, capture_output=True, text=True, timeout=240).stdout

    def seen(self, page, dark=False):
        """What a reader sees of a page: see browser_probe.html."""
        address = f"file://{self.probe}#{quote(f'{self.folder.name}/{page}')}"
        text = self.run(*(DARK if dark else ()), "--dump-dom", address)
        found = re.search(r'<pre id="seen">(.*?)</pre>', text, re.S).group(1)
        return json.loads(html.unescape(found))

    def picture(self, page, path, dark=False):
        self.run(*(DARK if dark else ()), f"--screenshot={path}", f"file://{self.folder}/{page}")


def lightness(colour):
    red, green, blue = map(int, re.findall(r"\d+", colour)[:3])
    return (red + green + blue) / 3


def wrong_with_any(seen):
    """What no page may have."""
    if seen["broken"]:
        yield f"pictures are not shown: {seen['broken']}"
    if seen["overflow"] > 0:
        yield f"the page is {seen['overflow']} pixels wider than its window"
    for formula in seen["formulas"]:
        if formula["height"] > 160 or formula["width"] < 5:
            yield f"a formula of {formula['width']} by {formula['height']} pixels is not laid out"


def wrong_colours(seen, dark):
    paper, ink = lightness(seen["background"]), lightness(seen["foreground"])
    if (paper > 100) == dark or (ink > paper) != dark:
        yield f"{seen['foreground']} on {seen['background']} in {'dark' if dark else 'light'}"


def wrong_start(seen):
    for word in ("macros", "C++", "Python", "R", "JavaScript"):
        if not re.search(rf"(?<!\w){re.escape(word)}(?!\w)", seen["text"]):
            yield f"the start page does not lead to {word}"


def wrong_function(seen):
    if seen["headings"][:1] != ["V_Quantile"]:
        yield f"the page is headed {seen['headings'][:1]}"
    for heading in ("Signature", "Arguments", "Contract", "Example", "Elsewhere", "Siblings"):
        if heading not in seen["headings"]:
            yield f"there is no section {heading}"
    if not seen["formulas"] or seen["formulas"][0]["width"] < 200:
        yield "the formula is not shown"
    if not any("double V_Quantile(matrix* v, int n, double p);" in code for code in seen["code"]):
        yield "the signature in C++ is not shown"
    if any("Function VB_V_Quantile" in code for code in seen["code"]):
        yield "the tab for macros is open, too"
    if not any(">>> flat.VB_V_Quantile" in code for code in seen["code"]):
        yield "the example is not shown"
    for word in ("counted: it sorts to the front", "V_QuantileMW", "pandas"):
        if word not in seen["text"]:
            yield f"the page does not tell of {word}"


def found_first(name, told=""):
    """A test that the search finds a function first, and tells what it computes."""
    def test(seen):
        first = seen["results"][0] if seen["results"] else "nothing"
        if not re.match(rf"{re.escape(name)}\s", first + "\n"):
            yield f"the search finds {first!r} first instead of {name}"
        elif told not in first:
            yield f"the search does not tell what {name} computes"
        names = [item.split("\n")[0] for item in seen["results"] if re.match(r"\w+_\w+\n", item)]
        if len(set(names)) < len(names):
            yield f"the search finds a page twice: {names}"
    return test


def found_many(seen):
    if len(seen["results"]) < 5:
        yield f"the search finds only {seen['results']}"


# name, page, test; then searches
LOOKS = (
    ("start", "index.html", wrong_start),
    ("function", "functions/V_Quantile.html", wrong_function),
    ("search", "search.html?q=V_Quantile", found_first("V_Quantile", "sorted values")),
)
SEARCHES = (("quantile", found_first("V_Quantile")), ("VB_V_Mean2", found_first("VB_V_Mean2")),
            ("vmean2", found_first("V_Mean2")), ("meanvar", found_first("V_MeanVar")), ("covariance", found_many),
            ("harmonic mean", found_first("V_HarmonicMean")))


def faults(folder, profile):
    browser = Browser(folder, profile)
    pictures = folder.parent / f"{folder.name}-pictures"
    pictures.mkdir(exist_ok=True)
    looks = 0
    for dark in (False, True):
        for name, page, test in LOOKS:
            looks += 1
            label = f"{name}-{'dark' if dark else 'light'}"
            browser.picture(page, pictures / f"{label}.png", dark)
            if (pictures / f"{label}.png").stat().st_size < 20_000:
                yield f"{label}: the picture is empty"
            seen = browser.seen(page, dark)
            yield from (f"{label}: {fault}" for fault in (*test(seen), *wrong_with_any(seen), *wrong_colours(seen, dark)))
    for words, test in SEARCHES:
        looks += 1
        yield from (f"search for {words}: {fault}" for fault in test(browser.seen(f"search.html?q={quote(words)}")))
    print(f"{looks} looks at pages, pictures in {pictures}")


def main():
    with tempfile.TemporaryDirectory() as profile:
        wrong = list(faults(Path(sys.argv[1]).resolve(), profile))
    print("\n".join(f"WRONG: {line}" for line in wrong) or "All pages are shown as they should be.")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
