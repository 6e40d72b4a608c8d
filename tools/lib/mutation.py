#!/usr/bin/env python3
"""mutation.py ROOT [--sample N] [--seed S] [--unit GLOB] [--kind GLOB] [--only FILE] [--again] [--sanitizers]
[--list]: see tools/mutation."""

import argparse
import csv
import fnmatch
import json
import os
import random
import re
import shlex
import subprocess
import sys
import time
from collections import Counter, defaultdict
from pathlib import Path

import mutation_places
import mutation_runs
import mutation_schemata

SOURCES = "Sources/Shared/VecMat"
# Tests of the programs below Examples, tests that take long, and those of time and memory, which the switches change: they
# run only if --tests names them.
LEFT_OUT = re.compile(r"/examples/|/reliability/(limits|threads)|memory_test")


class Project:
    """Where everything is: the sources, the release build of the tests, and what is written for the mutants."""

    def __init__(self, root, sanitizers=False):
        self.root = root
        self.sources = root / SOURCES
        self.sanitizers = sanitizers
        suffix = "-sanitizers" if sanitizers else ""
        self.release = root / f"build/test{suffix}"
        self.folder = root / "build/mutation"
        self.tree = self.folder / "tree"
        self.build = self.folder / f"build{suffix}"
        self.judged = root / "Tests/mutation/judged.tsv"
        self.commands = {}
        for entry in json.loads((self.release / "compile_commands.json").read_text()):
            self.commands.setdefault(entry["file"], []).append(entry["command"])

    def paths(self):
        return sorted(path for path in self.sources.rglob("*") if path.suffix in (".h", ".cpp"))


def told_apart(rows):
    """The same change of the same line of the same function gets a number from the second time on."""
    seen = Counter()
    for mutant in rows:
        seen[mutant.name] += 1
        number = seen[mutant.name]
        yield mutant if number == 1 else mutant._replace(shown=f"{mutant.shown} ({number})")


def all_mutants(project):
    """The mutants of each file, read anew only if a source has changed."""
    kept = project.folder / "places.json"
    tool = [Path(mutation_places.__file__)]
    key = mutation_runs.digest_of(*project.paths(), *tool)
    if kept.exists() and (known := json.loads(kept.read_text()))["key"] == key:
        return {name: list(told_apart(map(as_mutant, rows))) for name, rows in known["mutants"].items()}
    files = {str(path): mutation_places.File(path, str(path.relative_to(project.sources))) for path in project.paths()}
    done = defaultdict(set)  # of headers, for each set of instructions
    for path in project.paths():
        for command in project.commands.get(str(path), []):
            arguments = [word for word in shlex.split(command) if re.match(r"-[DIm]|-std=|-isystem", word)]
            known = done[tuple(word for word in arguments if word.startswith("-m"))]
            known |= mutation_places.places(path, arguments, files, known)
    found = {file.name: sorted(file.found.values(), key=lambda m: (m.edits, m.kind)) for file in files.values() if file.found}
    kept.parent.mkdir(parents=True, exist_ok=True)
    kept.write_text(json.dumps({"key": key, "mutants": found}))
    return {name: list(told_apart(rows)) for name, rows in found.items()}


def as_mutant(row):
    *words, edits = row
    return mutation_places.Mutant(*words, tuple(mutation_places.Edit(*edit) for edit in edits))


def drawn_evenly(mutants, seed):
    """All mutants in the order in which samples take them: one of each unit, another of each, and so on."""
    shuffled = []
    for unit in sorted(mutants):
        generator = random.Random(f"{seed} {unit}")
        rows = list(mutants[unit])
        generator.shuffle(rows)
        shuffled += [(turn, generator.random(), mutant) for turn, mutant in enumerate(rows)]
    return [mutant for *_, mutant in sorted(shuffled, key=lambda item: item[:2])]


# ---- building -------------------------------------------------------------------------------------------------------


def write_if_new(path, text):
    data = text.encode("latin-1") if isinstance(text, str) else text
    if not path.exists() or path.read_bytes() != data:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


def write_tree(project, sample, count):
    """A copy of the project whose library has the sample's mutants in it."""
    tracked = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=project.root,
                             capture_output=True, check=True).stdout.decode().split("\0")
    of_file = defaultdict(list)
    for number, mutant in sample.items():
        of_file[mutant.file].append((number, mutant))
    for name in filter(None, tracked):
        path = project.root / name
        if not path.is_file():
            continue
        inside = os.path.relpath(path, project.sources)
        if of_file.get(inside):
            header = f'#include "{project.folder / "mutants.h"}"\n#line 1\n'
            write_if_new(project.tree / name,
                         header + mutation_schemata.with_switches(path.read_bytes().decode("latin-1"), of_file[inside]))
        else:
            write_if_new(project.tree / name, path.read_bytes())
            if os.access(path, os.X_OK):
                (project.tree / name).chmod(0o755)
    write_if_new(project.folder / "mutants.h", mutation_schemata.HEADER)
    # Among the sources that the library and the tests both link.
    write_if_new(project.tree / SOURCES / "base/detail/mathematics/mutants.cpp",
                 mutation_schemata.SOURCE.replace("COUNT", str(count)))


