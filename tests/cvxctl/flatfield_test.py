"""Tests "cvxctl flatfield" on simulated cameras, which have shading and pixels of different sensitivity."""

import json
import os
import subprocess
import unittest

from cvxctl_case import LIMIT, CvxctlCase

DARK = ("--dark-set", "SceneTarget=LensCap")
BRIGHT = ("--bright-set", "SceneTarget=FlatField")


class FlatFieldTest(CvxctlCase):
    def path(self, name):
        path = f"{self.root}/{name}"
        for file in (path, f"{path}.json"):
            self.addCleanup(lambda file=file: os.path.exists(file) and os.remove(file))
        return path

    def measure(self, *arguments):
        """Measures and returns the result. Warnings are allowed."""
        output, _ = self.run_failing(0, "flatfield", *arguments, *DARK, *BRIGHT, "--expose", "--images", "16", "--json")
        return json.loads(output)["result"]

    def test_shading_falls_below_one_percent(self):
        for camera, pixel_format in (("1001", "Mono12"), ("1001", "Mono8"), ("1002", "BayerRG12p"), ("2001", "Mono12")):
            with self.subTest(camera=camera, pixel_format=pixel_format):
                result = self.measure(camera, self.path("field.tif"), "--set", f"PixelFormat={pixel_format}")
                self.assertEqual(result["pixelFormat"], pixel_format)
                self.assertGreater(result["before"]["shading"], 0.03)
                self.assertLess(result["after"]["shading"], 0.01)
                self.assertAlmostEqual(result["before"]["pixelPrnu"], 0.005, delta=0.001)
                self.assertAlmostEqual(result["brightShare"], 0.7, delta=0.05)

    def test_correction_is_applied_to_snapshots(self):
        field = self.path("field.tif")
        result = self.measure("1001", field)
        with open(f"{field}.json", encoding="utf-8") as file:
            written = json.load(file)
        self.assertEqual(written["format"], "corvix-x-flat-field-report")
        self.assertEqual(written["camera"]["serialNumber"], "1001")
        self.assertEqual(written["result"], result)
        before, after = (self.shading(*options) for options in ((), ("--correct", field)))
        self.assertGreater(before, 0.05)
        self.assertLess(after, 0.02)

    def shading(self, *options):
        """Returns the shading of a snapshot: highest minus lowest of 8 x 8 areas, relative to the mean."""
        picture = self.path("picture.tif")
        self.run_well("snapshot", "1001", picture, "--set", "SceneTarget=FlatField", *options)
        areas = subprocess.run(["convert-im6.q16", picture, "-scale", "8x8!", "-depth", "16", "gray:-"], check=True,
                               stdout=subprocess.PIPE).stdout
        levels = [int.from_bytes(areas[i:i + 2], "little") for i in range(0, len(areas), 2)]
        return (max(levels) - min(levels)) / (sum(levels) / len(levels))

    def test_settings_are_put_back(self):
        with self.power(1001):
            before = self.run_well("get", "1001", "ExposureTime")
            self.run_well("set", "1001", "Gamma=0.5")
            result = self.measure("1001", self.path("field.tif"))
            self.assertIn("Gamma=1", result["dark"]["changedForTheMeasurement"])
            self.assertEqual(self.run_well("get", "1001", "ExposureTime"), before)
            self.assertEqual(float(self.run_well("get", "1001", "Gamma")), 0.5)
            self.assertEqual(self.run_well("get", "1001", "SceneTarget"), "Chart\n")

    def test_wrong_references_are_refused(self):
        field = self.path("field.tif")
        for dark, bright, sentence in (("FlatField", "FlatField", "Cover the lens"), ("LensCap", "LensCap", "too dark"),
                                       ("LensCap", "Chart", "something moves")):
            _, messages = self.run_failing(1, "flatfield", "1001", field, "--dark-set", f"SceneTarget={dark}", "--bright-set",
                                           f"SceneTarget={bright}", "--images", "16")
            self.assertIn(sentence, messages)
            self.assertFalse(os.path.exists(field))

    def test_question_needs_a_terminal(self):
        process = self.start("flatfield", "1001", self.path("field.tif"), *DARK, stdin=subprocess.DEVNULL)
        _, messages = process.communicate(timeout=LIMIT)
        self.assertEqual(process.returncode, 2)
        self.assertIn("--bright-set", messages)


unittest.main()
