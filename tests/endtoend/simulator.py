"""The simulator configuration of an installation."""

import json
import os
import shutil


class SimulatorConfiguration:
    """Restores the configuration file at the end of a with statement."""

    def __init__(self, stage):
        self.file = f"{stage}/cti/CorvixCameraSimulator.json"
        self.original = f"{self.file}.original"

    def __enter__(self):
        shutil.copy(self.file, self.original)
        return self

    def __exit__(self, *_):
        os.replace(self.original, self.file)

    def read(self):
        with open(self.file, encoding="utf-8") as file:
            return json.load(file)

    def write(self, content):
        """Replaces the file atomically, so that the simulator never reads half of it."""
        with open(self.file + ".new", "w", encoding="utf-8") as file:
            json.dump(content, file)
        os.replace(self.file + ".new", self.file)


def rows_of(content):
    """Returns the table's rows for a simulator configuration, sorted."""
    return sorted((device["vendor"], device["model"], device["serial"])
                  for interface in content["interfaces"] for device in interface["devices"])
