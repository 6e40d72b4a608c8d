#!/usr/bin/env python3
"""uncovered_branches.py BUILD SOURCES JUDGED.tsv LEAST: prints each decision below SOURCES of which one way is never taken
in the build's counts, with the reason of those that JUDGED.tsv explains, and the share of the ways that are taken. The exit
status is 0 if that is at least LEAST of 100 and no explanation is out of date.

What gcov calls a branch is mostly a call that may throw, which is no decision: these are left out, both ways. A template's
line is listed for each function made of it, and a lambda's in one row for all: a way is taken if one of them takes it."""

import json
import os
import subprocess
import sys
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path


def judgements(path):
    """{(file, source line): reason}"""
    rows = [line.split("\t") for line in path.read_text().splitlines() if line and not line.startswith("#")]
    return {(file, source): reason for file, source, reason in rows}


def decisions(branches):
    """The counts of a line's branches without the pairs of a call: it returns, or it throws."""
    counts, k = [], 0
    while k < len(branches):
        if branches[k]["throw"] or (k + 1 < len(branches) and branches[k + 1]["throw"]):
            k += 2
            continue
        counts.append(branches[k]["count"])
        k += 1
    return counts


def folded(counts, source):
    """One function's ways of a line whose row has those of several: two for each condition that the line shows."""
    period = 2 * (1 + source.count("&&") + source.count("||"))
    if len(counts) > period and len(counts) % period == 0:
        return [max(counts[k::period], key=abs) for k in range(period)]
    return counts


def counted(build):
    """gcov's reports on all objects that ran."""
    def report(path):
        result = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", str(path)],
                                capture_output=True, text=True, check=True)
        return [json.loads(line) for line in result.stdout.splitlines() if line.startswith("{")]

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        return [part for parts in pool.map(report, sorted(Path(build).rglob("*.gcno"))) for part in parts]


def left_over(reports, sources, read=lambda path: path.read_text().splitlines()):
    """[(file, line, source, ways never taken, ways)], and how many ways there are."""
    ways = defaultdict(lambda: defaultdict(list))
    for report in reports:
        for file in report["files"]:
            path = Path(os.path.normpath(os.path.join(report["current_working_directory"], file["file"])))
            if not path.is_relative_to(sources):
                continue
            for line in file["lines"]:
                if counts := decisions(line["branches"]):
                    ways[path][line["line_number"]].append(counts)
    found, total = [], 0
    for path, lines in sorted(ways.items()):
        source = read(path)
        for number, instances in sorted(lines.items()):
            instances = [folded(counts, source[number - 1]) for counts in instances]
            taken = [any(counts[k] for counts in instances if k < len(counts)) for k in range(max(map(len, instances)))]
            total += len(taken)
            if not all(taken):
                found.append((str(path.relative_to(sources)), number, source[number - 1].strip(), taken.count(False), len(taken)))
    return found, total


def main():
    build, sources, judged, least = sys.argv[1], Path(sys.argv[2]).resolve(), judgements(Path(sys.argv[3])), float(sys.argv[4])
    found, total = left_over(counted(build), sources)
    unexplained = 0
    for file, number, source, missing, of in found:
        reason = judged.get((file, source))
        unexplained += reason is None
        print(f"{file}:{number}: {missing} of {of} ways: {source}" + (f" ({reason})" if reason else ""))
    stale = sorted(set(judged) - {(file, source) for file, _, source, *_ in found})
    for file, source in stale:
        print(f"{file}: explained, but reached or gone: {source}")
    missing = sum(row[3] for row in found)
    share = 100 * (total - missing) / total if total else 0.0
    print(f"branches: {share:.1f}% ({total - missing} out of {total}; {len(found)} lines with one left over, "
          f"{unexplained} of them not explained)")
    return 0 if share >= least and not stale else 1


if __name__ == "__main__":
    sys.exit(main())
