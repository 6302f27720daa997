"""Runs cvxctl on simulated cameras, from a copy of the installation whose simulator configuration the test owns. The last
argument of the program is the build directory."""

import contextlib
import fcntl
import json
import os
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import unittest

BUILD = sys.argv.pop()
LIMIT = 120  # Seconds; only a hang takes so long.


def camera(number, model, **keys):
    return {"id": f"SIM-{number}", "vendor": "Orvelle", "model": model, "serial": str(number), "sensorWidth": 320,
            "sensorHeight": 240, **keys}


CAMERAS = [camera(1001, "Kx200 5MP-M", userName="Left"), camera(1002, "Kx200 5MP-C", color=True),
           camera(2001, "Ilvo", userName="Right")]


class CvxctlCase(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = tempfile.mkdtemp()
        cls.addClassCleanup(shutil.rmtree, cls.root)
        os.makedirs(f"{cls.root}/bin")
        os.makedirs(f"{cls.root}/cti")
        for name in ("cvxctl", "CvxProducerHost", "CvxCameraHost", "CvxC.xml"):
            shutil.copy(f"{BUILD}/bin/{name}", f"{cls.root}/bin")
        for name in os.listdir(f"{BUILD}/bin"):
            if name.startswith("libCvxCPP.so"):
                shutil.copy(f"{BUILD}/bin/{name}", f"{cls.root}/bin", follow_symlinks=False)
        shutil.copy(f"{BUILD}/cti/CorvixCameraSimulator.cti", f"{cls.root}/cti")
        with open(f"{cls.root}/cti/CorvixCameraSimulator.json", "w", encoding="utf-8") as file:
            json.dump({"interfaces": [{"id": "Sim", "tlType": "GEV", "devices": CAMERAS}]}, file)
        cls.environment = {**os.environ, "XDG_RUNTIME_DIR": cls.root, "LC_ALL": "C.UTF-8"}
        cls.environment.pop("GENICAM_GENTL64_PATH", None)

    def start(self, *arguments, **options):
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options}
        process = subprocess.Popen([f"{self.root}/bin/cvxctl", *arguments], env=self.environment, text=True, **options)
        self.addCleanup(process.kill)  # After a failure; a recording would go on and keep the camera.
        return process

    def run_failing(self, status, *arguments):
        """Runs a command that has to end with this status, and returns its output and its messages."""
        process = self.start(*arguments)
        output, messages = process.communicate(timeout=LIMIT)
        self.assertEqual(process.returncode, status, output + messages)
        return output, messages

    def run_well(self, *arguments):
        output, messages = self.run_failing(0, *arguments)
        self.assertEqual(messages, "")
        return output

    def run_json(self, *arguments):
        return json.loads(self.run_well(*arguments, "--json"))

    @contextlib.contextmanager
    def power(self, number):
        """Keeps a camera on, so that its settings outlive a command: a camera that nobody uses loses them."""
        process = self.start("watch", str(number))
        self.assertIn("images", process.stdout.readline())
        with open(f"{self.root}/corvix-camera-SIM-{number}.Sim", "r+b") as file:
            user_lock = struct.pack("hhqqi4x", fcntl.F_RDLCK, os.SEEK_SET, 0, 1, 0)
            fcntl.fcntl(file, fcntl.F_OFD_SETLK, user_lock)
            process.send_signal(signal.SIGINT)
            process.communicate(timeout=LIMIT)
            yield
