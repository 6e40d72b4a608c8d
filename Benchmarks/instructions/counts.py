"""Writes the table of instructions that the library, the plain loops and the peers execute on 64-bit Arm.

    counts.py [--record PAGE.md] RESULT.md FOLDER NOTE...

FOLDER holds what tools/bench --arm64 has collected: runs.csv of vecmat_instructions, and counts.csv of the counter. Exits
with 1 where a result is not what it should be, or where the counter has miscounted; otherwise the tables also take the
place of those between the two comments in PAGE.md.
"""

import re
import sys
from collections import defaultdict
from datetime import date
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

import report

FRAME, KNOWN_LOOP = "frame", "known-loop"
KNOWN_INSTRUCTIONS = 2001
MOST_FOR_SMALL_CALLS = 1.1
PLACE = re.compile(r"(<!-- The instructions of the last run.*?-->\n).*?(<!-- Their end. -->)", re.DOTALL)


def without_frame(runs, counts):
    """By workload and size, the instructions of each contender; and what is wrong."""
    counted = {row["run"]: int(row["instructions"]) for row in counts}
    table, faults = defaultdict(dict), []
    frame = next((counted.get(row["run"]) for row in runs if row["workload"] == FRAME), None)
    if frame is None:
        return table, ["the price of the frame was not counted"]
    for row in runs:
        workload, contender = row["workload"], row["contender"]
        if row["run"] not in counted:
            faults.append(f"{workload}, {contender}: not counted")
        elif row["error"]:
            faults.append(f"{workload}, size {row['size']}, {contender}: {row['error']}")
        else:
            table[workload, int(row["size"])][contender] = counted[row["run"]] - frame
    known = table.pop((KNOWN_LOOP, 0), {}).get("ours")
    if known != KNOWN_INSTRUCTIONS:
        faults.append(f"a loop of {KNOWN_INSTRUCTIONS} instructions was counted as {known}")
    table.pop((FRAME, 0), None)
    return table, faults


def shown(count):
    """In millions, or with all digits where these are few."""
    return f"{report.three_digits(count / 1e6)} M" if count >= 1e5 else f"{count:,}"


def aim_of(aims, workload, size):
    """The row of this size, or of the workload at any."""
    rows = {aim["workload"]: aim for aim in aims}
    return rows.get(f"{workload}:{size}", rows.get(workload, {}))


def workloads_table(table, aims):
    lines = report.head("workload", "size", "ours", "plain/ours", "aim", "ours/peer (aim)")
    for (workload, size), counts in table.items():
        if workload.startswith("small-") or "ours" not in counts:
            continue
        aim = aim_of(aims, workload, size)
        least = float(aim.get("arm64: plain/ours at least") or 0)
        most = report.parsed_aims(aim.get("arm64: ours/peer at most"))
        lines.append(report.row(workload, f"{size:,}", shown(counts["ours"]),
                                report.ratio_to_plain(counts.get("plain"), counts["ours"], least),
                                f"{least:g}" if least else "", report.peers_cell(counts, most)))
    return lines


def small_table(table):
    lines = report.head("call", "ours", "plain", f"ours/plain ({MOST_FOR_SMALL_CALLS:g})")
    for (workload, size), counts in table.items():
        if workload.startswith("small-") and "ours" in counts and "plain" in counts:
            ratio = counts["ours"] / counts["plain"]
            lines.append(report.row(f"{workload.removeprefix('small-')}, {size}", shown(counts["ours"]),
                                    shown(counts["plain"]),
                                    report.marked(report.three_digits(ratio), ratio <= MOST_FOR_SMALL_CALLS)))
    return lines


def main():
    arguments = report.given_arguments()

    table, faults = without_frame(report.rows_of(arguments.folder / "runs.csv"),
                                  report.rows_of(arguments.folder / "counts.csv"))
    text = [f"Counted on {date.today()}.", "", *(f"- {note}" for note in arguments.notes), ""]
    for lines in (workloads_table(table, report.aims()), small_table(table)):
        if len(lines) > 2:
            text += [*lines, ""]
    tables = "\n".join(text)
    arguments.output.write_text(f"# Instructions on 64-bit Arm\n\n{tables}", encoding="utf-8")
    if faults:
        sys.exit("Results that are not what they should be:\n" + "\n".join(faults))
    if arguments.record:
        report.record(arguments.record, tables, PLACE)


if __name__ == "__main__":
    main()
