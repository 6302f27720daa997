"""A task bar can tell whose windows these are: by their class, their group and their icon."""

import glob
import os
import re
import unittest

from desktop import IMAGES, STAGE, DesktopTest, click, x_window
from launcher import output_of, wait_for
from screen import picture_from

ENTRY, = glob.glob(f"{STAGE}/share/applications/*.desktop")
APPLICATION_ID = os.path.basename(ENTRY).removesuffix(".desktop")


def x_property(window, name, layout=()):
    return output_of("xprop", *layout, "-id", window, name)


def icons_of(window):
    """The pixels, red, green and blue, of each icon by its size; on black."""
    numbers = [int(number) for number in re.findall(
        r"\d+", x_property(window, "_NET_WM_ICON", ("-notype", "-f", "_NET_WM_ICON", "32c", "-len", "1000000")))]
    icons = {}
    while numbers:
        width, height, *numbers = numbers
        icons[width, height] = b"".join(
            bytes((pixel >> shift & 255) * (pixel >> 24) // 255 for shift in (16, 8, 0))
            for pixel in numbers[:width * height])
        numbers = numbers[width * height:]
    return icons


class Identity(DesktopTest):
    def setUp(self):
        super().setUp()
        self.launcher = self.start()
        self.window = x_window()

    def open_about_qt(self):
        """Gives the X server's number of the box."""
        self.launcher.choose(self.launcher.menu_at(self.launcher.middle_of(self.launcher.find("aboutQt_"))), "About Qt")
        return wait_for("the box is on the screen", lambda: output_of(
            "xdotool", "search", "--onlyvisible", "--name", "^About Qt$").split())[0]

    def test_the_window_class_is_the_application_id(self):
        # The second of the two is the class; the first, the instance, is the program's name.
        self.assertEqual(x_property(self.window, "WM_CLASS"),
                         f'WM_CLASS(STRING) = "CorvixLauncher", "{APPLICATION_ID}"\n')

    def test_its_boxes_are_grouped_with_the_window(self):
        box = self.open_about_qt()
        for name in ("WM_CLASS", "WM_CLIENT_LEADER"):
            with self.subTest(name):
                self.assertNotIn("not found", x_property(self.window, name))
                self.assertEqual(x_property(box, name), x_property(self.window, name))

    def test_the_window_has_the_icon_in_every_size(self):
        shown = icons_of(self.window)
        sizes = (16, 24, 32, 48, 64, 128, 256)
        self.assertLessEqual({(size, size) for size in sizes}, set(shown))
        for index, size in enumerate(sizes):
            with self.subTest(size):
                drawn = picture_from("convert-im6.q16", f"{IMAGES}/orvelle-logo.ico[{index}]",
                                     "-background", "black", "-flatten").pixels
                self.assertLess(sum(abs(a - b) for a, b in zip(shown[size, size], drawn)) / len(drawn), 1)


if __name__ == "__main__":
    unittest.main()
