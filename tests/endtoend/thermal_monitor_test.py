"""Follows the temperatures of a camera with the Thermal Monitor, and saves the result. Everything is done by mouse and
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


def check(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    assert document["format"] == "corvix-x-temperatures", document["format"]
    assert document["camera"]["vendor"] == "KORDANE", document["camera"]
    places = {place["place"]: place for place in document["result"]["places"]}
    assert sorted(places) == ["Mainboard", "Sensor"], places
    # The sensor of a simulated camera that works approaches 51 degrees.
    assert abs(places["Sensor"]["finalCelsius"] - 51) < 0.5, places


def use_one_camera(configuration):
    """Keeps one camera, with a small sensor, which is quick."""
    content = configuration.read()
    for interface in content["interfaces"]:
        interface["devices"] = [{**device, "sensorWidth": 640, "sensorHeight": 480} for device in interface["devices"]
                                if device["serial"] == "K2300415"]
    configuration.write(content)


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as configuration, tempfile.TemporaryDirectory() as folder:
        use_one_camera(configuration)
        follow_temperatures(folder)
        check(f"{folder}/result.json")
        assert os.path.getsize(f"{folder}/result.csv") > 100


def follow_temperatures(folder):
    with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
        wait_for("the cameras are listed", lambda: any(row[0] == "KORDANE" for row in launcher.rows()))
        click(launcher.cell("KORDANE"))
        wait_for("the Thermal Monitor is enabled", lambda: "Thermal Monitor" in launcher.enabled_tools())
        with start(launcher, "Thermal Monitor", "ThermalMonitor") as monitor:
            wait_for("the final value of the sensor is known",
                     lambda: monitor.shows(lambda text: text.startswith(("Expected final value: 51", "Expected final value: 50.9"))))
            monitor.activate()
            monitor.press("ctrl+s")
            wait_for("the file dialog is open", lambda: monitor.shows(lambda text: text.replace("&", "") == "Save"))
            monitor.press("ctrl+a")
            monitor.type(f"{folder}/result.json")
            monitor.press("Return")
            wait_for("the report is written", lambda: os.path.exists(f"{folder}/result.html"))


main()
