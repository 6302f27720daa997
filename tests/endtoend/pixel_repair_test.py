"""Finds the defect pixels of a camera with Pixel Repair, saves the map, and repairs the pictures of the Image Viewer.
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


def measure(tool, path):
    tool.choose_target("LensCap")
    tool.click("Take dark images")
    wait_for("the dark images are taken", lambda: tool.shows(lambda text: text.startswith("16 dark image")))
    tool.choose_target("FlatField")
    tool.click("Take bright images")
    wait_for("the defect pixels are known", lambda: tool.shows(lambda text: "defect pixel" in text and text.endswith("found.")))
    tool.save_result(path)


def repair(viewer, path):
    def contrast():
        pixels = viewer.shown_pixels(WIDTH - 8, HEIGHT - 8)
        return max(pixels) - min(pixels)
    wait_for("defect pixels are white and black on the even surface", lambda: contrast() > 200)
    correct_pictures(viewer, "d", path)
    wait_for("no defect pixel is visible", lambda: 0 < contrast() < 100)


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as simulator, tempfile.TemporaryDirectory() as folder:
        simulator.keep(lambda device: device["serial"] == CAMERA, sensorWidth=WIDTH, sensorHeight=HEIGHT)
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            with start_for(launcher, "KORDANE", "Pixel Repair", "PixelRepair") as tool:
                # The whole panel is visible.
                xdotool("windowsize", "--sync", tool.window, 1270, 1300)
                tool.activate()
                measure(tool, f"{folder}/map.json")
                with watch(launcher) as viewer:
                    repair(viewer, f"{folder}/map.json")
        with open(f"{folder}/map.json", encoding="utf-8") as file:
            document = json.load(file)
        assert document["camera"]["serialNumber"] == CAMERA, document["camera"]
        assert len(document["pixels"]) > 5, document["pixels"]


main()
