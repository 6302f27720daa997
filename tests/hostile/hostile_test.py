"""Checks that the window of the installed launcher stays usable with several hostile producers.

The tests of the SDK library cover every fault; this test uses one producer for each kind of fault.
"""

import json
import os
import shutil
import sys
import tempfile

from launcher import Launcher, click, wait_for

CAMERAS = "interface net0|Network 0|GEV\ndevices net0|2\n"
PRODUCERS = {  # File name: (line of the script, text that is printed about the producer)
    "crash": ("fault load crash", "SIGSEGV"),
    "hang": ("fault IFUpdateDeviceList hang", "was killed"),
    "throw": ("fault GCInitLib throw-in-thread", "threw an uncaught exception"),
    "print": ("fault IFUpdateDeviceList print", None),
}


def processes_of(directory):
    """Returns the processes whose command line contains the directory."""
    found = []
    for process in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{process}/cmdline", encoding="utf-8", errors="replace") as file:
                if directory in file.read():
                    found.append(int(process))
        except OSError:
            pass  # The process has ended in the meantime.
    return found


def place(producer, directory):
    for name, (fault, _) in PRODUCERS.items():
        shutil.copy(producer, f"{directory}/{name}.cti")
        with open(f"{directory}/{name}.script", "w", encoding="utf-8") as script:
            script.write(f"{fault}\n{CAMERAS}")


def serials_of_simulator(directory):
    with open(f"{directory}/CorvixCameraSimulator.json", encoding="utf-8") as file:
        return {device["serial"] for interface in json.load(file)["interfaces"] for device in interface["devices"]}


def lines_about(name, launcher):
    return [line for line in launcher.printed().splitlines() if f"/{name}.cti: " in line]


def main(installation, plugins, producer):
    with tempfile.TemporaryDirectory(dir=os.path.dirname(installation)) as directory:
        stage = f"{directory}/stage"
        shutil.copytree(installation, stage, symlinks=True)
        shutil.rmtree(f"{stage}/cti/fallback", ignore_errors=True)  # These producers would find real cameras.
        place(producer, f"{stage}/cti")
        expected = serials_of_simulator(f"{stage}/cti") | {"SN1", "SN2"}
        with Launcher(stage, plugins) as launcher:
            wait_for("the cameras of the other producers are shown",
                     lambda: expected <= {row[2] for row in launcher.rows() if len(row) == 3})
            for name in ("crash", "throw"):
                wait_for(f"a line about {name}.cti is printed", lambda name=name: lines_about(name, launcher))
            click(launcher.find("pushButton_2"))
            assert launcher.process.wait(timeout=30) == 0
            for name, (_, text) in PRODUCERS.items():
                lines = lines_about(name, launcher)
                assert len(lines) == (1 if text else 0) and all(text in line for line in lines), lines
        wait_for("no process is left", lambda: not processes_of(directory))


main(*sys.argv[1:])
