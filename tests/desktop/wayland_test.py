"""The unchanged program under Wayland: it finds its desktop by itself, and lets the compositor move its window."""

import glob
import os
import re
import unittest

from desktop import BACKGROUND, DESKTOP, STAGE, DesktopLauncher, DesktopTest, click, drag, move
from launcher import output_of, wait_for, xdotool
from screen import grab

ENTRY, = glob.glob(f"{STAGE}/share/applications/*.desktop")


class WaylandLauncher(DesktopLauncher):
    """The launcher and its talk with the compositor."""

    origin = (0, 0)  # Where the screen has the window; the program does not know.

    def device(self, box):
        x, y, *size = super().device(box)
        return (x + self.origin[0], y + self.origin[1], *size)

    def requests(self, name):
        """The arguments of each request of that name to the window."""
        return re.findall(rf" -> xdg_toplevel@\d+\.{name}\((.*)\)", self.printed())

    def moves(self):
        """How often the compositor took the pointer away to move the window."""
        return len(re.findall(r"xdg_toplevel@\d+\.move\(.*?wl_pointer@\d+\.leave\(", self.printed(), re.DOTALL))


class WaylandTest(DesktopTest):
    launcher_class = WaylandLauncher

    def setUp(self):
        super().setUp()
        self.launcher = self.start_without_window(DISPLAY="", WAYLAND_DEBUG="1")


class Headless(WaylandTest):
    def test_the_cameras_are_listed(self):
        wait_for("the cameras are listed", lambda: len(self.launcher.rows()) == 8 and self.launcher.is_idle())

    def test_the_application_id_is_that_of_the_desktop_entry(self):
        self.launcher.window()
        self.assertEqual(self.launcher.requests("set_app_id"), [f'"{os.path.basename(ENTRY).removesuffix(".desktop")}"'])


def window_box():
    """Where the screen shows all of the window; none while it does not."""
    box = grab().box_of(BACKGROUND)
    return box if box and box[2:] == (600, 660) else None


class Nested(WaylandTest):
    def setUp(self):
        super().setUp()
        self.launcher.wait_until_listed()
        self.launcher.origin = wait_for("the window is on the screen", window_box)[:2]

    def place(self, name):
        return self.launcher.middle_of(self.launcher.find(name))

    def assert_drags(self, start, distance):
        (x, y), moves = self.launcher.origin, self.launcher.moves()
        # Towards the middle of the screen: weston puts the window anywhere, and all of it has to stay in view.
        screen = grab()
        by = (distance if x < (screen.width - 600) / 2 else -distance,
              distance if y < (screen.height - 660) / 2 else -distance)
        xdotool("mousemove", *map(str, start), "mousedown", "1")
        try:
            wait_for("the compositor moves the window", lambda: self.launcher.moves() == moves + 1)
            move(start[0] + by[0], start[1] + by[1])
        finally:
            xdotool("mouseup", "1")
        self.launcher.origin = (x + by[0], y + by[1])
        wait_for("the window is where it belongs", lambda: window_box() == (*self.launcher.origin, 600, 660))

    def test_the_header_lets_the_compositor_move_the_window(self):
        self.assert_drags(self.place("titleLabel"), 40)
        self.assert_drags(self.place("label_3"), 25)
        self.assertEqual(len(self.launcher.requests("move")), 2)
        move(*self.place("cameraTable"))  # The pointer has let go of the window, and the window of the pointer.
        self.launcher.select(0, "Area Scan Cameras")
        self.assertEqual(window_box()[:2], self.launcher.origin)

    def test_nothing_else_moves_it(self):
        for start, button in ((self.place("footerLabel"), 1), (self.place("toolsDescriptionLabel"), 1),
                              (self.place("titleLabel"), 3), (self.place("pushButton_2"), 1)):
            drag(start, (30, 30), button)
        self.assert_drags(self.place("titleLabel"), 20)
        self.assertEqual(len(self.launcher.requests("move")), 1, self.launcher.printed())

    def test_what_lies_behind_shows_at_the_corners(self):
        x, y, width, height = window_box()
        shown = grab((x, y, width, height))
        self.assertEqual({shown.at(column, row) for column in (0, width - 1) for row in (0, height - 1)}, {DESKTOP})
        self.assertEqual({shown.at(12, 0), shown.at(0, 12), shown.at(width - 13, height - 1)}, {BACKGROUND})

    def test_the_minimise_button_minimises(self):
        click(*self.place("pushButton"))
        wait_for("the window leaves the screen", lambda: not grab().box_of(BACKGROUND))
        self.assertEqual(len(self.launcher.requests("set_minimized")), 1)
        self.assertIsNone(self.launcher.process.poll())

    def test_the_close_button_closes_and_ends_the_producers(self):
        """All that is ours to end. (Qt 5.15 sometimes fails to end its own threads for Wayland.)"""
        hosts = output_of("pgrep", "--parent", str(self.launcher.process.pid)).split()
        self.assertTrue(hosts)
        click(*self.place("pushButton_2"))
        wait_for("the window leaves the screen", lambda: not grab().box_of(BACKGROUND))
        wait_for("the producers end", lambda: not any(os.path.exists(f"/proc/{host}") for host in hosts))
        self.assertIn(self.launcher.process.poll(), (None, 0))

    def test_the_menu_opens_and_is_chosen_from(self):
        self.launcher.choose(self.launcher.menu_at(self.place("aboutQt_")), "About Qt")
        self.launcher.box()
        xdotool("key", "Escape")
        wait_for("the box is gone", lambda: not self.launcher.of_class("QMessageBox"))


if __name__ == "__main__":
    unittest.main()
