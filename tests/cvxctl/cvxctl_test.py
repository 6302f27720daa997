"""Runs cvxctl on simulated cameras, from a copy of the installation whose simulator configuration the test owns.

usage: cvxctl_test.py BUILD
"""

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
import zlib

BUILD = sys.argv.pop()
LIMIT = 120  # Seconds; only a hang takes so long.


def camera(number, model, **keys):
    return {"id": f"SIM-{number}", "vendor": "Orvelle", "model": model, "serial": str(number), "sensorWidth": 320,
            "sensorHeight": 240, **keys}


CAMERAS = [camera(1001, "Kx200 5MP-M", userName="Left"), camera(1002, "Kx200 5MP-C", color=True),
           camera(2001, "Ilvo", userName="Right")]


def png_pixels(path):
    """Returns width, height and the bytes per pixel of a PNG file, after checking that its data is complete."""
    with open(path, "rb") as file:
        data = file.read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    width, height, depth, color = struct.unpack(">IIBB", data[16:26])
    assert depth == 8
    channels = {0: 1, 2: 3}[color]
    position, packed = 8, b""
    while position < len(data):
        length, kind = struct.unpack(">I4s", data[position:position + 8])
        packed += data[position + 8:position + 8 + length] if kind == b"IDAT" else b""
        position += length + 12
    assert len(zlib.decompress(packed)) == height * (1 + channels * width)
    return width, height, channels


