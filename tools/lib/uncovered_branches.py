#!/usr/bin/env python3
"""uncovered_branches.py COVERAGE.json JUDGED.tsv LEAST: prints each branch that gcovr reports as never taken, with the
reason of those that JUDGED.tsv explains, and the share of the branches that are taken. The exit status is 0 if that is at
least LEAST of 100 and no explanation is out of date."""

import json
import sys
from collections import defaultdict
from pathlib import Path


def judgements(path):
    """{(file, source line): reason}"""
    rows = [line.split("\t") for line in path.read_text().splitlines() if line and not line.startswith("#")]
    return {(file, source): reason for file, source, reason in rows}


def left_over(coverage, read=lambda file: Path(file).read_text().splitlines()):
    """[(file, line, source, number not taken, number of all)], and how many branches there are."""
    found, total = [], 0
    for file in coverage["files"]:
        source = read(file["file"])
        # A line of a template is listed once for each function made of it: a branch is taken if one of them takes it.
        lines = defaultdict(list)
        for line in file["lines"]:
            if not line.get("gcovr/noncode") and line["branches"]:
                lines[line["line_number"]].append([branch["count"] for branch in line["branches"] if not branch["throw"]])
        for number, instances in sorted(lines.items()):
            most = max(map(len, instances))
            taken = [any(counts[k] for counts in instances if k < len(counts)) for k in range(most)]
            total += most
            if not all(taken):
                found.append((file["file"], number, source[number - 1].strip(), taken.count(False), most))
    return found, total


def main():
    coverage = json.loads(Path(sys.argv[1]).read_text())
    judged, least = judgements(Path(sys.argv[2])), float(sys.argv[3])
    found, total = left_over(coverage)
    unexplained = 0
    for file, number, source, missing, of in found:
        reason = judged.get((file, source))
        unexplained += reason is None
        print(f"{file}:{number}: {missing} of {of} branches: {source}" + (f" ({reason})" if reason else ""))
    present = {(file, source) for file, _, source, *_ in found}
    stale = sorted(set(judged) - present)
    for file, source in stale:
        print(f"{file}: explained, but reached or gone: {source}")
    missing = sum(row[3] for row in found)
    share = 100 * (total - missing) / total if total else 0.0
    print(f"branches: {share:.1f}% ({total - missing} out of {total}; {len(found)} lines with one left over, "
          f"{unexplained} of them not explained)")
    return 0 if share >= least and not stale else 1


if __name__ == "__main__":
    sys.exit(main())
