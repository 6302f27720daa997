"""The icon in the system tray; and that without a tray there is none, and nothing else is different."""

import unittest

from desktop import DESKTOP, DesktopTest, click, move, window_box, x_window
from launcher import output_of, wait_for, xdotool
from screen import grab

NAME = "Corvix X - Application Launcher"


class WithTray(DesktopTest):
    def click_icon(self, launcher, button, times=1):
        click(*launcher.middle_of(launcher.tray_icon()), button, times)

    def minimise(self, launcher):
        click(*launcher.middle_of(launcher.find("pushButton")))
        wait_for("the window leaves the screen", lambda: not window_box() and not launcher.active("MainWindow"))

    def test_the_icon_is_the_logo(self):
        launcher = self.start()
        grab(launcher.tray_icon()["onScreen"]).keep("tray icon")  # Compared with the logo on the way.

    def test_the_icon_s_tooltip_is_the_program_s_name(self):
        launcher = self.start()
        move(*launcher.middle_of(launcher.tray_icon()))
        tip = wait_for("a tooltip opens", lambda: launcher.of_class("QTipLabel"))
        self.assertEqual(tip["text"], NAME)

    def test_the_menu_offers_to_show_and_to_exit(self):
        launcher = self.start()
        menu = launcher.open_tray_menu()
        self.assertEqual([action["text"] for action in menu["actions"]], ["Show", "", "Exit"])
        grab(launcher.device(menu["onScreen"])).keep("tray menu")
        xdotool("key", "Escape")
        wait_for("the menu closes", lambda: not launcher.of_class("QMenu"))

    def test_a_double_click_restores_the_minimised_window(self):
        launcher = self.start_listed()
        self.minimise(launcher)
        self.click_icon(launcher, 1, times=2)
        wait_for("the window is back", window_box)
        wait_for("it is active", lambda: output_of("xdotool", "getactivewindow").strip() == x_window())

    def test_single_clicks_leave_the_window_minimised(self):
        launcher = self.start_listed()
        self.minimise(launcher)
        self.click_icon(launcher, 1)
        self.click_icon(launcher, 2)
        launcher.open_tray_menu()  # Handled after the clicks.
        self.assertIsNone(window_box())

    def test_show_restores_the_minimised_window(self):
        launcher = self.start_listed()
        self.minimise(launcher)
        launcher.choose(launcher.open_tray_menu(), "Show")
        wait_for("the window is back", window_box)

    def test_exit_ends_the_program(self):
        launcher = self.start_listed()
        launcher.choose(launcher.open_tray_menu(), "Exit")
        self.assert_ends(launcher)
        self.assertEqual(launcher.printed(), "")

    def test_exit_ends_the_program_while_it_is_minimised(self):
        launcher = self.start_listed()
        self.minimise(launcher)
        launcher.choose(launcher.open_tray_menu(), "Exit")
        self.assert_ends(launcher)

    def test_closing_the_window_ends_the_program_and_takes_the_icon_away(self):
        launcher = self.start_listed()
        box = launcher.device(launcher.tray_icon()["onScreen"])
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        self.assert_ends(launcher)
        wait_for("the tray is empty", lambda: grab(box).share_of(DESKTOP) == 1)


class WithoutTray(DesktopTest):
    def test_there_is_no_icon_and_nothing_is_printed(self):
        launcher = self.start_listed()
        self.assertIsNone(launcher.of_class("QSystemTrayIconSys"))
        self.assertEqual(len(launcher.windows()), 1)
        self.assertEqual(launcher.printed(), "")

    def test_the_window_is_the_same(self):
        launcher = self.start_listed()
        self.assert_looks_like("listed", launcher.picture)

    def test_minimise_and_close_are_the_same(self):
        launcher = self.start_listed()
        window = x_window()
        click(*launcher.middle_of(launcher.find("pushButton")))
        wait_for("the window leaves the screen", lambda: not window_box())
        xdotool("windowactivate", window)
        wait_for("the window is back", window_box)
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        self.assert_ends(launcher)


if __name__ == "__main__":
    unittest.main()
