"""Tests the window under a window manager: moving, minimising, closing, and message boxes above the window."""

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
        # "pushButton_2" is the close button.
        for name in "cameraTable", "toolsDescriptionLabel", "footerLabel", "pushButton_2":
            launcher.drag(name, (50, -200))
        launcher.drag("label_3", (20, 10))  # Events are handled in order, so the position shows every earlier move.
        wait_for("the window follows", lambda: distance(before, launcher.on_screen()) == (80, -34))

    def test_window_manager_restores_the_minimised_window(self):
        launcher = self.start()
        window = launcher.window()
        launcher.click("pushButton")
        wait_for("the window leaves the screen", lambda: not x11.box_of(window))
        self.assertIsNone(launcher.process.poll())
        x11.ask_to_activate(window)
        wait_for("the window is back", launcher.on_screen)
        self.assertEqual(len(launcher.rows()), 8)

    def test_window_manager_can_move_and_close_but_not_resize_the_window(self):
        launcher = self.start()
        window = launcher.window()["xWindow"]
        xdotool("windowsize", window, 900, 800, "windowmove", window, 10, 20)
        wait_for("the window moves", lambda: launcher.on_screen() == (10, 20, 600, 660))
        xdotool("key", "alt+F4")
        self.assert_ends(launcher)

    def test_window_can_be_closed_while_a_menu_is_open(self):
        launcher = self.start()
        launcher.menu_at(launcher.cell_place(0), button=3)
        x11.ask_to_close(launcher.window())
        self.assert_ends(launcher)


class MessageBoxes(DesktopTest):
    def test_close_request_is_ignored_while_a_message_box_is_open(self):
        launcher, box = self.start_with_box()
        x11.ask_to_close(launcher.window())
        x11.ask_to_close(box)
        wait_for("the box closes", lambda: not launcher.of_class("QMessageBox"))
        # The close request made while the box was open has no later effect.
        launcher.select(2, "High Resolution Cameras")
        x11.ask_to_close(launcher.window())
        self.assert_ends(launcher)

    def test_table_is_updated_while_a_message_box_is_open(self):
        launcher, box = self.start_with_box()
        SimulatorConfiguration(self.installation.root).write({"interfaces": []})
        wait_for("the cameras disappear", lambda: launcher.rows() == [])
        launcher.answer(box)

    def test_program_ends_after_a_message_if_the_sdk_does_not_start(self):
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
