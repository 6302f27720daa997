"""Changes a camera with Camera Setup while the Image Viewer watches the same camera, compares it with the opening, and
restores it. Everything is done by mouse and keyboard, on the installed programs."""

import re
import sys

from launcher import Launcher, keep_to_this_machine, wait_for
from simulator import SimulatorConfiguration
from tool import start, start_for

STAGE, PLUGINS = sys.argv[1:]


def differences(text):
    match = re.match(r"(\d+) of \d+ setting\S* differs?\.", text)
    return match and int(match[1])


def set_gain(setup, decibels):
    setup.activate()
    setup.press("ctrl+f")
    setup.type("amplification of the selected part")
    setup.press("Down", "Down", "Down")  # Category, selector, gain.
    wait_for("the gain is selected", lambda: "Gain" in setup.shows(lambda text: text == "Gain"))
    setup.press("F2", "ctrl+a")
    setup.type(decibels)
    setup.press("Return")


def brightness_settles(viewer, condition, promise):
    viewer.activate()  # Another window would cover the picture.
    return wait_for(promise, lambda: condition(viewer.brightness()[0]) and viewer.brightness()[0])


def main():
    keep_to_this_machine(STAGE)
    # One unit of the windows is one pixel of the screen.
    with SimulatorConfiguration(STAGE), Launcher(STAGE, PLUGINS, {"QT_FONT_DPI": "96"}) as launcher:
        with start_for(launcher, "Orvelle", "Camera Setup", "CameraSetup") as setup:
            wait_for("the settings at opening are known", lambda: setup.shows(lambda text: "0 changed since opening" in text))
            setup.activate()
            setup.press("F5")  # The camera streams.
            with start(launcher, "Image Viewer", "ImageViewer") as viewer:
                viewer.activate()
                viewer.click("Watch only")
                wait_for("the watching viewer shows the picture", lambda: viewer.brightness()[1] > 5000)
                before = viewer.brightness()[0]
                set_gain(setup, "6")
                brightness_settles(viewer, lambda mean: mean > 1.3 * before, "the picture of the viewer is brighter")

                setup.activate()
                setup.press("ctrl+e")
                wait_for("exactly one setting differs from the opening",
                         lambda: [differences(text) for text in setup.shows(differences)] == [1])

                setup.click("As it was when I opened it…")
                setup.click("Load")
                wait_for("the gain is restored", lambda: setup.shows(lambda text: "0 changed since opening" in text))
                brightness_settles(viewer, lambda mean: mean < 1.1 * before, "the picture of the viewer is as before")


main()
