"""Statistics on many workers, with the same bits as on one."""

from __future__ import annotations

import argparse
import sys
import tempfile
from pathlib import Path
from typing import Callable

import bootstrap
import covariance
import groups
import imputation
import permutation
from outcome import Outcome
from parts import write_parts
from workers import Workers

JOBS = ("permutation", "bootstrap", "imputation", "covariance", "groups")


def at_least(low: int) -> Callable[[str], int]:
    def number(text: str) -> int:
        if int(text) < low:
            raise argparse.ArgumentTypeError(f"expected {low} or more, got {text}")
        return int(text)
    return number


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="python3 Examples/cluster", description=__doc__)
    parser.add_argument("job", nargs="+", choices=JOBS + ("all",), metavar="JOB", help=", ".join(JOBS + ("all",)))
    parser.add_argument("--workers", nargs="+", type=at_least(1), default=[4], metavar="N",
                        help="numbers of workers: each job runs on each, and the results are compared (default: 4)")
    parser.add_argument("--kill-worker", action="store_true", help="kill a worker while it works, in each run")
    parser.add_argument("--repetitions", type=at_least(1), default=10000, metavar="N",
                        help="of the permutation test and the bootstrap (default: 10000)")
    parser.add_argument("--per-task", type=at_least(1), default=250, metavar="N", help="repetitions in a task (default: 250)")
    parser.add_argument("--parts", type=at_least(1), default=8, metavar="N", help="CSV files (default: 8)")
    parser.add_argument("--rows", type=at_least(2), default=300, metavar="N", help="rows in each of them (default: 300)")
    return parser.parse_args()


def run(job: str, workers: Workers, options: argparse.Namespace, paths: list[Path]) -> Outcome:
    workers.begin(job, kill_worker=options.kill_worker)
    if job == "permutation":
        return permutation.run(workers, options.repetitions, options.per_task)
    if job == "bootstrap":
        return bootstrap.run(workers, options.repetitions, options.per_task)
    return {"imputation": imputation, "covariance": covariance, "groups": groups}[job].run(workers, paths)


def main() -> int:
    options = arguments()
    jobs = JOBS if "all" in options.job else tuple(options.job)
    outcomes: dict[str, list[Outcome]] = {job: [] for job in jobs}
    with tempfile.TemporaryDirectory(prefix="parts-") as folder:
        paths = write_parts(Path(folder), options.parts, options.rows)
        for count in options.workers:
            with Workers(count) as workers:
                for job in jobs:
                    outcomes[job].append(run(job, workers, options, paths))
                if options.kill_worker and len(workers.killed) < len(jobs):
                    print("A job was done before a worker could be killed: give it more work.", file=sys.stderr)
    same = [report(job, options.workers, outcomes[job]) for job in jobs]
    return 0 if all(same) else 1


def report(job: str, counts: list[int], outcomes: list[Outcome]) -> bool:
    print(f"\n{job}")
    for line in outcomes[0].lines:
        print(f"  {line}")
    for count, outcome in zip(counts, outcomes):
        print(f"  {count} {'worker: ' if count == 1 else 'workers:'} {outcome.fingerprint()[:16]}")
    same = len({outcome.fingerprint() for outcome in outcomes}) == 1
    if len(counts) > 1:
        print("  the same bits" if same else "  DIFFERENT BITS")
    return same


if __name__ == "__main__":
    sys.exit(main())
