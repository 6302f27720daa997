"""Every camera picture comes from a drawing, and every drawing from the program that draws them."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

RESOURCES = pathlib.Path(__file__).resolve().parents[2] / "resources"


def drawings(folder):
    return {path.name: path.read_text(encoding="utf-8") for path in pathlib.Path(folder).glob("*.svg")}


class Drawings(unittest.TestCase):
    def test_the_drawings_are_what_the_program_draws(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, RESOURCES / "artwork/draw-cameras", folder], check=True)
            drawn, kept = drawings(folder), drawings(RESOURCES / "artwork/cameras")
        self.assertEqual(sorted(drawn), sorted(kept))
        self.assertEqual([], [name for name in drawn if drawn[name] != kept[name]])

    def test_every_picture_has_a_drawing(self):
        pictures = {path.stem for path in (RESOURCES / "images/cameras").iterdir()}
        self.assertEqual(pictures, {path.stem for path in (RESOURCES / "artwork/cameras").iterdir()})


if __name__ == "__main__":
    unittest.main()
