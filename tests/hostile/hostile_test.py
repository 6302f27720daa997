"""Hostile producers in the installed launcher, one at a time beside the simulator.

The table is that of the SDK's test. Tried are all its files, crowds, constructors, data and processes; of the
functions each that hangs, and one with every fault: to the window the others are no different.
"""

import concurrent.futures
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile

from launcher import Launcher, answer_at, click, wait_for, xdotool

FIRST_LIST = 3.5  # seconds from the start to everybody else's cameras
LATENCY = 100.0  # milliseconds that an event may wait for the GUI thread, without what a busy machine adds
WORKERS = 4  # desktops side by side; most rows wait
GROUPS = {"file", "crowd", "constructor", "data", "process", "IFUpdateDeviceList"}


class MeasuredLauncher(Launcher):
    """Tells as well how long events had to wait."""

    def more_plugins(self):
        return f",eventlatency:{self.directory}/latency"

    def enough_latencies(self):
        """What was measured, when that is something."""
        latency = answer_at(f"{self.directory}/latency")
        return latency if latency["samples"] >= 50 else None


def processes_with(text):
    """The processes with this text in their command line."""
    found = []
    for process in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{process}/cmdline", encoding="utf-8", errors="replace") as file:
                if text in file.read():
                    found.append(int(process))
        except OSError:
            pass
    return found


def say(line):
    """In one go, since several processes print."""
    os.write(sys.stdout.fileno(), (line + "\n").encode(errors="replace"))


class Row:
    """One row of the table, in an installation of its own."""

    def __init__(self, row, stage, placer):
        self.row = row
        self.serials = {device["serial"] for interface in self.scene(stage)["interfaces"]
                        for device in interface["devices"]}
        self.directory = tempfile.mkdtemp(dir=os.path.dirname(stage))
        self.stage = f"{self.directory}/stage"
        shutil.copytree(stage, self.stage, symlinks=True, copy_function=os.link)
        shutil.rmtree(f"{self.stage}/cti/fallback", ignore_errors=True)  # Those for real cameras have their own tests.
        subprocess.run([placer, "place", row["name"], f"{self.stage}/cti"], check=True)

    @staticmethod
    def scene(stage):
        with open(f"{stage}/cti/CorvixCameraSimulator.json", encoding="utf-8") as file:
            return json.load(file)

    def remove(self):
        for process in processes_with(self.directory):
            os.kill(process, signal.SIGKILL)
        shutil.rmtree(self.directory)

    def shows_the_others(self, launcher):
        return self.serials <= {row[2] for row in launcher.rows() if len(row) == 3}

    def lines(self, launcher):
        return launcher.printed().splitlines()

    def run(self, plugins):
        """Gives what was seen; fails where that is not as it has to be."""
        with MeasuredLauncher(self.stage, plugins) as launcher:
            wait_for("the simulator's cameras are shown", lambda: self.shows_the_others(launcher))
            first = launcher.elapsed()
            if self.row["atStart"]:
                wait_for("the line is printed", lambda: len(self.lines(launcher)) >= self.row["lines"])
            if self.row["cameras"] > 0:
                wait_for("its own cameras are shown", lambda: len(launcher.rows())
                         >= len(self.serials) + self.row["cameras"])
            latency = wait_for("enough was measured", launcher.enough_latencies)
            xdotool("mousemove", "0", "0")  # A pointer that the last row has left at its place would not move at all.
            click(launcher.find("pushButton_2"))
            status = launcher.process.wait(timeout=10)
            lines = self.lines(launcher)
        left = self.processes_left()
        self.check(first, latency, status, lines, left)
        return (self.row["name"], f"{first * 1000:.0f}", f"{latency['longest']:.0f}",
                f"{latency['longestOwn']:.0f}", str(left),
                lines[0].split("/cti/", 1)[-1] if lines else "")

    def processes_left(self):
        if self.row["leavesDaemon"]:
            return len(processes_with(self.directory))
        wait_for("no process is left", lambda: not processes_with(self.directory), bound=1)
        return 0

    def check(self, first, latency, status, lines, left):
        assert first <= FIRST_LIST, f"first list after {first:.2f} s"
        assert latency["longestOwn"] <= LATENCY, latency
        assert status == 0, f"exit status {status}"
        assert len(lines) == self.row["lines"], lines
        for line in lines:
            assert self.row["file"] + ": " in line and self.row["words"] in line, line
        assert left == (1 if self.row["leavesDaemon"] else 0), f"{left} processes are left"


def try_rows(stage, plugins, placer, names):
    """On the desktop that this process has; prints a line a row. True when all is well."""
    rows = {row["name"]: row for row in table(placer)}
    is_well = True
    for name in names:
        row = Row(rows[name], stage, placer)
        try:
            say("\t".join(("HOSTILE-LAUNCHER", *row.run(plugins))))
        except (AssertionError, subprocess.TimeoutExpired) as failure:
            say(f"FAILED {name}: {failure}")
            is_well = False
        finally:
            row.remove()
    return is_well


def table(placer):
    output = subprocess.run([placer, "list"], stdout=subprocess.PIPE, check=True, text=True).stdout
    return [json.loads(line) for line in output.splitlines()]


def is_tried(name):
    group, _, fault = name.partition("/")
    return group in GROUPS or fault == "hang"


def on_a_desktop(arguments, names):
    return subprocess.run([arguments[0], sys.executable, "-B", __file__, *arguments, "--", *names],
                          check=False).returncode == 0


def main():
    if "--" in sys.argv:
        arguments, names = sys.argv[1:sys.argv.index("--")], sys.argv[sys.argv.index("--") + 1:]
        return try_rows(*arguments[1:], names)
    arguments = sys.argv[1:]  # with-desktop, the installation, the plugins, the program with the table
    names = [row["name"] for row in table(arguments[3]) if is_tried(row["name"])]
    crowds = [name for name in names if name.startswith("crowd/")]
    others = sorted((name for name in names if name not in crowds), key=lambda name: "hang" not in name)
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        shares = [pool.submit(on_a_desktop, arguments, others[index::WORKERS]) for index in range(WORKERS)]
    results = [share.result() for share in shares]
    results.append(on_a_desktop(arguments, crowds))  # Five hundred hosts need the processors for themselves.
    return all(results)


sys.exit(0 if main() else 1)