class CvxctlTest(unittest.TestCase):
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
        return subprocess.Popen([f"{self.root}/bin/cvxctl", *arguments], env=self.environment, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)

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

    def test_list(self):
        listed = self.run_json("list")
        self.assertEqual([(entry["id"], entry["userName"], entry["type"]) for entry in listed],
                         [("SIM-1001", "Left", "GigE"), ("SIM-1002", "", "GigE"), ("SIM-2001", "Right", "GigE")])
        self.assertRegex(self.run_well("list"), r"(?m)^SIM-1001 +Kx200 5MP-M +1001 +Left +GigE$")

    def test_camera_is_found_by_each_of_its_names(self):
        for name in ("SIM-1001", "1001", "left", "Kx200 5MP-M", "CorvixCameraSimulator.cti/Sim/SIM-1001"):
            self.assertEqual(self.run_well("get", name, "DeviceSerialNumber"), "1001\n")

    def test_ambiguous_or_unknown_name(self):
        _, messages = self.run_failing(4, "info", "Kx200")
        self.assertIn("Sim/SIM-1001", messages)
        self.assertIn("Sim/SIM-1002", messages)
        self.assertNotIn("SIM-2001", messages)
        self.assertIn("cvxctl list", self.run_failing(3, "info", "nothing")[1])

    def test_wrong_command_line(self):
        for arguments in ((), ("unknown",), ("set", "1001", "Width"), ("watch", "1001", "--buffers", "1")):
            self.run_failing(2, *arguments)

    def test_info(self):
        info = self.run_json("info", "1001")
        self.assertEqual((info["DeviceModelName"], info["SensorWidth"]), ("Kx200 5MP-M", "320"))
        self.assertGreater(int(info["features"]), 50)
        self.assertIn("DeviceSerialNumber", self.run_well("info", "1001"))

    def test_features(self):
        features = {entry["name"]: entry for entry in self.run_json("features", "1001", "--level", "guru")}
        width = features["Width"]
        self.assertEqual((width["category"], width["type"], width["access"], width["value"], width["maximum"]),
                         ("ImageFormatControl", "integer", "RW", 320, 320))
        self.assertIn("Mono8", features["PixelFormat"]["entries"])
        some = self.run_json("features", "1001", "--category", "AcquisitionControl")
        self.assertEqual({entry["category"] for entry in some}, {"AcquisitionControl"})
        self.assertRegex(self.run_well("features", "1001"), r"(?m)^  Width +RW +320 ")
        self.run_failing(7, "features", "1001", "--category", "Nothing")

    def test_set_and_get(self):
        self.assertEqual(self.run_json("set", "2001", "ExposureTime=1500", "Width=64"),
                         {"ExposureTime": 1500.0, "Width": 64})
        for arguments, expected in ((("Width=20000",), "Width"), (("NoFeature=1",), "NoFeature"),
                                    (("PixelFormat=None",), "PixelFormat"), (("Width=many",), "Width")):
            self.assertIn(expected, self.run_failing(7, "set", "2001", *arguments)[1])
        self.assertIn("NoFeature", self.run_failing(7, "get", "2001", "Width", "NoFeature")[1])

    def test_save_change_load_compare(self):
        with self.power(1001):
            self.check_save_change_load_compare()

    def check_save_change_load_compare(self):
        path = f"{self.root}/left.txt"
        self.assertRegex(self.run_well("save", "1001", path), r"^\d+ settings saved\n$")
        with open(path, encoding="utf-8") as file:
            lines = file.read().splitlines()
        self.assertEqual(lines[0], "# {05D8C294-F295-4dfb-9D01-096BD04049F4}")
        for line in ("Width\t320", "TriggerSelector\tFrameStart", "ReverseX\t0"):
            self.assertIn(line, lines)
        self.assertEqual([name for name in os.listdir(self.root) if name.endswith(".part")], [])
        self.assertIn("0 of", self.run_well("compare", "1001", path))

        self.run_well("set", "1001", "OffsetX=0", "Width=160", "OffsetX=100", "TriggerSelector=AcquisitionStart",
                      "TriggerMode=On", "ExposureTime=1234.5", "ExposureAuto=Continuous", "ReverseX=true")
        output, _ = self.run_failing(9, "compare", path, "1001", "--json")
        differences = {entry["name"]: entry for entry in json.loads(output)}
        self.assertEqual((differences["Width"]["left"], differences["Width"]["right"]), ("320", "160"))
        self.assertEqual(differences["TriggerMode"]["selectors"], {"TriggerSelector": "AcquisitionStart"})

        plan = self.run_well("load", "1001", path, "--dry-run")
        self.assertRegex(plan, r"(?m)^Width: 160 -> 320$")
        self.assertEqual(self.run_well("get", "1001", "Width"), "160\n")
        output = self.run_well("load", "1001", path)
        self.assertRegex(output, r"(?m)^TriggerMode \[TriggerSelector=AcquisitionStart\]: On -> Off$")
        self.assertRegex(output, r"(?m) 0 failed$")
        self.assertEqual(self.run_well("get", "1001", "TriggerSelector"), "AcquisitionStart\n")
        self.run_well("compare", path, "1001")
        self.assertRegex(self.run_well("compare", path, "1001", "--all"), r"(?m)^  Width +320 +320 +\(equal\)$")

    def test_load_file_of_another_program(self):
        with self.power(1002):
            self.check_load_file_of_another_program()

    def check_load_file_of_another_program(self):
        path = f"{self.root}/other"
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write("\ufeff# {05D8C294-F295-4dfb-9D01-096BD04049F4}\r\n# GenApi persistence file\r\n"
                       "Width   160\r\nOffsetX   100\r\nExposureTime\t12,5\r\nNoFeature\t1\r\nrubbish\r\n"
                       "Gain\t{GainSelector=All}\t3\r\nOffsetX\t60000\r\n")
        output, messages = self.run_failing(7, "load", "1002", path)
        self.assertEqual(self.run_well("get", "1002", "Width", "ExposureTime", "Gain"),
                         "Width=160\nExposureTime=12.5\nGain=3\n")
        self.assertEqual([line.split(": ")[1] for line in messages.splitlines()],
                         [f"{path}:7", f"{path}:6", f"{path}:9"])
        self.run_well("set", "1002", "OffsetX=0", "Width=320", "ExposureTime=1000")
        self.assertIn("Nothing was changed", self.run_failing(7, "load", "1002", path, "--all-or-nothing")[0])
        with open(path, "w", encoding="utf-8") as file:
            file.write("# {05D8C294-F295-4dfb-9D01-096BD04049F4}\nWidth 160\nOffsetX 60000\n")
        output, _ = self.run_failing(7, "load", "1002", path, "--all-or-nothing", "--json")
        self.assertTrue(json.loads(output)["restored"])
        self.assertEqual(self.run_well("get", "1002", "Width"), "320\n")

    def test_settings_of_a_camera_in_use(self):
        process = self.start("watch", "2001")
        self.assertIn("images", process.stdout.readline())
        path = f"{self.root}/watched.txt"
        output, messages = self.start("save", "2001", path).communicate(timeout=LIMIT)
        self.assertIn("settings saved", output)
        self.assertIn("TriggerSelector", messages)
        self.run_failing(5, "load", "2001", path)
        process.send_signal(signal.SIGINT)
        process.communicate(timeout=LIMIT)

    def test_compare_finds_files_and_cameras(self):
        names = [entry["name"] for entry in json.loads(self.run_failing(9, "compare", "1001", "1002", "--json")[0])]
        self.assertIn("BalanceRatio", names)
        camera_id = "CorvixCameraSimulator.cti/Sim/SIM-1001"
        self.run_well("compare", camera_id, "1001")
        self.assertIn("missing.txt", self.run_failing(1, "compare", "missing.txt", "1001")[1])
        path = f"{self.root}/1001"
        self.run_well("save", "1001", path)
        process = self.start("compare", "1001", "1001", cwd=self.root)
        self.assertIn("./1001", process.communicate(timeout=LIMIT)[1])
        self.assertEqual(process.returncode, 4)
        self.run_well("compare", path, "1001")
        self.assertIn("not a settings file", self.run_failing(1, "load", "1001", f"{self.root}/bin/cvxctl")[1])

    def test_run(self):
        self.run_well("run", "1001", "TimestampLatch")
        self.assertIn("Width", self.run_failing(7, "run", "1001", "Width")[1])

    def test_watch(self):
        lines = self.run_well("watch", "1001", "--seconds", "1.5", "--json").splitlines()
        last = json.loads(lines[-1])
        self.assertGreater(last["images"], 0)
        self.assertEqual((last["incomplete"], last["reopened"]), (0, 0))
        self.assertEqual(last["bytes"], last["images"] * 320 * 240)

    def test_interrupted_watch_ends_well_and_unlocks_the_camera(self):
        process = self.start("watch", "1001")
        self.assertIn("images", process.stdout.readline())
        self.run_failing(5, "set", "1001", "Width=64")
        process.send_signal(signal.SIGINT)
        _, messages = process.communicate(timeout=LIMIT)
        self.assertEqual((process.returncode, messages), (0, ""))
        self.run_well("set", "1001", "Width=320")

    def test_snapshot(self):
        for name, serial, expected in (("grey.png", "1001", (320, 240, 1)), ("colour.png", "1002", (320, 240, 3))):
            path = f"{self.root}/{name}"
            self.run_well("snapshot", serial, path)
            self.assertEqual(png_pixels(path), expected)
        path = f"{self.root}/image.raw"
        taken = self.run_json("snapshot", "1001", path)
        self.assertEqual((taken["width"], taken["bytes"], os.path.getsize(path)), (320, 320 * 240, 320 * 240))
        self.assertIn("/missing/", self.run_failing(1, "snapshot", "1001", "/missing/a.png")[1])


unittest.main()
