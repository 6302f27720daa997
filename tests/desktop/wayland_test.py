"""Tests the unchanged program under Wayland."""

import os
import re
import unittest

from desktop import BACKGROUND, DESKTOP, STAGE, DesktopLauncher, DesktopTest
from launcher import wait_for, xdotool
from screen import box_of, colour, grab

ENTRY = f"{STAGE}/share/applications/example.orvelle.CorvixLauncher.desktop"


class WaylandLauncher(DesktopLauncher):
    """Also reads the messages between the program and the compositor, which the program prints."""

    origin = (0, 0)  # The window's position on the screen, which the program cannot query under Wayland.

    def device(self, box):
        x, y, *size = box
        return (x + self.origin[0], y + self.origin[1], *size)

    def on_screen(self):
        """Returns the position and size of the window, or None while the window is not completely visible."""
        box = box_of(grab(), BACKGROUND)
        return box if box and box[2:] == (600, 660) else None

    def requests(self, name):
        """Returns the arguments of each request with this name that the program sent for its window."""
        return re.findall(rf" -> xdg_toplevel@\d+\.{name}\((.*)\)", self.printed())

    def moves(self):
        """Returns how often the compositor has begun to move the window. Each time, the pointer leaves the window."""
        return len(re.findall(r"xdg_toplevel@\d+\.move\(.*?wl_pointer@\d+\.leave\(", self.printed(), re.DOTALL))


class WaylandTest(DesktopTest):
    launcher_class = WaylandLauncher

    def start(self, **_):
        return super().start(DISPLAY="", WAYLAND_DEBUG="1")


class Headless(WaylandTest):
    def test_application_id_equals_the_name_of_the_desktop_entry(self):
        launcher = self.start_without_window(DISPLAY="", WAYLAND_DEBUG="1")
        wait_for("the cameras are listed", lambda: len(launcher.rows()) == 8)
        self.assertEqual(launcher.requests("set_app_id"), [f'"{os.path.basename(ENTRY).removesuffix(".desktop")}"'])


class Nested(WaylandTest):
    def setUp(self):
        super().setUp()
        self.launcher = self.start()
        self.launcher.origin = wait_for("the window is on the screen", self.launcher.on_screen)[:2]

    def assert_moves(self, name):
        """Drags the window towards the middle of the screen, because weston opens the window at a random position."""
        (x, y), moves = self.launcher.origin, self.launcher.moves()
        start, screen = self.launcher.place(name), grab()
        by = 40 if x < (screen.width - 600) / 2 else -40, 40 if y < (screen.height - 660) / 2 else -40
        xdotool("mousemove", *start, "mousedown", 1)
        wait_for("the compositor moves the window", lambda: self.launcher.moves() == moves + 1)
        xdotool("mousemove", start[0] + by[0], start[1] + by[1], "mouseup", 1)
        self.launcher.origin = (x + by[0], y + by[1])
        wait_for("the window follows", lambda: self.launcher.on_screen() == (*self.launcher.origin, 600, 660))

    def test_only_the_header_moves_the_window(self):
        for name, button in ("footerLabel", 1), ("toolsDescriptionLabel", 1), ("titleLabel", 3), ("pushButton_2", 1):
            self.launcher.drag(name, (30, 30), button)
        self.assert_moves("titleLabel")
        self.assertEqual(len(self.launcher.requests("move")), 1)
        self.launcher.select(0, "Area Scan Cameras")  # After the move, the window receives pointer events again.

    def test_desktop_is_visible_at_the_rounded_corners(self):
        shown = grab(self.launcher.on_screen())
        self.assertEqual({colour(shown, x, y) for x in (0, 599) for y in (0, 659)}, {DESKTOP})
        self.assertEqual({colour(shown, 12, 0), colour(shown, 0, 12), colour(shown, 587, 659)}, {BACKGROUND})

    def test_minimise_button_minimises_the_window(self):
        self.launcher.click("pushButton")
        wait_for("the window leaves the screen", lambda: not box_of(grab(), BACKGROUND))
        self.assertEqual(len(self.launcher.requests("set_minimized")), 1)
        self.assertIsNone(self.launcher.process.poll())

    def test_menu_and_close_button_work(self):
        """Accepts that the process keeps running, because Qt 5.15 sometimes fails to end its own Wayland threads."""
        self.launcher.choose(self.launcher.menu_at("aboutQt_"), "About Qt")
        self.launcher.box()
        xdotool("key", "Escape")
        wait_for("the box closes", lambda: not self.launcher.of_class("QMessageBox"))
        hosts = self.launcher.hosts()
        self.assertTrue(hosts)
        self.launcher.click("pushButton_2")
        wait_for("the window leaves the screen", lambda: not box_of(grab(), BACKGROUND))
        wait_for("the producer hosts end", lambda: not any(os.path.exists(f"/proc/{host}") for host in hosts))
        self.assertIn(self.launcher.process.poll(), (None, 0))


if __name__ == "__main__":
    unittest.main()
