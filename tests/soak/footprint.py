"""What processes take of the machine, read from /proc."""

import os
import time

TICK = os.sysconf("SC_CLK_TCK")

# Threads of Qt's pool end after 30 s without work: how many there are is chance, and each has an event descriptor.
POOLED = "Thread (pooled)"
EVENT = "anon_inode:[eventfd]"


def read(process, name):
    """The file's text; empty when the process is gone."""
    try:
        with open(f"/proc/{process}/{name}", encoding="utf-8", errors="surrogateescape") as file:
            return file.read()
    except OSError:
        return ""


def stat_fields(process):
    """The fields of /proc/PID/stat from the state on, which is field 3 in proc(5)."""
    return read(process, "stat").rpartition(")")[2].split()


def state(process):
    return (stat_fields(process) or [""])[0]


def parent(process):
    """0 when the process is gone."""
    return int((stat_fields(process) or ["", "0"])[1])


def arguments(process):
    return read(process, "cmdline").rstrip("\0").split("\0")


def processes():
    return [int(name) for name in os.listdir("/proc") if name.isdigit()]


def children(process):
    return [other for other in processes() if parent(other) == process]


def zombies(process):
    return [child for child in children(process) if state(child) == "Z"]


def hosts(launcher):
    """The producer hosts by the name of their file."""
    return {os.path.basename(arguments(process)[-1]): process for process in children(launcher)
            if os.path.basename(arguments(process)[0]) == "CvxProducerHost"}


def seconds_used(process):
    """Processor time of the process, and of its children that have ended."""
    own, system, of_children, system_of_children = (int(field) / TICK for field in stat_fields(process)[11:15])
    return own + system, of_children + system_of_children


class Footprint:
    """A process that does nothing in particular. Memory in KiB; "own" is what it shares with nobody, as its heap."""

    def __init__(self, process):
        self.process = process
        rollup = dict(line.split(":", 1) for line in read(process, "smaps_rollup").splitlines()[1:])
        self.memory = {name: int(rollup[key].split()[0])
                       for name, key in (("PSS", "Pss"), ("own", "Pss_Anon"), ("RSS", "Rss"))}
        self.descriptors, self.threads = self.look()

    def look_again(self):
        """A search takes a thread and a socket for its time: the least is what is there for good."""
        descriptors, threads = self.look()
        self.descriptors = min(self.descriptors, descriptors, key=len)
        self.threads = min(self.threads, threads, key=len)

    def look(self):
        names, links = sorted(self.thread_names()), sorted(self.links())
        for _ in range(min(names.count(POOLED), links.count(EVENT))):
            links.remove(EVENT)
        return links, [name for name in names if name != POOLED]

    def links(self):
        directory = f"/proc/{self.process}/fd"
        for number in os.listdir(directory):
            try:
                yield os.readlink(f"{directory}/{number}")
            except OSError:
                pass  # Closed meanwhile.

    def thread_names(self):
        for thread in os.listdir(f"/proc/{self.process}/task"):
            name = read(self.process, f"task/{thread}/comm").strip()
            if name:
                yield name


def footprints(named_processes, seconds=5):
    """By name; looked at for more than twice as long as it takes a producer to search again."""
    prints = {name: Footprint(process) for name, process in named_processes.items()}
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        time.sleep(0.1)
        for footprint in prints.values():
            footprint.look_again()
    return prints
