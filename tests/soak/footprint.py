"""Reads the memory, descriptors, threads and processor time of processes from /proc."""

import os
import time


def read(process, name):
    """Returns the text of a file in the process's /proc directory, or an empty text if the process has ended."""
    try:
        with open(f"/proc/{process}/{name}", encoding="utf-8", errors="surrogateescape") as file:
            return file.read()
    except OSError:
        return ""


def stat_fields(process):
    """Returns the fields of /proc/PID/stat starting with the state, which is field 3 in proc(5)."""
    return read(process, "stat").rpartition(")")[2].split()


def state(process):
    return (stat_fields(process) or [""])[0]


def parent(process):
    return int((stat_fields(process) or ["", "0"])[1])


def arguments(process):
    return read(process, "cmdline").rstrip("\0").split("\0")


def processes():
    return [int(name) for name in os.listdir("/proc") if name.isdigit()]


def hosts(launcher):
    """Returns the processes of the producer hosts by the names of their producers."""
    return {os.path.basename(arguments(process)[-1]): process for process in processes()
            if parent(process) == launcher and os.path.basename(arguments(process)[0]) == "CvxProducerHost"}


def seconds_used(launcher):
    """Returns the processor time that the launcher and all of its hosts have used, including ended hosts."""
    fields = [stat_fields(process)[11:13] for process in hosts(launcher).values()]
    ticks = sum(int(field) for of_process in (stat_fields(launcher)[11:15], *fields) for field in of_process)
    return ticks / os.sysconf("SC_CLK_TCK")


class Footprint:
    """The resources that a process uses. Memory is in KiB; "own" memory is shared with no other process."""

    def __init__(self, process):
        self.process = process
        rollup = dict(line.split(":", 1) for line in read(process, "smaps_rollup").splitlines()[1:])
        self.memory = {name: int(rollup[key].split()[0]) for name, key in (("PSS", "Pss"), ("own", "Pss_Anon"))}
        self.descriptors, self.threads = (len(os.listdir(f"/proc/{process}/{name}")) for name in ("fd", "task"))


def footprints(named_processes):
    """Returns the footprints by name. The smallest numbers are used, because a search needs more for a while."""
    found = {name: Footprint(process) for name, process in named_processes.items()}
    for _ in range(50):
        time.sleep(0.1)
        for footprint in found.values():
            now = Footprint(footprint.process)
            footprint.descriptors = min(footprint.descriptors, now.descriptors)
            footprint.threads = min(footprint.threads, now.threads)
    return found
