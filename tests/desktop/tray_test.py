"""Tests the launcher's icon in the system tray."""

import unittest

from desktop import DESKTOP, DesktopTest
from launcher import wait_for
from PIL import ImageColor
from screen import grab


class Tray(DesktopTest):
    def minimise(self, launcher):
        launcher.click("pushButton")
        wait_for("the window leaves the screen", lambda: not launcher.on_screen() and not launcher.window()["active"])

    def test_tray_icon_restores_the_minimised_window(self):
        launcher = self.start()
        self.assertEqual(launcher.tooltip_at(launcher.tray_icon())["text"], "Corvix X - Application Launcher")
        self.minimise(launcher)
        launcher.click(launcher.tray_icon(), times=2)
        wait_for("the window is back", lambda: launcher.on_screen() and launcher.window()["active"])
        self.minimise(launcher)
        menu = launcher.menu_at(launcher.tray_icon(), button=3)
        self.assertEqual([action["text"] for action in menu["actions"]], ["Show", "", "Exit"])
        launcher.choose(menu, "Show")
        wait_for("the window is back", launcher.on_screen)

    def test_exit_entry_ends_the_minimised_program(self):
        launcher = self.start()
        self.minimise(launcher)
        launcher.choose(launcher.menu_at(launcher.tray_icon(), button=3), "Exit")
        self.assert_ends(launcher)

    def test_closing_the_window_removes_the_tray_icon(self):
        launcher = self.start()
        box = launcher.device(launcher.tray_icon()["onScreen"])
        launcher.click("pushButton_2")
        self.assert_ends(launcher)
        wait_for("the tray is empty", lambda: grab(box).getcolors() == [(box[2] * box[3], ImageColor.getrgb(DESKTOP))])

    def test_clicks_on_the_tray_icon_are_ignored_while_a_message_box_is_open(self):
        launcher, box = self.start_with_box()
        icon = launcher.place(launcher.tray_icon())
        launcher.click(icon, button=3)
        launcher.click(icon, times=2)
        launcher.answer(box)
        self.assertIsNone(launcher.of_class("QMenu"))
        launcher.choose(launcher.menu_at(icon, button=3), "Exit")
        self.assert_ends(launcher)


class WithoutTray(DesktopTest):
    def test_launcher_creates_no_icon_if_there_is_no_tray(self):
        launcher = self.start()
        self.assertEqual([window["class"] for window in launcher.windows()], ["MainWindow"])
        self.assertEqual(launcher.printed(), "")


if __name__ == "__main__":
    unittest.main()
