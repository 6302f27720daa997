"""Measures the shading of a camera with Flat Field, saves the correction, and takes a corrected picture with cvxctl.
Everything in the window is done by mouse and keyboard, on the installed programs."""

import json
import os
import subprocess
import sys
import tempfile

from launcher import Launcher, click, keep_to_this_machine, wait_for, xdotool
from simulator import SimulatorConfiguration
from tool import Tool

STAGE, PLUGINS = sys.argv[1:]
CAMERA = "K2300415"
WIDTH, HEIGHT = 640, 512


def start(launcher, title, name):
    """Starts a tool by its tile, for the selected camera."""
    xdotool("search", "--name", "^Corvix X - Application Launcher$", "windowactivate", "--sync")
    click(launcher.tiles()[title])
    return Tool(launcher, name)


def set_target(tool, name):
    """Chooses what the simulated camera looks at, in the camera settings of the panel, by the first letter."""
    def box():
        return next((widget for widget in tool.widgets()
                     if widget["class"] == "QComboBox" and widget["accessibleName"] == "SceneTarget" and widget["enabled"]), None)
    x, y, width, height = wait_for("the target can be chosen", box)["box"]
    xdotool("mousemove", "--window", tool.window, x + width // 2, y + height // 2, "click", 1)
    tool.press(name[0], "Return")


def shading(*options):
    """Returns the shading of a picture of an even surface: highest minus lowest of 8 x 8 areas, relative to the mean."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([f"{STAGE}/bin/cvxctl", "snapshot", CAMERA, f"{folder}/picture.tif", "--set", "SceneTarget=FlatField",
                        *options], check=True)
        areas = subprocess.run(["convert-im6.q16", f"{folder}/picture.tif", "-colorspace", "Gray", "-scale", "8x8!",
                                "-depth", "16", "gray:-"], check=True, stdout=subprocess.PIPE).stdout
    levels = [int.from_bytes(areas[i:i + 2], "little") for i in range(0, len(areas), 2)]
    assert len(levels) == 64, len(levels)
    return (max(levels) - min(levels)) / (sum(levels) / len(levels))


def measure(tool, folder):
    tool.activate()
    set_target(tool, "LensCap")
    tool.click("Take dark images")
    wait_for("the dark images are taken", lambda: tool.shows(lambda text: text.startswith("The dark images were taken.")))
    set_target(tool, "FlatField")
    tool.click("Take bright images")
    wait_for("the shading is known", lambda: tool.shows(lambda text: text.startswith("The correction reduces the shading")))
    tool.press("ctrl+s")
    wait_for("the file dialog is open", lambda: tool.shows(lambda text: text.replace("&", "") == "Save"))
    tool.press("ctrl+a")
    tool.type(f"{folder}/field.tif")
    tool.press("Return")
    wait_for("the report is written", lambda: os.path.exists(f"{folder}/field.html"))


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as simulator, tempfile.TemporaryDirectory() as folder:
        content = simulator.read()
        for interface in content["interfaces"]:
            interface["devices"] = [{**device, "sensorWidth": WIDTH, "sensorHeight": HEIGHT}
                                    for device in interface["devices"] if device["serial"] == CAMERA]
        simulator.write(content)
        # The panel is shown without scrolling.
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            wait_for("the cameras are listed", lambda: any(row[0] == "KORDANE" for row in launcher.rows()))
            click(launcher.cell("KORDANE"))
            wait_for("Flat Field is enabled", lambda: "Flat Field" in launcher.enabled_tools())
            with start(launcher, "Flat Field", "FlatField") as tool:
                xdotool("windowsize", "--sync", tool.window, 1270, 1300)
                measure(tool, folder)
        with open(f"{folder}/field.json", encoding="utf-8") as file:
            document = json.load(file)
        assert document["format"] == "corvix-x-flat-field-report", document["format"]
        assert document["result"]["after"]["shading"] < 0.01, document["result"]["after"]["shading"]
        before, after = shading(), shading("--correct", f"{folder}/field.tif")
        assert before > 0.05 and after < 0.02, (before, after)


main()
