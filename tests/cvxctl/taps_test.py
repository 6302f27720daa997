"""Tests "cvxctl taps" on simulated cameras: one whose taps differ, and one without flaws."""

import json
import os
import unittest

import cvxctl_case
from cvxctl_case import CvxctlCase, camera

cvxctl_case.CAMERAS += [camera(3001, "HX-2040M", taps=4), camera(3002, "HX-2040M", taps=4, flaws=False)]
SURFACE = ("--set", "SceneTarget=FlatField", "--set", "PixelFormat=Mono12")
DARK = ("--dark-set", "SceneTarget=LensCap")


class TapsTest(CvxctlCase):
    def test_balancing_equals_the_taps_and_stays(self):
        path = f"{self.root}/taps.json"
        with self.power(3001):
            document = self.run_json("taps", "3001", *SURFACE, *DARK, "--balance", "--output", path)
            gain = document["result"]["gain"]
            self.assertEqual(document["format"], "corvix-x-taps")
            self.assertEqual(document["camera"]["serialNumber"], "3001")
            self.assertGreater(gain["before"]["mismatch"], 0.01)
            self.assertLess(gain["after"]["mismatch"], 0.005)
            self.assertEqual(self.run_json("get", "3001", "SceneTarget")["SceneTarget"], "Chart")
            # The camera has the new values, and another run finds nothing to do.
            again = self.run_json("taps", "3001", *SURFACE)["result"]["bright"]
            self.assertLess(again["mismatch"], 0.005)
        with open(path, encoding="utf-8") as file:
            self.assertEqual(json.load(file)["result"]["gain"], gain)
        with open(f"{self.root}/taps.csv", encoding="utf-8") as file:
            self.assertEqual(len(file.read().splitlines()), 5)
        os.remove(path)

    def test_measuring_changes_nothing(self):
        output = self.run_well("taps", "3002", *SURFACE, "--reference", "first", "--images", "4")
        self.assertRegex(output, r"mismatch: 0\.[01]\d\d %")
        self.assertIn("step from tap 3 to tap 4", output)

    def test_what_is_wrong_is_named(self):
        _, messages = self.run_failing(1, "taps", "3001")
        self.assertIn("Show an even surface", messages)  # The chart moves, and has edges at the borders.
        _, messages = self.run_failing(1, "taps", "1001", *SURFACE)
        self.assertIn("DeviceTapGeometry", messages)
        _, messages = self.run_failing(1, "taps", "1001", *SURFACE, "--layout", "2X_1Y", "--balance")
        self.assertIn("Tap2", messages)
        _, messages = self.run_failing(2, "taps", "3001", "--layout", "many")
        self.assertIn("4X_1Y", messages)
        _, messages = self.run_failing(2, "taps", "3001", *SURFACE, "--dark")
        self.assertIn("--dark-set", messages)


if __name__ == "__main__":
    unittest.main()
