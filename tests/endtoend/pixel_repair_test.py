"""Finds the defect pixels of a camera with Pixel Repair, saves the map, and takes a repaired picture with cvxctl.
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


def dark_values(*options):
    """Returns the values of a picture without light, line by line."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([f"{STAGE}/bin/cvxctl", "snapshot", CAMERA, f"{folder}/picture.tif", "--set", "SceneTarget=LensCap",
                        "--set", "PixelFormat=Mono8", *options], check=True)
        return subprocess.run(["convert-im6.q16", f"{folder}/picture.tif", "-depth", "8", "gray:-"],
                              check=True, stdout=subprocess.PIPE).stdout


def measure(tool, path):
    set_target(tool, "LensCap")
    tool.click("Take dark images")
    wait_for("the dark images are taken", lambda: tool.shows(lambda text: text.startswith("16 dark image")))
    set_target(tool, "FlatField")
    tool.click("Take bright images")
    wait_for("the defect pixels are known", lambda: tool.shows(lambda text: "defect pixel" in text and text.endswith("found.")))
    tool.press("ctrl+s")
    wait_for("the file dialog is open", lambda: tool.shows(lambda text: text.replace("&", "") == "Save"))
    tool.press("ctrl+a")
    tool.type(path)
    tool.press("Return")
    wait_for("the report is written", lambda: os.path.exists(path.replace(".json", ".html")))


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as simulator, tempfile.TemporaryDirectory() as folder:
        content = simulator.read()
        for interface in content["interfaces"]:
            interface["devices"] = [{**device, "sensorWidth": WIDTH, "sensorHeight": HEIGHT}
                                    for device in interface["devices"] if device["serial"] == CAMERA]
        simulator.write(content)
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            wait_for("the cameras are listed", lambda: any(row[0] == "KORDANE" for row in launcher.rows()))
            click(launcher.cell("KORDANE"))
            wait_for("Pixel Repair is enabled", lambda: "Pixel Repair" in launcher.enabled_tools())
            with start(launcher, "Pixel Repair", "PixelRepair") as tool:
                # The whole panel is visible.
                xdotool("windowsize", "--sync", tool.window, 1270, 1300)
                tool.activate()
                measure(tool, f"{folder}/map.json")
        with open(f"{folder}/map.json", encoding="utf-8") as file:
            document = json.load(file)
        assert document["camera"]["serialNumber"] == CAMERA, document["camera"]
        assert len(document["pixels"]) > 5, document["pixels"]
        # A white pixel in the dark stays one without the map.
        white = [y * WIDTH + x for x, y, kind, _ in document["pixels"] if kind == "stuck"]
        plain, repaired = dark_values(), dark_values("--correct", f"{folder}/map.json")
        assert max(plain[place] for place in white) == 255, [plain[place] for place in white]
        assert max(repaired[place] for place in white) < 20, [repaired[place] for place in white]


main()
