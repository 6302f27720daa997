"""The simulator's scene file in an installation, which is put back when a test is done with it."""

import json
import os
import shutil


class Scene:
    """To be used in a with statement."""

    def __init__(self, stage):
        self.file = f"{stage}/cti/CorvixCameraSimulator.json"
        self.pristine = f"{self.file}.pristine"

    def __enter__(self):
        shutil.copy(self.file, self.pristine)
        return self

    def __exit__(self, *_):
        os.replace(self.pristine, self.file)

    def read(self):
        with open(self.file, encoding="utf-8") as file:
            return json.load(file)

    def write(self, content):
        """In one go: the simulator sees the old scene or the new one."""
        with open(self.file + ".new", "w", encoding="utf-8") as file:
            json.dump(content, file)
        os.replace(self.file + ".new", self.file)

    def with_camera(self, model, serial):
        """The scene with one camera more, as something to write."""
        content = self.read()
        content["interfaces"][0]["devices"].append(
            {"id": serial, "vendor": "Orvelle", "model": model, "serial": serial})
        return content
