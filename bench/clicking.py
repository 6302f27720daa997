"""Measures the time from a click to its effect: a row is selected, a tool is started."""

import os
import select
import shutil
import subprocess
import time

from frames import BOUND, running
from pairs import Figure, at_most_times, in_pairs
from places import IMAGE_VIEWER, LISTED, row

SIZES = 8, 64


def selection(bench):
    for size in SIZES:
        printed = subprocess.run([bench.program("select_row"), bench.stage, str(size), str(bench.pairs)],
                                 stdout=subprocess.PIPE, check=True, text=True, timeout=10 * BOUND).stdout
        ours, floor = ([float(value) for value in values] for values in zip(*map(str.split, printed.splitlines())))
        bench.curves.setdefault("row selected", {})[size] = ours
        yield Figure(f"row selected to redrawn, {size} cameras", "ms", ours, floor, *at_most_times(1.3))


class StartPipe:
    """A pipe to which a tool writes the time at which its main() starts."""

    def __init__(self, bench):
        self.path = f"{bench.place}/start"
        os.mkfifo(self.path)
        self.descriptor = os.open(self.path, os.O_RDWR)
        self.environment = {"BENCH_START_PIPE": self.path}

    def await_start(self):
        """Returns the time of the next start, in seconds of the monotonic clock."""
        assert select.select([self.descriptor], [], [], BOUND)[0], "the tool does not start"
        return int(os.read(self.descriptor, 100)) / 1e9


def tool_start(bench):
    stage = f"{bench.place}/with-tool"
    shutil.copytree(bench.stage, stage, symlinks=True)
    tool = f"{stage}/bin/ImageViewer"
    os.remove(tool)
    shutil.copy(bench.program("marked_tool"), tool)
    pipe = StartPipe(bench)

    def spawn():
        started = time.monotonic()
        process = os.posix_spawn(tool, [tool], {**os.environ, **pipe.environment})
        reached = pipe.await_start()
        os.waitpid(process, 0)
        return (reached - started) * 1e3

    def press():
        pressed = bench.screen.press(IMAGE_VIEWER)
        return (pipe.await_start() - pressed) * 1e3

    with running(f"{stage}/bin/CorvixLauncher", environment=pipe.environment):
        bench.screen.await_window()
        bench.screen.await_text(LISTED)
        bench.screen.press(row(0))
        measured = in_pairs(press, spawn, bench.pairs)
    yield Figure("tile pressed to the tool's main()", "ms", *measured, *at_most_times(1.5))


def figures(bench):
    yield from selection(bench)
    yield from tool_start(bench)
