"""Writes the tables of a run of the benchmarks.

    report.py [--record PAGE.md] RESULTS.md FOLDER NOTE...

FOLDER holds what tools/bench has collected: native.json, avx2.json and baseline.json of vecmat_benchmarks, memory.csv
and large.csv of vecmat_memory, r.csv and python.csv of the peers outside of it. Exits with 1 where a result is not what it should be; otherwise the tables also
take the place of those between the two comments in PAGE.md.
"""

import argparse
import csv
import json
import math
import platform
import re
import sys
from collections import defaultdict
from datetime import date
from pathlib import Path

AIMS = Path(__file__).with_name("aims.tsv")
SETS = ("avx2", "baseline")
MEMORY_THAT_COUNTS = 20_000  # bytes of operands
RECORDED = re.compile(r"(<!-- The tables of the last run.*?-->\n).*?(<!-- Their end. -->)", re.DOTALL)


class Results:
    """Seconds by workload, contender and size."""

    def __init__(self, folder):
        self.seconds = defaultdict(dict)  # (workload, size) -> contender -> seconds
        self.lower = {name: defaultdict(dict) for name in SETS}  # set -> (workload, size) -> contender -> seconds
        self.faults = []
        self.read_benchmarks(folder / "native.json", "")
        for name in SETS:
            self.read_benchmarks(folder / f"{name}.json", name)
        for name in ("r.csv", "python.csv"):
            self.read_peers(folder / name)

    def read_benchmarks(self, file, instruction_set):
        if not file.exists():
            return
        text = file.read_text()
        for entry in json.loads(text)["benchmarks"] if text else []:  # there may be no such workload
            workload, contender, size = entry["run_name"].split("/min_time")[0].rsplit("/", 2)[-3:]
            key = (workload, int(size))
            if entry.get("error_occurred"):
                fault = f"{workload}, size {size}, {contender}: {entry['error_message']}"
                self.faults.append(fault + (f" ({instruction_set})" if instruction_set else ""))
            elif entry.get("aggregate_name") == "min":
                table = self.lower[instruction_set] if instruction_set else self.seconds
                table[key][contender] = entry["best"]

    def read_peers(self, file):
        if not file.exists():
            return
        with open(file, newline="") as rows:
            for row in csv.DictReader(rows):
                deviation, tolerance = float(row["deviation"]), float(row["tolerance"])
                key = (row["workload"], self.last_size(row["workload"]))
                if tolerance >= 0 and not deviation <= tolerance:
                    self.faults.append(f"{row['workload']}, {row['contender']}: deviates by {deviation:g}")
                else:
                    self.seconds[key][row["contender"]] = float(row["seconds"])

    def sizes(self, workload):
        return sorted(size for name, size in self.seconds if name == workload)

    def last_size(self, workload):
        return max(self.sizes(workload), default=0)


# ---- cells of tables -------------------------------------------------------------------------------------------------


def shown_time(seconds):
    for unit, scale in (("s", 1.0), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= scale:
            return f"{three_digits(seconds / scale)} {unit}"
    return f"{three_digits(seconds / 1e-9)} ns"


def shown_bytes(count):
    for unit, scale in (("GB", 1e9), ("MB", 1e6), ("kB", 1e3)):
        if count >= scale:
            return f"{three_digits(count / scale)} {unit}"
    return f"{count} B"


def three_digits(value):
    if value >= 100:
        return f"{value:.0f}"
    return f"{value:.1f}" if value >= 10 else f"{value:.2f}"


def marked(text, reached):
    return text if reached else f"**{text}**"


def row(*cells):
    return "| " + " | ".join(cells) + " |"


def head(*titles):
    return [row(*titles), row(*["---"] * len(titles))]


def ratio_to_plain(plain, ours, aim):
    if plain is None or ours is None:
        return ""
    return marked(three_digits(plain / ours), not aim or plain / ours >= aim)


# ---- the tables ------------------------------------------------------------------------------------------------------


def aims():
    with open(AIMS, newline="") as file:
        return list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE))


def key_of(aim, results):
    workload, _, size = aim["workload"].partition(":")
    return workload, int(size) if size else results.last_size(workload)


def parsed_aims(text):
    """The largest ratio by peer."""
    return dict(part.rsplit("=", 1) for part in (text or "").split(";") if part)


def aims_table(results):
    lines = head("workload", "ours", "plain/ours", "aim", "AVX2", "baseline", "ours/peer (aim)")
    for aim in aims():
        key = key_of(aim, results)
        times = results.seconds.get(key)
        if not times or "ours" not in times:
            continue
        least = float(aim["plain/ours at least"] or 0)
        most = parsed_aims(aim["ours/peer at most"])
        ours, plain = times["ours"], times.get("plain")
        lower = [ratio_to_plain(plain, results.lower[name][key].get("ours"), 0) for name in SETS]
        lines.append(row(aim["title"], shown_time(ours), ratio_to_plain(plain, ours, least),
                         f"{least:g}" if least else "", *lower, peers_cell(times, most)))
    return lines


