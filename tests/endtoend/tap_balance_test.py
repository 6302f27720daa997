"""Measures and balances the taps of a camera with Tap Balance, and saves the result. Everything is done by mouse and
keyboard, on the installed programs."""

import json
import os
import sys
import tempfile

from launcher import Launcher, click, keep_to_this_machine, wait_for, xdotool
from simulator import SimulatorConfiguration
from tool import Tool

STAGE, PLUGINS = sys.argv[1:]


def start(launcher, title, name):
    """Starts a tool by its tile, for the selected camera."""
    xdotool("search", "--name", "^Corvix X - Application Launcher$", "windowactivate", "--sync")
    click(launcher.tiles()[title])
    return Tool(launcher, name)


def keep_one_camera(simulator):
    """Keeps the camera with four taps, which looks at an even surface: without a lens, everything is even."""
    content = simulator.read()
    for interface in content["interfaces"]:
        interface["devices"] = [device for device in interface["devices"] if device.get("taps") == 4]
    content["interfaces"] = [interface for interface in content["interfaces"] if interface["devices"]]
    simulator.write(content)


def check(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    assert document["format"] == "corvix-x-taps", document["format"]
    assert document["camera"]["vendor"] == "KORDANE", document["camera"]
    gain = document["result"]["gain"]
    assert gain["before"]["mismatch"] > 0.03, gain
    assert gain["after"]["mismatch"] < 0.005, gain
    assert len(gain["settings"]) == 4, gain


def choose_surface(tool):
    """Lets the simulated camera look at an even surface, by the camera's settings in the panel."""
    tool.click("Camera settings")


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as simulator, tempfile.TemporaryDirectory() as folder:
        keep_one_camera(simulator)
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            wait_for("the camera is listed", lambda: any(row[0] == "KORDANE" for row in launcher.rows()))
            click(launcher.cell("KORDANE"))
            wait_for("Tap Balance is enabled", lambda: "Tap Balance" in launcher.enabled_tools())
            with start(launcher, "Tap Balance", "TapBalance") as taps:
                taps.activate()
                taps.click("Measure the taps")
                wait_for("a moving scene is refused", lambda: taps.shows(lambda text: "The scene moves" in text))


main()
