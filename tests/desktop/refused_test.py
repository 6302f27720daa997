"""What the SDK refuses is told in a box; only a refused start ends the program."""

import unittest

from desktop import click, texts_of, window_box
from launcher import wait_for, xdotool
from scripted import ScriptedTest


class Refused(ScriptedTest):
    def assert_says(self, box, title, text):
        self.assertEqual(box["text"], title)
        self.assertIn(text, texts_of(box))

    def test_a_refused_start_is_told_and_ends_the_program(self):
        launcher = self.start_without_window(**self.scripted(refuses="Startup", cameras=3))
        box = launcher.box()
        self.assert_says(box, "Corvix X initialization failed",
                         "Failed to initialize the Corvix X system. The launcher will be closed.")
        self.assertIsNone(window_box())
        self.assertEqual(self.recorded("Shutdown"), 0)
        launcher.press_button(box)
        self.assert_ends(launcher, code=255)
        self.assertEqual((self.recorded("Startup"), self.recorded("Shutdown"), self.recorded("Scan")), (1, 1, 0))

    def test_the_box_of_a_refused_start_closes_with_the_keyboard(self):
        launcher = self.start_without_window(**self.scripted(refuses="Startup"))
        launcher.box()
        xdotool("key", "Escape")
        self.assert_ends(launcher, code=255)

    def test_a_refused_camera_observer_is_told_and_the_list_comes(self):
        self.assert_goes_on("RegisterCameraListObserver", "Unable to register camera list observer")

    def test_a_refused_interface_observer_is_told_and_the_list_comes(self):
        self.assert_goes_on("RegisterInterfaceListObserver", "Unable to register interface list observer")

    def test_both_observers_refused_are_told_one_after_the_other(self):
        launcher = self.start_without_window(
            **self.scripted(refuses="RegisterCameraListObserver RegisterInterfaceListObserver", cameras=2))
        for kind in ("camera", "interface"):
            box = wait_for(f"the box of the {kind} observer opens", lambda kind=kind: next(
                (window for window in launcher.windows()
                 if window["active"] and f"Unable to register {kind} list observer" in texts_of(window)), None))
            launcher.press_button(box)
        launcher.wait_until_listed(cameras=2)

    def assert_goes_on(self, refused, text):
        launcher = self.start_without_window(**self.scripted(refuses=refused, cameras=2))
        box = launcher.box()
        self.assert_says(box, "Error", text)
        self.assertIsNone(window_box())
        launcher.press_button(box)
        launcher.wait_until_listed(cameras=2)
        scans = self.recorded("Scan")
        click(*launcher.middle_of(launcher.find("refreshBtn")))
        wait_for("the button still scans", lambda: self.recorded("Scan") == scans + 1 and launcher.is_idle())
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        self.assert_ends(launcher)


if __name__ == "__main__":
    unittest.main()
