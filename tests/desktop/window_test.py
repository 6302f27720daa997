"""The window under a window manager: moving, minimising, closing, and message boxes over it."""

import unittest

import x11
from desktop import DesktopTest, texts_of
from launcher import wait_for, xdotool
from simulator import SimulatorConfiguration


def distance(box, other):
    return other[0] - box[0], other[1] - box[1]


class Window(DesktopTest):
    def test_only_the_header_moves_the_window(self):
        launcher = self.start()
        before = launcher.on_screen()
        launcher.drag("titleLabel", (60, -44))
        wait_for("the window follows", lambda: distance(before, launcher.on_screen()) == (60, -44))
        wait_for("Qt knows it", lambda: launcher.window()["onScreen"] == list(launcher.on_screen()))
        launcher.drag("titleLabel", (50, 30), button=3)
        for name in "cameraTable", "toolsDescriptionLabel", "footerLabel", "pushButton_2":  # The last one closes.
            launcher.drag(name, (50, -200))
        launcher.drag("label_3", (20, 10))  # Events are handled in order: each earlier move would show here.
        wait_for("the window follows", lambda: distance(before, launcher.on_screen()) == (80, -34))

    def test_the_desktop_restores_the_minimised_window(self):
        launcher = self.start()
        window = launcher.window()
        launcher.click("pushButton")
        wait_for("the window leaves the screen", lambda: not x11.box_of(window))
        self.assertIsNone(launcher.process.poll())
        x11.ask_to_activate(window)
        wait_for("the window is back", launcher.on_screen)
        self.assertEqual(len(launcher.rows()), 8)

    def test_the_window_keeps_its_size_and_the_close_key_ends_the_program(self):
        launcher = self.start()
        window = launcher.window()["xWindow"]
        xdotool("windowsize", window, 900, 800, "windowmove", window, 10, 20)
        wait_for("the window moves", lambda: launcher.on_screen() == (10, 20, 600, 660))
        xdotool("key", "alt+F4")
        self.assert_ends(launcher)

    def test_an_open_menu_does_not_keep_the_window_from_closing(self):
        launcher = self.start()
        launcher.menu_at(launcher.cell_place(0), button=3)
        x11.ask_to_close(launcher.window())
        self.assert_ends(launcher)


class MessageBoxes(DesktopTest):
    def test_the_window_closes_only_after_the_box(self):
        launcher, box = self.start_with_box()
        x11.ask_to_close(launcher.window())
        x11.ask_to_close(box)
        wait_for("the box closes", lambda: not launcher.of_class("QMessageBox"))
        launcher.select(2, "High Resolution Cameras")  # The program has forgotten the first request.
        x11.ask_to_close(launcher.window())
        self.assert_ends(launcher)

    def test_the_camera_list_changes_behind_the_box(self):
        launcher, box = self.start_with_box()
        SimulatorConfiguration(self.installation.root).write({"interfaces": []})
        wait_for("the cameras disappear", lambda: launcher.rows() == [])
        launcher.answer(box)

    def test_refused_sdk_start_shows_a_box_and_ends_the_program(self):
        self.installation.remove("bin/CvxProducerHost")
        launcher = self.start_without_window()
        box = launcher.box()
        self.assertEqual(box["text"], "Corvix X initialization failed")
        self.assertIn("Failed to initialize the Corvix X system. The launcher will be closed.", texts_of(box))
        self.assertEqual(len(launcher.windows()), 1)
        xdotool("key", "Escape")
        self.assert_ends(launcher, code=255)


if __name__ == "__main__":
    unittest.main()
