"""Measures the shading of a camera with Flat Field, saves the correction, and corrects the pictures of the Image Viewer.
Everything in the window is done by mouse and keyboard, on the installed programs."""

import json
import sys
import tempfile

from launcher import Launcher, keep_to_this_machine, wait_for, xdotool
from simulator import SimulatorConfiguration
from tool import start_for
from viewer import correct_pictures, watch

STAGE, PLUGINS = sys.argv[1:]
CAMERA = "K2300415"
WIDTH, HEIGHT = 640, 512


def shading(viewer):
    """Returns the shading of the shown picture: highest minus lowest of 8 x 8 areas, relative to the mean."""
    columns, rows = WIDTH // 8, HEIGHT // 8
    pixels = viewer.shown_pixels(8 * columns, 8 * rows)
    assert len(pixels) == 64 * columns * rows, len(pixels)
    levels = [sum(sum(pixels[(y * rows + row) * 8 * columns + x * columns:][:columns]) for row in range(rows))
              for y in range(8) for x in range(8)]
    return (max(levels) - min(levels)) / (sum(levels) / len(levels)) if min(levels) > 0 else 0


def measure(tool, folder):
    tool.activate()
    tool.choose_target("LensCap")
    tool.click("Take dark images")
    wait_for("the dark images are taken", lambda: tool.shows(lambda text: text.startswith("The dark images were taken.")))
    tool.choose_target("FlatField")
    tool.click("Take bright images")
    wait_for("the shading is known", lambda: tool.shows(lambda text: text.startswith("The correction reduces the shading")))
    tool.save_result(f"{folder}/field.tif")


def correct(viewer, path):
    wait_for("the shading is visible", lambda: shading(viewer) > 0.05)
    correct_pictures(viewer, "f", path)
    wait_for("the shading is corrected", lambda: shading(viewer) < 0.02)


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as simulator, tempfile.TemporaryDirectory() as folder:
        simulator.keep(lambda device: device["serial"] == CAMERA, sensorWidth=WIDTH, sensorHeight=HEIGHT)
        # The panel is shown without scrolling.
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            with start_for(launcher, "KORDANE", "Flat Field", "FlatField") as tool:
                xdotool("windowsize", "--sync", tool.window, 1270, 1300)
                measure(tool, folder)
                with watch(launcher) as viewer:
                    correct(viewer, f"{folder}/field.tif")
        with open(f"{folder}/field.json", encoding="utf-8") as file:
            document = json.load(file)
        assert document["format"] == "corvix-x-flat-field-report", document["format"]
        assert document["result"]["after"]["shading"] < 0.01, document["result"]["after"]["shading"]


main()