def broken_by(project, output, sample):
    """The mutants on the lines that the compiler complains of."""
    at = defaultdict(set)
    for number, mutant in sample.items():
        source = (project.sources / mutant.file).read_bytes()
        for edit in mutant.edits:
            first = source.count(b"\n", 0, edit.start) + 1
            for line in range(first, source.count(b"\n", 0, edit.end) + first - source.count(b"\n", 0, edit.start) + 1):
                at[mutant.file, line].add(number)
    tree = re.escape(str(project.tree / SOURCES)) + "/"
    broken, on_the_way = set(), []
    for line in output.splitlines():
        place = re.search(rf"{tree}([^\s:]+):(\d+):\d+:", line)
        hits = at[place[1], int(place[2])] if place else set()
        if "error:" in line:
            # Where the line of an error has no mutant, the innermost on the way to it that has.
            broken |= hits or next(filter(None, on_the_way), set())
            on_the_way = []
        elif re.search(r"required (from|by)|required from here|in 'constexpr' expansion|inlined from", line):
            on_the_way.append(hits)
        elif "In instantiation of" in line or "In substitution of" in line:
            on_the_way = [hits]
    return broken


def run_quietly(command, **more):
    result = subprocess.run(command, capture_output=True, text=True, stdin=subprocess.DEVNULL, **more)
    if result.returncode:
        sys.exit(f"{result.stdout[-5000:]}{result.stderr[-5000:]}\nFailed: {shlex.join(map(str, command))}")
    return result.stdout


def build(project, drawn):
    """Builds the library with those of the drawn mutants that compile. Returns them by number: the others leave gaps, so
    that what is compiled already stays as it is."""
    kept = project.folder / "broken.tsv"
    broken = {tuple(line.split("\t")) for line in kept.read_text().splitlines()} if kept.exists() else set()
    while True:
        sample = {number: mutant for number, mutant in enumerate(drawn) if mutant.name not in broken}
        write_tree(project, sample, len(drawn))
        # Precompiled headers halve the time; no other build has these sources, so that no cache would.
        preset = "sanitizers" if project.sanitizers else "release"
        run_quietly(["cmake", "--preset", preset, "-B", project.build, "-G", "Ninja", "-DVECMAT_NARROWER_INSTRUCTIONS=ON",
                     "-DCMAKE_CXX_FLAGS_RELEASE=-O1", "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1", "-DCMAKE_CXX_FLAGS=-w"],
                    cwd=project.tree)
        result = subprocess.run(["nice", "-n", "5", "cmake", "--build", project.build, "--target", "VecMat",
                                 "VecMatGuarded", "--", "-k", "0"],
                                capture_output=True, text=True, stdin=subprocess.DEVNULL)
        if result.returncode == 0:
            return sample
        found = broken_by(project, result.stdout + result.stderr, sample)
        if not found:
            sys.exit(result.stdout[-8000:] + "\nNo mutant stands where the compiler complains.")
        print(f"{len(found)} mutants don't compile", flush=True)
        broken |= {sample[number].name for number in found}
        kept.write_text("".join("\t".join(name) + "\n" for name in sorted(broken)))


def private(name):
    return re.search(r"(^|/)(detail|access|kernels)/", name) is not None


def includes_of(project, path, known):
    """The files of the library that a source of the tests includes, by their paths below it, the headers' own included."""
    if path not in known:
        known[path] = set()
        for name in re.findall(r'^#include ["<]([^">]+)[">]', path.read_text(), re.M):
            for folder in (path.parent, project.root / "Tests", project.sources):
                header = (folder / name).resolve()
                if header.is_file():
                    inside = {str(header.relative_to(project.sources))} if header.is_relative_to(project.sources) else set()
                    known[path] = known[path] | inside | includes_of(project, header, known)
                    break
    return known[path]


