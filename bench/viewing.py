"""Measures the Image Viewer on simulated cameras: the processor time of a live picture, losses, and how soon its window
answers."""

import json
import os
import shutil
import subprocess
import tempfile

from frames import BOUND
from pairs import Figure, at_most
from streaming import LARGE, MEBIBYTE, installation

COLOR = "SIM-COLOR"
CAMERAS = [{"id": LARGE, "model": "Large", "serial": "1", "sensorWidth": 2560, "sensorHeight": 1954},
           {"id": COLOR, "model": "Color", "serial": "2", "sensorWidth": 2448, "sensorHeight": 2048, "color": True}]
SECONDS = 10


class Viewer:
    """An installation with the program that runs the viewer's window and measures it."""

    def __init__(self, bench):
        self.root = installation(bench, "viewing", "CorvixCameraSimulator.cti")
        with open(f"{self.root}/cti/CorvixCameraSimulator.json", "w", encoding="utf-8") as file:
            json.dump({"interfaces": [{"id": "Sim", "tlType": "GEV", "devices": CAMERAS}]}, file)
        self.program = shutil.copy(bench.program("view"), f"{self.root}/bin")
        os.mkdir(f"{self.root}/run", 0o700)
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": f"{self.root}/run"}

    def run(self, *arguments):
        """Returns the numbers that the program prints."""
        printed = subprocess.run([self.program, *map(str, arguments)], stdout=subprocess.PIPE, check=True, text=True,
                                 timeout=5 * BOUND, env=self.environment).stdout
        return [float(line) for line in printed.splitlines()]


def figures(bench):
    viewer = Viewer(bench)
    count = bench.rounds(10) // 2
    first = [viewer.run(COLOR, "first")[0] for _ in range(count)]
    yield Figure("window to first picture", "ms", first, [], *at_most(600, "ms"))
    used, shown, _ = zip(*(viewer.run(COLOR, "shown", "BayerRG12p", 30, SECONDS) for _ in range(count)))
    yield Figure(f"processor time of viewer and host, 5 MP BayerRG12p fitted, {min(shown):.1f} shown/s", "% of a core",
                 list(used), [], *at_most(60, "% of a core"))
    _, shown, lost = zip(*(viewer.run(LARGE, "shown", "Mono8", 0, SECONDS) for _ in range(count)))
    yield Figure(f"images lost while 5 MP Mono8 is shown at full speed, {min(shown):.1f} shown/s", "", list(lost), [],
                 *at_most(0, ""))
    with tempfile.TemporaryDirectory(dir="/dev/shm") as folder:
        lost, rate, wait = viewer.run(LARGE, "record", folder, 60, SECONDS)
    yield Figure(f"images of 5 MP Mono8 lost of a recording at {rate:.1f}/s", "", [lost], [], "0 at 60/s",
                 lambda figure: figure.median() == 0 and rate >= 59)
    yield Figure("longest wait of an event meanwhile, 99.9 % of them", "ms", [wait], [], *at_most(50, "ms"))
    memory = [viewer.run(LARGE, "memory")[0] / MEBIBYTE for _ in range(count)]
    yield Figure("memory of viewer and host, without the buffers", "MiB", memory, [], *at_most(120, "MiB"))
