"""Checks that the launcher lists a GigE Vision camera without its vendor's software, and notices its removal."""

import subprocess
import sys

from launcher import Launcher, wait_for

STAGE, PLUGINS = sys.argv[1:]
CAMERA = ("Aravis", "Fake", "E2E1")
SIMULATED = 8


class FakeCamera:
    """Runs a simulated camera on the loopback interface within a with statement."""

    def __enter__(self):
        self.process = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", "arv-fake-gv-camera-0.8",
                                         "--interface", "127.0.0.1", "--serial", CAMERA[2]], stdout=subprocess.DEVNULL)

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


def main():
    with Launcher(STAGE, PLUGINS) as launcher:
        for _ in range(2):
            with FakeCamera():
                wait_for("the camera is listed", lambda: CAMERA in launcher.rows())
                rows = launcher.find("cameraTable")["rows"]
                assert len(rows) == SIMULATED + 1, rows
                tool_tip, = (row["toolTips"][1] for row in rows if tuple(row["texts"]) == CAMERA)
                assert ">GigE<" in tool_tip and ">UniversalGEV.cti<" in tool_tip, tool_tip
            wait_for("the camera disappears", lambda: len(launcher.rows()) == SIMULATED)
        assert launcher.printed() == "", launcher.printed()


main()