def programs(project, sample, wanted):
    """The programs of the suite. Those that test a private header with mutants, or the inline functions of a table, are
    compiled again. A test of another folder includes it to measure by it, for which it had better be as it was."""
    touched = {mutant.file for mutant in sample.values() if mutant.file.endswith(".h")
               and (private(mutant.file) or floor_of(mutant) == "tables")}
    known = {}
    tests = json.loads(run_quietly(["ctest", "--test-dir", project.release, "--show-only=json-v1"]))["tests"]
    sources = {path.stem: str(path) for path in (project.root / "Tests").rglob("*_test.cpp")}
    names = [test["name"] for test in tests if test["name"] in sources and fnmatch.fnmatch(test["name"], wanted)
             and (wanted != "*" or not LEFT_OUT.search(sources[test["name"]]))]

    def tested(name):
        folder = Path(sources[name]).relative_to(project.root / "Tests").parts[0] + "/"
        return {file for file in includes_of(project, Path(sources[name]), known)
                if file.startswith(folder) or (folder == "tables/" and "/" not in file)}

    again = [name for name in names if tested(name) & touched or any("mathematics/" in file for file in tested(name))]
    if again:
        run_quietly(["nice", "-n", "5", "cmake", "--build", project.build, "--target", *again])
    folder = project.build / "bin"
    folder.mkdir(exist_ok=True)
    for name in set(names) - set(again):
        there = folder / name
        if not there.exists() or not there.samefile(project.release / "bin" / name):
            there.unlink(missing_ok=True)
            os.link(project.release / "bin" / name, there)
    return [mutation_runs.Program(folder / name, sanitized=project.sanitizers) for name in names]


# ---- results --------------------------------------------------------------------------------------------------------


class Results:
    """What became of each mutant, appended to a file as soon as it is known."""

    def __init__(self, path):
        self.path = path
        self.known = {}
        if path.exists():
            for row in csv.reader(path.open(), delimiter="\t", quoting=csv.QUOTE_NONE):
                self.known[tuple(row[:4])] = tuple(row[4:])

    def add(self, mutant, verdict):
        self.known[mutant.name] = verdict
        with self.path.open("a") as file:
            file.write("\t".join([*mutant.name, *verdict]) + "\n")


def judgements(path):
    """Of mutants that no test can see: {name: reason}."""
    if not path.exists():
        return {}
    rows = [line.split("\t") for line in path.read_text().splitlines() if line and not line.startswith("#")]
    return {tuple(row[:4]): row[4] for row in rows}


def place_of(name):
    """A mutant's name without the constant that is put in: which of two that is depends on where in its file the place
    stands, and so changes with what is written above it."""
    file, function, kind, shown = name
    return file, function, kind, re.sub(r" => [^\[\]]*\]", "]", shown) if kind == "constant" else shown


def stale_judgements(judged, mutants):
    places = {place_of(mutant.name) for mutant in mutants}
    return sorted(name for name in judged if place_of(name) not in places)


def floor_of(mutant):
    return mutant.file.split("/")[0] if "/" in mutant.file else "tables"


def report(sample, results, judged, named=None):
    """Prints the table of the floors and all survivors, or those among `named`; returns how many there are."""
    counts = defaultdict(Counter)
    survivors = []
    for mutant in sample:
        status, detail = results.known.get(mutant.name, ("not run", ""))
        if status in ("survived", "unreached") and mutant.name in judged:
            status = "judged"
        elif status in ("survived", "unreached"):
            survivors.append((mutant, status, detail))
        elif status == "killed" and mutant.name in judged:
            print(f"Judged as seen by no test, but {detail} sees it: {' '.join(mutant.name)}")
        counts[floor_of(mutant)][status] += 1
        counts["all"][status] += 1
    for mutant, status, detail in survivors:
        if named is None or mutant in named:
            print(f"{mutant.file}:{mutant.line}: {mutant.function}: {mutant.kind}: {mutant.shown} ({status} {detail})")
    columns = ["killed", "judged", "survived", "unreached", "not run"]
    print(f"{'floor':<16}{'mutants':>8}" + "".join(f"{column:>11}" for column in columns) + f"{'score':>9}")
    for floor in sorted(counts, key=lambda name: (name == "all", name)):
        row = counts[floor]
        seen = row["killed"] + row["survived"] + row["unreached"]
        score = f"{100 * row['killed'] / seen:.1f} %" if seen else ""
        print(f"{floor:<16}{sum(row.values()):>8}" + "".join(f"{row[column]:>11}" for column in columns) + f"{score:>9}")
    return len(survivors)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", type=Path)
    parser.add_argument("--sample", type=int, default=2000)
    parser.add_argument("--seed", default="1")
    parser.add_argument("--unit", default="*")
    parser.add_argument("--kind", default="*")
    parser.add_argument("--all", default="")
    parser.add_argument("--tests", default="*")
    parser.add_argument("--workers", type=int, default=os.cpu_count() or 1)
    parser.add_argument("--only", type=Path)
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--sanitizers", action="store_true")
    parser.add_argument("--list", action="store_true")
    given = parser.parse_args()
    started = time.monotonic()
    project = Project(given.root, given.sanitizers)

    mutants = all_mutants(project)
    wanted = {unit: [m for m in rows if fnmatch.fnmatch(m.kind, given.kind)] for unit, rows in mutants.items()
              if fnmatch.fnmatch(unit, given.unit)}
    order = drawn_evenly(wanted, given.seed)
    print(f"{len(order)} places in {len(wanted)} units", flush=True)
    results = Results(project.folder / "results.tsv")
    judged = judgements(project.judged)
    drawn = order[:given.sample] + [mutant for mutant in order[given.sample:] if fnmatch.fnmatch(mutant.kind, given.all)]
    if given.only:
        names = {tuple(line.split("\t")[:4]) for line in given.only.read_text().splitlines()}
        drawn = [mutant for mutant in order if mutant.name in names]
        for gone in sorted(names - {mutant.name for mutant in drawn}):
            print(f"{given.only.name}: no such place any more: {' '.join(gone)}")
    sample = build(project, drawn)
    if not given.list:
        run(project, sample, len(drawn), results, judged, given.again, given.tests, given.workers, started)
    survivors = report([mutant for number, mutant in sample.items() if number < given.sample], results, judged)
    if given.all:
        print(f"all of kind {given.all}:")
        every = {number for number, mutant in sample.items() if fnmatch.fnmatch(mutant.kind, given.all)}
        report([sample[number] for number in every], results, judged, [sample[n] for n in every if n >= given.sample])
    stale = stale_judgements(judged, (mutant for rows in mutants.values() for mutant in rows))
    for name in stale:
        print(f"{project.judged.name}: no such place any more: {' '.join(name)}")
    print(f"{len(sample)} mutants, seed {given.seed}: {survivors} to judge, {time.monotonic() - started:.0f} s")
    return 1 if survivors or stale else 0


