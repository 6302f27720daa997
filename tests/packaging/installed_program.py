"""Checks that an installed launcher lists the simulated cameras, starts a tool, and exits without a message.

usage: installed_program.py STAGE PLUGINS ROOT PREFIX   STAGE/bin/CorvixLauncher starts the program in ROOT/PREFIX.
"""

import contextlib
import os
import signal
import sys

from launcher import Launcher, click, keep_to_this_machine, output_of, wait_for, xdotool
from simulator import SimulatorConfiguration, rows_of

STAGE, PLUGINS, ROOT, PREFIX = sys.argv[1:]
cameras, tool = rows_of(SimulatorConfiguration(ROOT + PREFIX).read()), None
keep_to_this_machine(ROOT + PREFIX)
try:
    with Launcher(STAGE, PLUGINS) as launcher:
        wait_for("the table lists the simulated cameras", lambda: sorted(launcher.rows()) == cameras)
        click(launcher.cell("Lintaro"))
        wait_for("a tool is enabled", lambda: "Image Viewer" in launcher.enabled_tools())
        click(launcher.tiles()["Image Viewer"])
        tool = wait_for("the tool runs", lambda: output_of("pgrep", "--full", f"^[^ ]*{PREFIX}/bin/ImageViewer"))
        window = wait_for("the tool shows its window", lambda: output_of(
            "xdotool", "search", "--onlyvisible", "--name", "– Image Viewer$")).split()[0]
        xdotool("windowminimize", "--sync", window)  # It would cover the launcher.
        click(launcher.find("pushButton_2"))
        assert launcher.process.wait(timeout=60) == 0, launcher.printed()
        assert launcher.printed() == "", launcher.printed()
finally:
    for process in (tool or "").split():
        with contextlib.suppress(ProcessLookupError):  # pgrep may also have found a process that was about to end.
            os.kill(int(process), signal.SIGTERM)
