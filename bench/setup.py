"""Measures what Camera Setup needs of a camera with 5,000 features whose registers are memory."""

import os
import shutil
import subprocess

from frames import BOUND
from listing import Installation
from pairs import Figure, at_most, in_pairs

FEATURES = 5000


class Cameras:
    """An installation whose only camera has many features."""

    def __init__(self, bench):
        self.root = Installation(bench, "setup").root
        shutil.copy(f"{bench.place}/shipped/bin/CvxCameraHost", f"{self.root}/bin")
        shutil.copy(f"{bench.build}/bench/ManyFeatures.cti", f"{self.root}/cti")
        self.description = f"{self.root}/cti/ManyFeatures.xml"
        self.parser = bench.program("parse_description")
        self.opener = shutil.copy(bench.program("open_features"), f"{self.root}/bin")
        with open(self.description, "wb") as file:
            subprocess.run([self.opener, "describe"], stdout=file, check=True, timeout=BOUND)
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": self.root}

    def run(self, *command):
        printed = subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True, timeout=BOUND,
                                 env=self.environment).stdout
        return [float(line) for line in printed.splitlines()]

    def open(self):
        time, features = self.run(self.opener, "open")
        assert features == FEATURES, f"the camera has {features} features"
        return time

    def parse(self):
        return self.run(self.parser, self.description)[0]


def figures(bench):
    cameras = Cameras(bench)
    opened, parsed = in_pairs(cameras.open, cameras.parse, bench.pairs)
    yield Figure("camera with 5,000 features opened, with the list of its features; floor: libaravis parses it", "ms",
                 opened, parsed, *at_most(500, "ms"))
