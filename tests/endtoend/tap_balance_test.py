"""Balances the taps of a camera with Tap Balance, and saves the result. Everything is done by mouse and keyboard, on the
installed programs."""

import json
import os
import sys
import tempfile

from launcher import Launcher, descendants, keep_to_this_machine, read_windows, wait_for, xdotool
from simulator import SimulatorConfiguration
from tool import start_for

STAGE, PLUGINS = sys.argv[1:]


def place_of(tool, text):
    """Returns the X window and the box of the label or button with this text."""
    return next(((window["xWindow"], window["box"], widget["box"]) for window in read_windows(tool.reader)
                 for widget in descendants(window) if widget["text"].replace("&", "") == text), None)


def scroll_to(tool, text):
    """Turns the mouse wheel over the panel until the label or button is inside the window."""
    def is_inside():
        window, (_, _, width, height), (_, y, _, high) = wait_for(f'"{text}" exists', lambda: place_of(tool, text))
        if 60 < y and y + high < height - 40:
            return True
        xdotool("mousemove", "--window", window, width - 8, height // 2, "click", 5 if y > 60 else 4)
        return False
    wait_for(f'"{text}" is inside the window', is_inside)


def press_button(tool, text):
    scroll_to(tool, text)
    tool.click(text)


def show_surface(tool):
    """Lets the simulated camera look at an even surface, by its settings in the panel."""
    if not place_of(tool, "SceneTarget"):
        press_button(tool, "Camera settings")
    scroll_to(tool, "SceneTarget")
    window, _, (x, y, _, height) = place_of(tool, "SceneTarget")
    xdotool("mousemove", "--window", window, x + 180, y + height // 2, "click", 1)
    tool.type("Flat")
    tool.press("Return")


def check(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    assert document["format"] == "corvix-x-taps", document["format"]
    assert document["camera"]["vendor"] == "KORDANE", document["camera"]
    gain = document["result"]["gain"]
    assert gain["before"]["mismatch"] > 0.03, gain
    assert gain["after"]["mismatch"] < 0.005, gain
    assert len(gain["settings"]) == 4, gain


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as configuration, tempfile.TemporaryDirectory() as folder:
        # The camera with four taps is quick with a small sensor.
        configuration.keep(lambda device: device.get("taps") == 4, model="HX-2960M-4Tap", sensorWidth=640, sensorHeight=320)
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            with start_for(launcher, "KORDANE", "Tap Balance", "TapBalance") as taps:
                taps.activate()
                press_button(taps, "Measure the taps")
                wait_for("the chart is refused", lambda: taps.shows(lambda text: "Show an even surface" in text))
                show_surface(taps)
                press_button(taps, "Measure the taps")
                wait_for("the taps are measured", lambda: taps.shows(lambda text: text.startswith("The taps differ by up to")))
                press_button(taps, "Skip this step")
                press_button(taps, "Balance the gains")
                wait_for("the gains are balanced", lambda: taps.shows(lambda text: text.startswith("The mismatch fell from")))
                taps.save_result(f"{folder}/result.json")
            check(f"{folder}/result.json")
            assert os.path.getsize(f"{folder}/result.csv") > 100


main()
