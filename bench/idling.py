"""Measures what the launcher uses while it is idle."""

import contextlib
import os
import subprocess
import time

import footprint
from frames import WITHOUT_OPENGL, running
from pairs import WITHOUT_TARGET, Figure, at_most_on_average, at_most_times, in_pairs
from places import LISTED

SETTLED = 2.0  # The work of the start is done after this many seconds.
POOL_SETTLED = 32.0  # Seconds. Idle threads of Qt's pool end after 30 seconds.
SLICES, SLICE = 15, 4.0  # The number of slices, and the seconds in each slice.


@contextlib.contextmanager
def idle_launcher(bench, settled):
    with running(bench.launcher) as (process, _):
        bench.screen.await_window()
        bench.screen.await_text(LISTED)
        time.sleep(settled)
        yield process.pid


def memory(processes):
    """Returns the memory of all processes in MiB. Shared pages count proportionally (PSS)."""
    return sum(footprint.Footprint(process).memory["PSS"] for process in processes) / 1024


def ours(bench):
    with idle_launcher(bench, SETTLED) as launcher:
        return memory([launcher, *footprint.hosts(launcher).values()])


def floor(bench, environment=None):
    with running(bench.program("empty_window"), environment=environment) as (process, _), \
            subprocess.Popen(["sleep", "infinity"], close_fds=False) as bare:
        bench.screen.await_window()
        time.sleep(SETTLED)
        try:
            return memory([process.pid, bare.pid])
        finally:
            bare.kill()


class Activity:
    """Contains the processor time in seconds and the number of wake-ups of a process so far, for all its threads."""

    def __init__(self, process):
        self.seconds, self.wakes = 0.0, 0
        for task in os.listdir(f"/proc/{process}/task"):
            self.seconds += int(footprint.read(process, f"task/{task}/schedstat").split()[0]) / 1e9
            status = footprint.read(process, f"task/{task}/status")
            self.wakes += int(status.rpartition("\nvoluntary_ctxt_switches:")[2].split()[0])


def activity(bench):
    """Returns three lists with a value for each slice: the processor use of launcher and host together in percent, the
    wake-ups per second of the launcher, and the wake-ups per second of the host."""
    with idle_launcher(bench, POOL_SETTLED) as launcher:
        processes = [launcher, *footprint.hosts(launcher).values()]
        assert len(processes) == 2, "there is exactly one producer host"
        before, slices = [Activity(process) for process in processes], []
        for _ in range(bench.rounds(SLICES)):
            time.sleep(SLICE)
            after = [Activity(process) for process in processes]
            slices.append((100 * sum(b.seconds - a.seconds for a, b in zip(before, after)) / SLICE,
                           *((b.wakes - a.wakes) / SLICE for a, b in zip(before, after))))
            before = after
        return [list(values) for values in zip(*slices)]


def figures(bench):
    name = "memory (PSS) of launcher and host, idle"
    yield Figure(name, "MiB", *in_pairs(lambda: ours(bench), lambda: floor(bench), bench.pairs), *at_most_times(1.3))
    yield Figure(f"{name}, floor without OpenGL", "MiB",
                 *in_pairs(lambda: ours(bench), lambda: floor(bench, WITHOUT_OPENGL), bench.pairs), *WITHOUT_TARGET)
    processor, launcher, host = activity(bench)
    yield Figure("processor use, idle, one producer", "%", processor, [0], *at_most_on_average(0.3, "% of a core"))
    yield Figure("wake-ups of the launcher, idle", "/s", launcher, [0], *at_most_on_average(5, "/s"))
    yield Figure("wake-ups of a host, idle", "/s", host, [0], *at_most_on_average(2, "/s"))
