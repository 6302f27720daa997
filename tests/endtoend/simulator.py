"""Reads and changes the simulator configuration of an installation."""

import json
import os
import shutil


class SimulatorConfiguration:
    """Reads and writes the configuration file. The end of a with statement restores the original file."""

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
        """Replaces the file atomically, so that the simulator never reads an incomplete file."""
        with open(self.file + ".new", "w", encoding="utf-8") as file:
            json.dump(content, file)
        os.replace(self.file + ".new", self.file)

    def keep(self, is_kept, **changes):
        """Keeps the cameras for which is_kept(device) is true, and changes them: cameras with small sensors are quick."""
        content = self.read()
        for interface in content["interfaces"]:
            interface["devices"] = [{**device, **changes} for device in interface["devices"] if is_kept(device)]
        self.write(content)


def rows_of(content):
    """Returns the rows that the table shows for a simulator configuration, in sorted order."""
    return sorted((device["vendor"], device["model"], device["serial"])
                  for interface in content["interfaces"] for device in interface["devices"])
