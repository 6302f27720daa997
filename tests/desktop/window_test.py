"""The window is moved, minimised and closed with the pointer; tiles start tools, with the left button only."""

import unittest

from desktop import BACKGROUND, DesktopTest, click, drag, move, noted, window_box, x_window
from launcher import output_of, wait_for, xdotool
from screen import grab, near
from x11 import PointerShapes

BORDER, LIT_BORDER = "#2d3a4d", "#2196f3"


def offset(box, other):
    return other[0] - box[0], other[1] - box[1]


def on_desktop(test):
    """Waits for the window's place to be the test's."""
    wait_for("the window is where it belongs", lambda: window_box() and test(window_box()))


class Moving(DesktopTest):
    def assert_drags(self, start, button=1, by=(60, -44)):
        before = window_box()
        drag(start, by, button)
        on_desktop(lambda box: offset(before, box) == by)

    def test_the_header_drags_the_window(self):
        launcher = self.start()
        for part in ("widget", "label_3", "titleLabel", "label_5"):  # Its empty middle, the logo and the texts.
            with self.subTest(part):
                self.assert_drags(launcher.middle_of(launcher.find(part)))

    def test_nothing_but_the_header_drags_the_window(self):
        self.installation.record_starts("bin/ImageViewer")  # The real one has a window, which would be in the way.
        launcher = self.start_listed()
        launcher.select(0, "Area Scan Cameras")
        tiles = launcher.tiles()
        places = {name: launcher.middle_of(launcher.find(name)) for name in (
            "cameraTable", "recommendedToolsLabel", "toolsDescriptionLabel", "footerLabel", "widget_3", "line",
            "connectedCamerasLabel", "cameraHeader")}
        places |= {"an enabled tile": launcher.middle_of(tiles["Image Viewer"]),
                   "a disabled tile": launcher.middle_of(tiles["Pixel Repair"])}
        before = window_box()
        for place in places.values():
            drag(place, (50, 30))
        # Events are handled in their order: had one of these drags moved it, this one would end elsewhere.
        drag(launcher.middle_of(launcher.find("widget")), (20, 10))
        on_desktop(lambda box: offset(before, box) == (20, 10))

    def test_the_right_button_neither_starts_nor_ends_a_drag(self):
        launcher = self.start()
        start = launcher.middle_of(launcher.find("widget"))
        before = window_box()
        drag(start, (80, 0), button=3)
        xdotool("mousemove", *map(str, start), "mousedown", "1")
        move(start[0] + 10, start[1])
        xdotool("click", "3")
        move(start[0] + 30, start[1] + 5)
        on_desktop(lambda box: offset(before, box) == (30, 5))
        xdotool("mouseup", "1")

    def test_a_press_on_a_header_button_starts_no_drag(self):
        launcher = self.start()
        before = window_box()
        drag(launcher.middle_of(launcher.find("pushButton_2")), (-200, 100))  # Let go elsewhere: nothing closes.
        drag(launcher.middle_of(launcher.find("widget")), (20, 10))
        on_desktop(lambda box: offset(before, box) == (20, 10))


class Ending(DesktopTest):
    def test_the_minimise_button_minimises_and_the_desktop_restores(self):
        launcher = self.start_listed()
        window = x_window()
        click(*launcher.middle_of(launcher.find("pushButton")))
        wait_for("the window leaves the screen", lambda: not window_box())
        self.assertIn("Iconic", output_of("xprop", "-id", window, "WM_STATE"))
        self.assertIsNone(launcher.process.poll())
        xdotool("windowactivate", window)  # As a task bar does.
        wait_for("the window is back", window_box)
        wait_for("it shows its cameras", lambda: near(launcher.picture().at(300, 100), BACKGROUND))
        self.assertEqual(len(launcher.rows()), 8)

    def test_the_close_button_ends_the_program(self):
        launcher = self.start_listed()
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        self.assert_ends(launcher)
        self.assertEqual(launcher.printed(), "")

    def test_the_desktop_s_close_key_ends_the_program(self):
        launcher = self.start_listed()
        xdotool("key", "alt+F4")
        self.assert_ends(launcher)

    def test_the_window_keeps_its_size(self):
        self.start()
        window = x_window()
        before = window_box()
        xdotool("windowsize", window, "900", "800")
        xdotool("windowmove", window, "10", "20")  # Handled after the size.
        on_desktop(lambda box: box[:2] == (10, 20))
        self.assertEqual(window_box()[2:], (600, 660))
        self.assertEqual(before[2:], (600, 660))


class Tiles(DesktopTest):
    def setUp(self):
        super().setUp()
        self.started = {name: self.installation.record_starts(f"bin/{name}") for name in ("ImageViewer", "CameraSetup")}
        self.launcher = self.start_listed()
        self.launcher.select(0, "Area Scan Cameras")

    def place(self, tool):
        return self.launcher.middle_of(self.launcher.tiles()[tool])

    def frame(self):
        """The colour of the first tile's frame."""
        x, y, width, _ = self.launcher.tiles()["Image Viewer"]["onScreen"]
        return grab((x + width // 2, y, 1, 1)).at(0, 0)

    def test_a_press_starts_the_tool_before_the_button_is_released(self):
        xdotool("mousemove", *map(str, self.place("Image Viewer")), "mousedown", "1")
        try:
            note = noted(self.started["ImageViewer"])
        finally:
            xdotool("mouseup", "1")
        self.assertEqual(note, [self.installation.path("bin")])  # No arguments; its own directory.

    def test_the_pointer_tells_that_a_tool_is_started(self):
        """It is another one for that time only."""
        move(*self.place("Image Viewer"))
        wait_for("the tile is under the pointer", lambda: self.frame() == LIT_BORDER)
        shapes = []

        def changed_twice():
            shapes.extend(pointer.new())
            return len(shapes) >= 2 and shapes[-1] != shapes[0]
        with PointerShapes() as pointer:
            click(*self.place("Image Viewer"))
            wait_for("the pointer is another one, and not for ever", changed_twice)
            before = len(shapes)
            click(*self.place("Image Viewer"))
            wait_for("so it is once more", lambda: changed_twice() and shapes[0] in shapes[before:])

    def test_a_right_click_starts_nothing(self):
        self.assert_starts_nothing(self.place("Image Viewer"), button=3)

    def test_a_middle_click_starts_nothing(self):
        self.assert_starts_nothing(self.place("Image Viewer"), button=2)

    def test_a_disabled_tile_starts_nothing(self):
        self.installation.remove("bin/PixelRepair")
        self.assert_starts_nothing(self.place("Pixel Repair"), button=1)

    def assert_starts_nothing(self, place, button):
        # With the program gone, an attempt would bring up a box, and keep the click on the other row from its effect.
        self.installation.remove("bin/ImageViewer")
        click(*place, button=button)
        self.launcher.select(2, "High Resolution Cameras")
        self.assertIsNone(self.launcher.of_class("QMessageBox"))

    def test_the_tile_under_the_pointer_is_framed(self):
        wait_for("the enabled tile is drawn", lambda: self.frame() == BORDER)
        move(*self.place("Image Viewer"))
        wait_for("the frame lights up", lambda: self.frame() == LIT_BORDER)
        move(*self.place("Camera Setup"))
        wait_for("the frame is as before", lambda: self.frame() == BORDER)


if __name__ == "__main__":
    unittest.main()
