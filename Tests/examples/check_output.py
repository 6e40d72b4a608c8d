#!/usr/bin/env python3
"""check_output.py PROGRAM EXPECTED.txt: does the program succeed and print just this?"""

import difflib
import subprocess
import sys
from pathlib import Path


def main():
    program, expected = sys.argv[1:]
    run = subprocess.run([program], capture_output=True, text=True, encoding="utf-8", check=False)
    if run.returncode != 0 or run.stderr:
        sys.exit(f"{program} ended with status {run.returncode} and wrote to standard error: {run.stderr!r}")
    text = Path(expected).read_text(encoding="utf-8")
    if run.stdout != text:
        lines = difflib.unified_diff(text.splitlines(), run.stdout.splitlines(), expected, "printed", lineterm="")
        sys.exit("\n".join(lines) or f"{expected} and what is printed differ in their last line's end.")


if __name__ == "__main__":
    main()