def narrower_table(results):
    """With fewer instructions, beside peers that have no more."""
    lines = head("workload", "AVX2", "ours/peer (aim)", "baseline", "ours/peer (aim)")
    for aim in aims():
        key = key_of(aim, results)
        cells = []
        for name in SETS:
            times = results.lower[name][key]
            if len(times) > 1:
                most = parsed_aims(aim[f"{name}: ours/peer at most"])
                cells += [shown_time(times["ours"]), peers_cell(times, most)]
        if len(cells) == 2 * len(SETS):
            lines.append(row(aim["title"], *cells))
    return lines


def peers_cell(times, most):
    """The peers to beat come first."""
    peers = [name for name in times if name not in ("ours", "plain") and not name.endswith("converted")]
    parts = []
    for name in sorted(peers, key=lambda peer: (peer not in most, peers.index(peer))):
        ratio = times["ours"] / times[name]
        text = f"{three_digits(ratio)} of {name}"
        if name in most:
            text = marked(text, ratio <= float(most[name])) + f" ({float(most[name]):g})"
        parts.append(text)
    return "; ".join(parts)


def growth_table(results):
    """How the time grows: the exponent e of size^e over the last step."""
    lines = head("workload", "sizes", "ours", "exponent", "plain", "exponent")
    for workload in dict.fromkeys(name for name, _ in results.seconds):
        sizes = results.sizes(workload)
        if len(sizes) < 2:
            continue
        cells = []
        for contender in ("ours", "plain"):
            times = [results.seconds[workload, size].get(contender) for size in sizes]
            cells.append(", ".join(shown_time(seconds) if seconds else "-" for seconds in times))
            known = [pair for pair in zip(sizes, times) if pair[1]]
            cells.append(exponent(*known[-2:]) if len(known) > 1 else "")
        lines.append(row(workload, ", ".join(f"{size:,}" for size in sizes), *cells))
    return lines


def exponent(before, after):
    return f"{math.log(after[1] / before[1]) / math.log(after[0] / before[0]):.2f}"


def small_table(results):
    lines = head("call", "ours", "plain", "ours/plain (1.1)")
    for (workload, size), times in results.seconds.items():
        if workload.startswith("small-") and "plain" in times:
            ratio = times["ours"] / times["plain"]
            lines.append(row(f"{workload.removeprefix('small-')}, {size}", shown_time(times["ours"]),
                             shown_time(times["plain"]), marked(three_digits(ratio), ratio <= 1.1)))
    return lines


def rows_of(file):
    if not file.exists():
        return []
    with open(file, newline="") as lines:
        return list(csv.DictReader(lines))


def memory_table(folder):
    """The peak beyond the operands, in their size. Calls on a few numbers have small fixed costs only."""
    lines = head("workload", "operands", "peak of ours", "in operands (2)", "others, in operands")
    workloads = defaultdict(list)
    for entry in rows_of(folder / "memory.csv"):
        if int(entry["operands"]) >= MEMORY_THAT_COUNTS:
            workloads[entry["workload"]].append(entry)
    for workload, entries in workloads.items():
        operands = int(entries[0]["operands"])
        ours, *others = (int(entry["peak"]) / operands for entry in entries)
        names = (entry["contender"] for entry in entries[1:])
        lines.append(row(workload, shown_bytes(operands), shown_bytes(int(entries[0]["peak"])),
                         marked(f"{ours:.2f}", ours <= 2.0),
                         "; ".join(f"{other:.2f} {name}" for other, name in zip(others, names))))
    return lines


def large_table(folder):
    lines = head("workload", "size", "time", "for each of the size", "peak", "in operands (2)")
    for entry in rows_of(folder / "large.csv"):
        seconds, peak = float(entry["seconds"]), int(entry["peak"])
        share = peak / int(entry["operands"])
        lines.append(row(entry["workload"], f"{int(entry['size']):,}", shown_time(seconds),
                         shown_time(seconds / int(entry["size"])), shown_bytes(peak),
                         marked(f"{share:.2f}", share <= 2.0)))
    return lines


