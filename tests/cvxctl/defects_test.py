"""Tests "cvxctl defects" on simulated cameras."""

import json
import os
import subprocess
import unittest

from cvxctl_case import LIMIT, CvxctlCase

GOOD = ("--dark-set", "SceneTarget=LensCap", "--bright-set", "SceneTarget=FlatField")


class DefectsTest(CvxctlCase):
    def path(self, name):
        path = f"{self.root}/{name}"
        self.addCleanup(lambda: os.path.exists(path) and os.remove(path))
        return path

    def test_map_is_measured_and_applied(self):
        file, table, picture = self.path("map.json"), self.path("map.csv"), self.path("picture.tif")
        self.path("picture.tif.json")
        with self.power(1001):
            result = self.run_json("defects", "1001", file, "--csv", table, "--images", "8", *GOOD)
            self.assertEqual(self.run_well("get", "1001", "SceneTarget"), "Chart\n")
        self.assertEqual(result["examinedPixels"], 320 * 240)
        self.assertGreater(result["defects"], 0)
        self.assertEqual(sum(result["kinds"].values()), result["defects"])
        with open(file, encoding="utf-8") as stream:
            document = json.load(stream)
        self.assertEqual(document["format"], "corvix-x-defect-map")
        self.assertEqual(document["camera"]["serialNumber"], "1001")
        self.assertEqual(document["measurement"], result)
        self.assertEqual(len(document["pixels"]), result["defects"])
        with open(table, encoding="utf-8") as stream:
            self.assertEqual(len(stream.read().splitlines()), 1 + result["defects"])
        self.run_well("snapshot", "1001", picture, "--correct", file)

    def test_threshold_decides(self):
        counts = [self.run_json("defects", "1001", self.path("map.json"), "--images", "8", "--threshold", threshold, *GOOD)
                  ["defects"] for threshold in ("6", "100")]
        self.assertGreater(counts[0], counts[1])

    def test_wrong_images_are_explained(self):
        for name, arguments, message in (
                ("light", ("--dark-set", "SceneTarget=FlatField", "--bright-set", "SceneTarget=FlatField"), "Cover the lens"),
                ("dark", ("--dark-set", "SceneTarget=LensCap", "--bright-set", "SceneTarget=LensCap"), "too dark"),
                ("format", (*GOOD, "--set", "PixelFormat=RGB8"), "Choose a pixel format")):
            with self.subTest(name):
                camera = "1002" if name == "format" else "1001"
                file = self.path("map.json")
                _, messages = self.run_failing(1, "defects", camera, file, "--images", "8", *arguments)
                self.assertIn(message, messages)
                self.assertFalse(os.path.exists(file))

    def test_nobody_can_be_asked_without_a_terminal(self):
        process = self.start("defects", "1001", self.path("map.json"), stdin=subprocess.DEVNULL)
        _, messages = process.communicate(timeout=LIMIT)
        self.assertEqual(process.returncode, 2)
        self.assertIn("--dark-set", messages)


unittest.main()
