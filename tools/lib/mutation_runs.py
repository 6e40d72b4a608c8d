"""Runs tests over a library compiled with many mutants: first each case by itself with no mutant on, to learn what it
reaches and how long it takes, then for each mutant the cases that reach it, the quickest first, until one fails."""

import hashlib
import json
import os
import re
import subprocess
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor, as_completed
from pathlib import Path
from typing import NamedTuple

SLOW = 0.5  # seconds: cases that take longer run by themselves, the others of a program in one go


class Program(NamedTuple):
    path: Path
    instructions: str = ""  # the instruction set that the kernels are kept to
    sanitized: bool = False

    @property
    def name(self):
        return f"{self.path.name}@{self.instructions}" if self.instructions else self.path.name


class Run(NamedTuple):
    """Some cases of a program, and what they take together."""
    program: Program
    cases: tuple
    seconds: float


def execute(program, cases, library, seconds, number=None, marks=None):
    """Runs the cases; returns status (0 if all passed), output and the time taken. Processor time is limited, so that
    other work on the machine fails no test."""
    environment = {name: value for name, value in os.environ.items() if not name.startswith(("VECMAT_", "GTEST_"))}
    environment["LD_LIBRARY_PATH"] = str(library)
    if program.instructions:
        environment["VECMAT_INSTRUCTIONS"] = program.instructions
    if number is not None:
        environment["VECMAT_MUTANT"] = str(number)
    if marks is not None:
        environment["VECMAT_REACHED"] = str(marks)

    memory = [] if program.sanitized else [f"--as={6 << 30}"]  # of addresses the sanitizers take any number
    command = ["prlimit", f"--cpu={int(seconds) + 1}:{int(seconds) + 2}", "--core=0", *memory, "--", str(program.path),
               f"--gtest_filter={':'.join(cases)}", "--gtest_fail_fast", "--gtest_brief=1"]
    started = time.monotonic()
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryFile() as output:
        process = subprocess.Popen(command, cwd=folder, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                   stderr=subprocess.STDOUT, start_new_session=True)
        try:
            status = process.wait(20 * seconds + 60)
        except subprocess.TimeoutExpired:
            status = -9
        finally:
            try:
                os.killpg(process.pid, 9)  # also what a test has started
            except ProcessLookupError:
                pass
            process.wait()
        output.seek(max(0, output.seek(0, 2) - 20000))
        text = output.read().decode(errors="replace")
    return status, text, time.monotonic() - started


def cases_of(program, library):
    listed = subprocess.run([str(program.path), "--gtest_list_tests"], capture_output=True, text=True, check=True,
                            env={**os.environ, "LD_LIBRARY_PATH": str(library)}).stdout
    cases, suite = [], ""
    for line in listed.splitlines():
        name = line.split("#")[0].strip()
        if line.startswith("  "):
            cases.append(suite + name)
        elif name.endswith("."):
            suite = name
    return [case for case in cases if "DISABLED_" not in case]


def digest_of(*paths):
    whole = hashlib.sha256()
    for path in paths:
        whole.update(Path(path).read_bytes())
    return whole.hexdigest()


class Reach:
    """What each case reaches: {program's name: {case: (seconds, numbers)}}, kept in a file for each program."""

    def __init__(self, folder, library, library_digest, count):
        self.folder, self.library, self.digest, self.count = folder, library, library_digest, count
        self.found, self.failing = {}, []
        folder.mkdir(parents=True, exist_ok=True)

    def of_case(self, program, case, limit):
        with tempfile.NamedTemporaryFile(dir=self.folder) as marks:
            marks.write(bytes(self.count))
            marks.flush()
            status, _, seconds = execute(program, [case], self.library, limit, marks=marks.name)
            reached = Path(marks.name).read_bytes()
        return status, seconds, [number for number, mark in enumerate(reached) if mark]

    def learn(self, program, limit=120):
        kept = self.folder / f"{program.name}.json"
        key = self.digest + digest_of(program.path)
        if kept.exists() and (known := json.loads(kept.read_text()))["key"] == key:
            cases = known["cases"]
        else:
            cases = {case: self.of_case(program, case, limit) for case in cases_of(program, self.library)}
            kept.write_text(json.dumps({"key": key, "cases": cases}))
        self.failing += [f"{program.name}: {case}" for case, (status, *_) in cases.items() if status != 0]
        self.found[program] = {case: (seconds, frozenset(reached)) for case, (status, seconds, reached) in cases.items()
                               if status == 0}

    def carry_over(self, program, other):
        """Lets another build of a program count as reaching the same, in more time."""
        self.found[other] = {case: (4 * seconds, reached) for case, (seconds, reached) in self.found[program].items()}

    def runs(self, number, programs, distance=lambda program: 1):
        """The runs that reach the mutant, the quickest first; one that is further from it counts as slower."""
        runs = []
        for program in programs:
            cases = {case: seconds for case, (seconds, reached) in self.found.get(program, {}).items() if number in reached}
            quick = [case for case, seconds in cases.items() if seconds < SLOW]
            # Most of a short case's time is that of its program's start.
            if quick:
                runs.append(Run(program, tuple(quick), max(cases[case] for case in quick)
                                + sum(max(0.0, cases[case] - 0.02) for case in quick)))
            runs += [Run(program, (case,), seconds) for case, seconds in cases.items() if seconds >= SLOW]
        return sorted(runs, key=lambda run: run.seconds * distance(run.program))


def verdict(number, runs, library):
    """`killed` and the case that did it, or `survived` and how many cases saw nothing."""
    for run in runs:
        status, output, _ = execute(run.program, run.cases, library, 3 + 8 * run.seconds, number)
        if status != 0 and run.program.sanitized:  # what the cases reach was learnt without the sanitizers
            if execute(run.program, run.cases, library, 3 + 8 * run.seconds)[0] != 0:
                continue
        if status != 0:
            failed = re.search(r"\[  FAILED  \] ([\w./]+)", output)
            seen = re.search(r"ERROR: AddressSanitizer: ([\w-]+)|runtime error: ([\w ]+)", output)
            how = (failed[1] if failed else next(filter(None, seen.groups())) if seen
                   else "no end" if status in (-9, -24) else f"status {status}")
            return "killed", f"{run.program.name}: {how}"
    cases = sum(len(run.cases) for run in runs)
    return ("survived", f"{cases} cases") if runs else ("unreached", "")


def in_parallel(function, items, workers, done=lambda item, result: None):
    with ThreadPoolExecutor(workers) as pool:
        waiting = {pool.submit(function, item): item for item in items}
        for finished in as_completed(waiting):
            done(waiting[finished], finished.result())
