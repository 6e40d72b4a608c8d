#!/usr/bin/env python3
"""check_versions.py ROOT VERSION [INSTALLED...]: whatever tells a version tells that of CMakeLists.txt.

INSTALLED are files that the build has written from it, as vecmat.pc.
"""

import re
import sys
from pathlib import Path

# Where the number stands, as the first match of a pattern in a file. Those marked "?" may be missing.
PLACES = {
    "CHANGELOG.md": r"^## \[(\d[^\]]*)\] - \d{4}-\d\d-\d\d$",
    "CITATION.cff": r"^version: (.+)$",
    "debian/changelog": r"^vecmat \((.+?)-\w+\) ",
    "packaging/vcpkg/vecmat/vcpkg.json": r'^  "version": "(.+)",$',
    "?Bindings/r/DESCRIPTION": r"^Version: (.+)$",
    "?Bindings/js/package.json": r'^  "version": "(.+)",$',
}
DATES = {"CHANGELOG.md": r"^## \[\d[^\]]*\] - (\S+)$", "CITATION.cff": r"^date-released: (\S+)$"}


def first(root, name, pattern):
    """What the pattern finds first; None where there is no such file, which may be missing."""
    path = root / name.removeprefix("?")
    if name.startswith("?") and not path.exists():
        return None
    found = re.search(pattern, path.read_text(encoding="utf-8"), re.M) if path.exists() else None
    return found[1] if found else "nothing"


def disagreements(root, version, installed):
    told = {name: first(root, name, pattern) for name, pattern in PLACES.items()}
    told |= {str(path): first(Path("/"), str(Path(path).resolve()), r"^Version: (.+)$") for path in installed}
    wrong = [f"{name.removeprefix('?')} has {number} instead of {version}" for name, number in told.items()
             if number not in (None, version)]
    dates = {name: first(root, name, pattern) for name, pattern in DATES.items()}
    if len(set(dates.values())) > 1:
        wrong.append("the dates of the release differ: " + ", ".join(f"{name} has {date}" for name, date in dates.items()))
    return wrong


def main():
    wrong = disagreements(Path(sys.argv[1]), sys.argv[2], sys.argv[3:])
    print("\n".join([f"WRONG: {line}" for line in wrong] + [f"version {sys.argv[2]}, {len(wrong)} wrong"]))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