def distances(mutant):
    """How far a program's tests are from a mutant, by their names: those of its unit come first."""
    *folder, unit = mutant.file.split("/")
    stem = re.sub(r"(_exports|\.kernel)?\.\w+$", "", unit)
    near = {path.stem for path in Path("Tests", *folder[:1]).rglob("*_test.cpp")} if folder else set()
    return lambda program: 1 if program.path.name.startswith(stem) else 4 if program.path.name in near else 16


def run(project, sample, count, results, judged, again, tests, workers, started):
    """Runs what has no result yet; with `again` also what survived and is not judged."""
    suite = programs(project, sample, tests)
    library = project.build / "lib"
    plain = Project(project.root)
    known = mutation_runs.digest_of(plain.build / "lib/libVecMat.so")
    reach = mutation_runs.Reach(project.folder / "reach", plain.build / "lib", known, count)
    learnt = [program._replace(path=plain.build / "bin" / program.name, sanitized=False) for program in suite]
    mutation_runs.in_parallel(reach.learn, learnt, workers)
    for program, other in zip(learnt, suite):
        if project.sanitizers:
            reach.carry_over(program, other)
    print(f"{len(suite)} programs, {sum(map(len, reach.found.values()))} cases, {time.monotonic() - started:.0f} s", flush=True)
    for failing in reach.failing:
        print(f"Left out, as it fails without a mutant: {failing}")

    def status(number):
        return results.known.get(sample[number].name, ("", ""))

    def left(number):
        return status(number)[0] in ("survived", "unreached") and sample[number].name not in judged

    def go_through(numbers, programs, note=""):
        def judge(number):
            return mutation_runs.verdict(number, reach.runs(number, programs, distances(sample[number])), library)

        def add(number, verdict):
            if note and verdict[0] == "unreached":  # not by narrower instructions: what the widest gave stands
                verdict = status(number)
            if verdict[0] == "killed" or tests == "*":
                results.add(sample[number], (verdict[0], verdict[1] + note))

        mutation_runs.in_parallel(judge, numbers, workers, add)

    if project.sanitizers:
        go_through([number for number in sample if left(number)], suite, " under the sanitizers")
        return

    # The order of operations first.
    go_through(sorted((number for number in sample if not status(number)[0] or (again and left(number))),
                      key=lambda number: (sample[number].kind not in ("order", "direction"), number)), suite)

    # A kernel for narrower instructions may differ where the widest has no place at all.
    note = " at every instruction set"
    kernels = [number for number, mutant in sample.items() if mutant.file.startswith("kernels/") and left(number)
               and not status(number)[1].endswith(note)]
    if not kernels or tests != "*":
        return
    everything = set().union(*(reached for program in suite for _, reached in reach.found[program].values()))
    of_kernels = {number for number, mutant in sample.items() if mutant.file.startswith("kernels/")} & everything
    narrower = [mutation_runs.Program(program.path, instructions) for program in suite for instructions in ("baseline", "avx2")
                if any(of_kernels & reached for _, reached in reach.found[program].values())]
    mutation_runs.in_parallel(reach.learn, narrower, workers)
    go_through(kernels, narrower, note)


if __name__ == "__main__":
    sys.exit(main())
