"""A cluster of processes on this machine, started for the example: submits tasks, shows how far they are, and can kill a
worker while it works."""

from __future__ import annotations

import itertools
import logging
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from typing import Any, Callable, Optional, Sequence, TextIO

import dask
from distributed import Client, Future, LocalCluster, as_completed


def counted(number: int, thing: str) -> str:
    return f"{number} {thing}" + ("" if number == 1 else "s")


class Progress:
    """A line that is rewritten on a terminal; elsewhere one line for each quarter of the work."""

    def __init__(self, title: str, stream: TextIO) -> None:
        self._title, self._stream, self._quarter = title, stream, -1

    def show(self, done: int, submitted: int, workers: int) -> None:
        text = f"{self._title}: {done} of {counted(submitted, 'task')}, {counted(workers, 'worker')}"
        if self._stream.isatty():
            self._stream.write(f"\r{text}\033[K" + ("\n" if done == submitted else ""))
        elif 4 * done // submitted > self._quarter:
            self._quarter = 4 * done // submitted
            self._stream.write(text + "\n")
        self._stream.flush()

    def say(self, text: str) -> None:
        self._stream.write(f"\r{text}\033[K\n" if self._stream.isatty() else text + "\n")
        self._stream.flush()


class Workers:
    """So many processes with one thread each. To be used in a `with` statement."""

    def __init__(self, count: int, stream: Optional[TextIO] = None) -> None:
        self.count = count
        self.killed: list[int] = []
        self._stream = sys.stderr if stream is None else stream
        self._kill_next = False
        self._numbers = itertools.count()
        self._processes: list[subprocess.Popen[bytes]] = []
        self._submitted: list[Future] = []
        self._title = ""

    def __enter__(self) -> Workers:
        self._folder = tempfile.TemporaryDirectory(prefix="workers-", ignore_cleanup_errors=True)
        # Tasks are handed out at once: those that distributed 2022.12 holds back can stay there when the last worker is killed.
        with dask.config.set({"distributed.scheduler.worker-saturation": float("inf")}):
            self._scheduler = LocalCluster(n_workers=0, processes=True, dashboard_address="127.0.0.1:0",
                                           silence_logs=logging.CRITICAL)
        self._client = Client(self._scheduler)
        for _ in range(self.count):
            self._start_worker()
        return self

    def __exit__(self, *_: object) -> None:
        for process in self._processes:
            process.kill()
            process.wait()
        self._client.close()
        self._scheduler.close()
        self._folder.cleanup()

    def _start_worker(self) -> None:
        # Without a supervisor of its own: that of distributed 2022.12 fails to replace a killed worker now and then.
        number = str(next(self._numbers))
        command = [sys.executable, "-B", "-m", "distributed.cli.dask_worker", self._scheduler.scheduler_address,
                   "--nthreads", "1", "--no-nanny", "--no-dashboard", "--name", number, "--death-timeout", "60",
                   "--local-directory", self._folder.name]
        path = os.pathsep.join([str(Path(__file__).resolve().parent), os.environ.get("PYTHONPATH", "")])
        with open(Path(self._folder.name) / f"{number}.log", "wb") as log:
            self._processes.append(subprocess.Popen(command, env={**os.environ, "PYTHONPATH": path}, stdin=subprocess.DEVNULL,
                                                    stdout=log, stderr=log, start_new_session=True))

    def begin(self, title: str, *, kill_worker: bool = False) -> None:
        """Starts a job: waits until all workers are there, also one in place of a killed one."""
        self._client.wait_for_workers(self.count, timeout=120)
        self._submitted, self._title, self._kill_next = [], title, kill_worker

    def submit(self, function: Callable[..., Any], *arguments: Any) -> Future:
        """A task. Results of other tasks may be among the arguments: they stay on the workers."""
        # Each call is a task of its own: nothing is taken from an earlier run with the same arguments.
        future = self._client.submit(function, *arguments, pure=False)
        self._submitted.append(future)
        return future

    def gather(self, futures: Sequence[Future]) -> list[Any]:
        """The results in the order of the tasks given, in whatever order they finish."""
        progress = Progress(self._title, self._stream)
        for done, _ in enumerate(as_completed(self._submitted, loop=self._client.loop), start=1):
            if self._kill_next:
                self._kill_busiest(progress)
            progress.show(done, len(self._submitted), len(self._client.nthreads()))
        return list(self._client.gather(list(futures)))

    def processes(self) -> list[int]:
        """The process identifiers of the workers."""
        return [process.pid for process in self._processes]

    def _kill_busiest(self, progress: Progress) -> None:
        # Where all tasks were quicker than this, one whose results are then lost, and computed again.
        in_hand, thing = self._client.processing(), "task"
        if not any(in_hand.values()):
            in_hand, thing = self._client.has_what(), "result"
        address = max(in_hand, key=lambda worker: len(in_hand[worker]))
        pid = self._client.run(os.getpid, workers=[address])[address]
        process = next(process for process in self._processes if process.pid == pid)
        process.kill()
        process.wait()
        self._processes.remove(process)
        self._kill_next = False
        self.killed.append(pid)
        progress.say(f"{self._title}: killed worker process {pid}, which had {counted(len(in_hand[address]), thing)} in hand")
        # Until the scheduler has noticed, so that the line of progress shows it.
        deadline = time.monotonic() + 5.0
        while address in self._client.nthreads() and time.monotonic() < deadline:
            time.sleep(0.02)
        self._start_worker()
