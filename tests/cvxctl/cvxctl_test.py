"""Tests the sub-commands of cvxctl that take no images.

usage: cvxctl_test.py BUILD
"""

import json
import os
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
        self.assertIn("not a settings file", self.run_failing(1, "load", "1001", f"{self.root}/bin/CvxC.xml")[1])

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
