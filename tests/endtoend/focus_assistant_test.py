"""Searches the best focus of a camera with the Focus Assistant, and saves the result. Everything is done by mouse and
keyboard, on the installed programs."""

import json
import os
import sys
import tempfile

from launcher import BOUND, Launcher, keep_to_this_machine, soon, wait_for
from simulator import SimulatorConfiguration
from tool import start_for

STAGE, PLUGINS = sys.argv[1:]


def use_small_camera(configuration):
    """Keeps one small area scan camera, which is quick."""
    content = configuration.read()
    for interface in content["interfaces"]:
        interface["devices"] = []
    content["interfaces"][0]["devices"] = [
        {"id": "SIM-1", "vendor": "KORDANE", "model": "HXT-15110M-CXP", "serial": "1", "sensorWidth": 480, "sensorHeight": 384}]
    configuration.write(content)


def search(assistant):
    """Clicks the button of the search. Returns whether the search has started: the live numbers may move the button away
    from the pointer."""
    assistant.click("Search automatically")
    return soon(lambda: assistant.shows(lambda text: text == "Cancel"), 5)


def check(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    assert document["format"] == "corvix-x-focus", document["format"]
    assert document["camera"]["vendor"] == "KORDANE", document["camera"]
    result = document["result"]
    assert result["lens"] == "LensFocusPosition", result["lens"]
    assert 465 < result["analysis"]["best"] < 535, result["analysis"]  # Simulated lenses are sharp near 500.
    assert len(result["regions"]) == 25, result["regions"]


def main():
    keep_to_this_machine(STAGE)
    with SimulatorConfiguration(STAGE) as configuration, tempfile.TemporaryDirectory() as folder:
        use_small_camera(configuration)
        with Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
            with start_for(launcher, "KORDANE", "Focus Assistant", "FocusAssistant") as assistant:
                wait_for("the sharpness is measured", lambda: assistant.shows(lambda text: text.startswith("of the peak.")))
                assistant.activate()
                wait_for("the search runs", lambda: search(assistant))
                wait_for("the lens is at the best position",
                         lambda: assistant.shows(lambda text: "The lens is there." in text), 4 * BOUND)
                assistant.save_result(f"{folder}/result.json")
            check(f"{folder}/result.json")
            assert os.path.getsize(f"{folder}/result.csv") > 1000


main()
