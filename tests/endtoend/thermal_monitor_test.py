"""Follows the temperatures of a camera with the Thermal Monitor, and saves the result. Everything is done by mouse and
keyboard, on the installed programs."""

import json
import os
import sys
import tempfile

from launcher import BOUND, Launcher, keep_to_this_machine, wait_for
from simulator import SimulatorConfiguration
from tool import start_for

STAGE, PLUGINS = sys.argv[1:]


def check(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    assert document["format"] == "corvix-x-temperatures", document["format"]
    assert document["camera"]["vendor"] == "KORDANE", document["camera"]
    places = {place["place"]: place for place in document["result"]["places"]}
    assert sorted(places) == ["Mainboard", "Sensor"], places
    # The sensor of a simulated camera that works approaches 51 degrees.
    assert abs(places["Sensor"]["finalCelsius"] - 51) < 0.5, places


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as configuration, tempfile.TemporaryDirectory() as folder:
        # One camera with a small sensor is quick.
        configuration.keep(lambda device: device["serial"] == "K2300415", sensorWidth=640, sensorHeight=480)
        follow_temperatures(folder)
        check(f"{folder}/result.json")
        assert os.path.getsize(f"{folder}/result.csv") > 100


def follow_temperatures(folder):
    with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
        with start_for(launcher, "KORDANE", "Thermal Monitor", "ThermalMonitor") as monitor:
            wait_for("the final value of the sensor is known",
                     lambda: monitor.shows(lambda text: text.startswith(("Expected final value: 51", "Expected final value: 50.9"))),
                     4 * BOUND)
            monitor.activate()
            monitor.save_result(f"{folder}/result.json")


main()