def string_table(results):
    lines = head("what", "time", "in copies of the texts (2)")
    cells_in = results.seconds.get(("strings-in", results.last_size("strings-in")), {})
    cells_out = results.seconds.get(("strings-out", results.last_size("strings-out")), {})
    if cells_in and cells_out:
        copies = min(cells_in["copies in std::wstring"], cells_out["copies in std::wstring"])
        lines.append(row("a million cells copied in std::wstring", shown_time(copies), "1"))
        for title, seconds in (("into a table", cells_in["ours"]), ("out of a table", cells_out["ours"])):
            lines.append(row(title, shown_time(seconds), three_digits(seconds / copies)))
        both = cells_in["ours"] + cells_out["ours"]
        lines.append(row("both", shown_time(both), marked(three_digits(both / copies), both <= 2 * copies)))
    for (workload, size), times in results.seconds.items():
        for contender, seconds in times.items():
            if contender.endswith("converted") and size == results.last_size(workload):
                lines.append(row(f"{workload}: {contender}", f"{shown_time(seconds)}, {shown_time(times['ours'])} of it "
                                 "in the function", ""))
    return lines


FORM = "form:"  # workloads that are flat forms with strings


def form_table(results):
    """Each flat form with strings, against the way over a table of them."""
    lines = head("form", "rows", "ours", "a table first", "ours/a table first (1)")
    for (workload, size), times in results.seconds.items():
        if workload.startswith(FORM) and "a table first" in times:
            ours, table = times["ours"], times["a table first"]
            title = re.sub(r"^\w+", r"`\g<0>`", workload.removeprefix(FORM))
            lines.append(row(title, f"{size:,}", shown_time(ours), shown_time(table),
                             marked(f"{ours / table:.2f}", ours <= table)))
    return lines


def machine():
    """The processor, and its features that matter here."""
    info = Path("/proc/cpuinfo").read_text()
    field = lambda name: re.search(rf"^{name}\s*:\s*(.*)$", info, re.M)[1]
    sets = [name for name in ("avx2", "avx512f") if name in field("flags").split()]
    return (f"{field('model name')}, family {field('cpu family')}, model {field('model')}, {field('cpu MHz')} MHz, "
            f"{' '.join(sets)}; {platform.system()} {platform.release()}")


def record(page, tables, place=RECORDED):
    text, count = place.subn(lambda match: f"{match[1]}\n{tables}\n{match[2]}", page.read_text(encoding="utf-8"))
    if count != 1:
        sys.exit(f"{page} has no place for the tables")
    page.write_text(text, encoding="utf-8")


def given_arguments():
    """[--record PAGE.md] RESULT.md FOLDER NOTE..."""
    parser = argparse.ArgumentParser(allow_abbrev=False)
    parser.add_argument("--record", type=Path)
    parser.add_argument("output", type=Path)
    parser.add_argument("folder", type=Path)
    parser.add_argument("notes", nargs="*")
    return parser.parse_args()


def main():
    arguments = given_arguments()

    results = Results(arguments.folder)
    text = [f"Machine: {machine()}; {date.today()}.", "", *(f"- {note}" for note in arguments.notes), ""]
    for title, intro, lines in (
        ("The workloads", "One thread, the shortest of several runs in processor time; a ratio that falls short of its "
         "aim is in bold. The columns AVX2 and baseline are plain/ours with the library kept to these instructions.",
         aims_table(results)),
        ("Narrower instructions", "The library kept to AVX2 or to the baseline, beside OpenBLAS and LAPACK with kernels for "
         "these, and GSL.", narrower_table(results)),
        ("How time grows", "Times at growing sizes; the exponent is that of the last step.", growth_table(results)),
        ("Small inputs", "Calls on a few numbers.", small_table(results)),
        ("The border of strings", "", string_table(results)),
        ("Flat forms with strings", "Each reads or moves the caller's texts, four columns of 1,000 categories; beside "
         "it the same over a table of strings, made of these texts first, and handed back as new ones. Left out are the "
         "forms that differ from one listed only in how the columns are held, or which array the result goes to, and "
         "those whose question no function asks over a table.",
         form_table(results)),
        ("Memory", "The most allocated at once, beyond the operands and the results, which are the caller's. What a "
         "library maps by itself, as OpenBLAS does, is not seen.", memory_table(arguments.folder)),
        ("Large sizes", "The library alone.", large_table(arguments.folder)),
    ):
        if len(lines) > 2:
            text += [f"## {title}", "", *([intro, ""] if intro else []), *lines, ""]
    if results.faults:
        text += ["## Results that are not what they should be", "", *(f"- {fault}" for fault in results.faults), ""]
    tables = "\n".join(text)
    arguments.output.write_text(f"# Benchmarks\n\n{tables}", encoding="utf-8")
    if results.faults:
        sys.exit("Results that are not what they should be:\n" + "\n".join(results.faults))
    if arguments.record:
        record(arguments.record, tables)


if __name__ == "__main__":
    main()
