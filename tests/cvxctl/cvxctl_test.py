"""Tests the sub-commands of cvxctl that need no file.

usage: cvxctl_test.py BUILD
"""

import json
import signal
import unittest

from cvxctl_case import LIMIT, CvxctlCase


class CvxctlTest(CvxctlCase):
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


unittest.main()
