"""Operates an installed launcher: it lists the simulator's cameras, starts a tool and ends."""

import json
import os
import signal
import sys

from launcher import Launcher, click, keep_to_this_machine, wait_for

STAGE, PLUGINS, ROOT, PREFIX = sys.argv[1:]


def simulated_cameras():
    with open(f"{ROOT}{PREFIX}/cti/CorvixCameraSimulator.json", encoding="utf-8") as file:
        interfaces = json.load(file)["interfaces"]
    return sorted((device["vendor"], device["model"], device["serial"])
                  for interface in interfaces for device in interface["devices"])


def process_of(tool):
    """The process whose program is that file below the root; None while there is none."""
    for process in os.listdir("/proc"):
        try:
            with open(f"/proc/{process}/cmdline", encoding="utf-8", errors="replace") as file:
                command = file.read().split("\0")[0]
            if command.endswith(f"{PREFIX}/bin/{tool}") and process.isdigit():
                return int(process)
        except OSError:
            pass
    return None


def main():
    cameras, tool = simulated_cameras(), None
    keep_to_this_machine(ROOT + PREFIX)
    try:
        with Launcher(STAGE, PLUGINS, {"LC_ALL": "C.UTF-8"}) as launcher:
            wait_for("the table shows the scene", lambda: sorted(launcher.rows()) == cameras)
            click(launcher.cell("Lintaro"))
            wait_for("a tool is enabled", lambda: "Image Viewer" in launcher.enabled_tools())
            click(launcher.tiles()["Image Viewer"])
            tool = wait_for("the tool runs", lambda: process_of("ImageViewer"))
            click(launcher.find("pushButton_2"))
            assert launcher.process.wait(timeout=10) == 0, launcher.printed()
            assert launcher.printed() == "", launcher.printed()
    finally:
        if tool is not None:
            os.kill(tool, signal.SIGTERM)
    print(f"{PREFIX}: {len(cameras)} cameras listed, a tool started")


main()
