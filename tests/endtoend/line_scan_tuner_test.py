"""Tunes a line scan camera with the Line Scan Tuner: writes a wrong line rate, measures a round target, corrects the rate,
and saves the result. Everything is done by mouse and keyboard, on the installed programs."""

import json
import os
import sys
import tempfile

from launcher import Launcher, keep_to_this_machine, wait_for
from simulator import SimulatorConfiguration
from tool import start_for

STAGE, PLUGINS = sys.argv[1:]
VENDOR = "Lintaro"


def enter(tuner, key, number):
    """Types a number into the field that Alt and the key reach."""
    tuner.press(key, "ctrl+a")
    tuner.type(number)
    tuner.press("Tab")


def perform(tuner, step):
    """Performs the present step with the keyboard, as soon as its button can be used."""
    wait_for(f'"{step}" can be used', lambda: any(widget["enabled"] for widget in tuner.widgets()
                                                  if widget["text"].replace("&", "") == step))
    tuner.press("ctrl+Return")


def check(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    assert document["format"] == "corvix-x-linescan", document["format"]
    assert document["camera"]["vendor"] == VENDOR, document["camera"]
    result = document["result"]
    # One line of the simulated object is 10 µm, and it moves at 100 mm/s.
    assert abs(result["before"]["heightToWidth"] - 1.08) < 0.01, result["before"]
    assert abs(result["after"]["heightToWidth"] - 1) < 0.01, result["after"]
    assert [setting["name"] for setting in result["written"]] == ["AcquisitionLineRate"] * 2, result["written"]
    assert abs(result["written"][-1]["value"] - 10000) < 100, result["written"]


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as configuration, tempfile.TemporaryDirectory() as folder:
        # With fewer pixels, a picture is complete soon on a slow machine, too.
        configuration.keep(lambda device: device["vendor"] == VENDOR, sensorWidth=640)
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            with start_for(launcher, VENDOR, "Line Scan Tuner", "LineScanTuner") as tuner:
                wait_for("a target is found in the live picture",
                         lambda: tuner.shows(lambda text: text == "The target in the live picture is round."))
                tuner.activate()
                enter(tuner, "alt+s", "108")
                enter(tuner, "alt+x", "10")
                enter(tuner, "alt+g", "1")
                wait_for("the plan is shown", lambda: tuner.shows(lambda text: text == "10.800 kHz"))
                perform(tuner, "Write the settings")
                wait_for("the settings are written",
                         lambda: tuner.shows(lambda text: text == "The camera has accepted the settings."))
                perform(tuner, "Measure")
                wait_for("the circle is too tall",
                         lambda: tuner.shows(lambda text: "too tall: lower the line rate from 10.800 kHz" in text))
                perform(tuner, "Correct the rate")
                wait_for("the circle is round", lambda: tuner.shows(lambda text: "The circle is round" in text))
                tuner.save_result(f"{folder}/result.json")
        check(f"{folder}/result.json")
        assert os.path.getsize(f"{folder}/result.csv") > 100


main()
