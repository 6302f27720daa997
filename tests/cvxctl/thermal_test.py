"""Tests "cvxctl thermal" on simulated cameras. A camera that works approaches 51 degrees, one that rests has 32."""

import json
import os
import signal
import time
import unittest

import cvxctl_case
from cvxctl_case import LIMIT, CvxctlCase, camera

cvxctl_case.CAMERAS.append(camera(1003, "Kx400 1MP-M"))  # This model warms up with a time constant of about one minute.


class ThermalTest(CvxctlCase):
    def path(self, name):
        path = f"{self.root}/{name}"
        self.addCleanup(lambda: os.path.exists(path) and os.remove(path))
        return path

    def test_working_camera_approaches_its_final_value(self):
        output, log = self.path("result.json"), self.path("log.csv")
        self.path("result.csv")
        document = self.run_json("thermal", "1003", "--stream", "--seconds", "32", "--interval", "0.2", "--output", output,
                                 "--log", log)
        places = {place["place"]: place for place in document["result"]["places"]}
        self.assertEqual(sorted(places), ["Mainboard", "Sensor"])
        self.assertAlmostEqual(places["Sensor"]["finalCelsius"], 51, delta=0.5)
        self.assertAlmostEqual(places["Mainboard"]["celsius"], places["Sensor"]["celsius"] - 6, delta=1)
        with open(output, encoding="utf-8") as file:
            written = json.load(file)
        self.assertEqual(written["format"], "corvix-x-temperatures")
        self.assertEqual(written["camera"]["serialNumber"], "1003")
        self.assertEqual(len(written["history"]["places"][0]), places["Sensor"]["readings"])
        with open(log, encoding="utf-8") as file:
            lines = file.read().splitlines()
        self.assertEqual(len(lines), 1 + places["Sensor"]["readings"])
        self.assertEqual(lines[0], "time,Sensor [degC],Mainboard [degC],dark level,event")
        with open(self.path("result.csv"), encoding="utf-8") as file:
            self.assertIn('"Mainboard",', file.read())

    def test_thresholds_are_reported(self):
        output, messages = self.run_failing(0, "thermal", "1001", "--seconds", "1", "--warning", "20", "--alarm", "45")
        self.assertIn("Sensor: warning at 32.00 degC\n", messages)
        self.assertNotIn("alarm", messages)
        self.assertRegex(output, r"Sensor +32\.00 ")

    def test_dark_level_needs_a_lens_cap(self):
        _, messages = self.run_failing(0, "thermal", "1001", "--dark", "--seconds", "1")
        self.assertIn("The picture is not dark.", messages)
        with self.power(1001):
            output = self.run_well("thermal", "1001", "--dark", "--set", "SceneTarget=LensCap", "--set",
                                   "PixelFormat=Mono12", "--interval", "0.2", "--seconds", "3")
            self.assertRegex(output, r"dark level 6\d\.\d+ \+- 0\.0")
            self.assertEqual(self.run_well("get", "1001", "SceneTarget"), "Chart\n")
            self.assertEqual(self.run_well("get", "1001", "PixelFormat"), "Mono8\n")

    def test_missing_images_are_reported_once(self):
        _, messages = self.run_failing(0, "thermal", "1001", "--dark", "--set", "TriggerMode=On", "--interval", "0.5", "--seconds",
                                       "11")
        self.assertEqual(messages.count("The camera has sent no image, so the dark level cannot be measured."), 1, messages)

    def test_interruption_is_the_end_unless_an_end_was_named(self):
        for arguments, status in (([], 0), (["--until-steady"], 130), (["--stream"], 0)):
            log = self.path(f"log{len(arguments)}{status}.csv")
            process = self.start("thermal", "1001", "--log", log, *arguments)
            while not (os.path.exists(log) and os.path.getsize(log) > 80) and process.poll() is None:
                time.sleep(0.02)  # The first reading is in the file at once.
            process.send_signal(signal.SIGINT)
            output, messages = process.communicate(timeout=LIMIT)
            self.assertEqual(process.returncode, status, output + messages)
            self.assertIn("Mainboard", output)

    def test_camera_in_use_is_read_for_its_present_place(self):
        other = self.start("watch", "1001")
        self.assertIn("images", other.stdout.readline())
        output, messages = self.run_failing(0, "thermal", "1001", "--seconds", "1", "--json")
        places = json.loads(output)["result"]["places"]
        self.assertEqual([place["place"] for place in places], ["Sensor"])
        self.assertIn("present values of the selectors", messages)
        other.send_signal(signal.SIGINT)
        other.communicate(timeout=LIMIT)


unittest.main()
