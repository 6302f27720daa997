"""Compares the screen with reference pictures, and checks the transparent corners of the window."""

import math
import subprocess
import unittest

from desktop import BACKGROUND, DESKTOP, DesktopTest
from launcher import wait_for
from screen import grab

RADIUS = 12


def is_rounded(square, centre, desktop):
    """Returns whether a corner shows the window inside its rounding and the desktop outside. Pixels on the edge, which
    are a mixture of both, are not checked."""
    colours = {False: tuple(bytes.fromhex(desktop[1:])), True: tuple(bytes.fromhex(BACKGROUND[1:]))}
    for x in range(RADIUS):
        for y in range(RADIUS):
            distance = math.hypot(x + 0.5 - centre[0], y + 0.5 - centre[1])
            expected = colours[distance < RADIUS]
            if abs(distance - RADIUS) > 0.8 and any(abs(a - b) > 3 for a, b in zip(square.getpixel((x, y)), expected)):
                return False
    return True


class Appearance(DesktopTest):
    def picture(self):
        return grab(self.launcher.on_screen())

    def test_screen_matches_the_reference_pictures(self):
        self.launcher = self.start()
        self.assert_matches("listed", self.picture)
        self.launcher.select(2, "High Resolution Cameras")
        self.launcher.point_at("connectedCamerasLabel")
        self.assert_matches("selected", self.picture)
        tip = self.launcher.tooltip_at(self.launcher.cell_place(0, 1))
        self.assert_matches("tooltip", lambda: grab(tip["onScreen"]))
        self.assert_matches("hovered", self.picture)

    def test_desktop_is_visible_at_the_rounded_corners(self):
        left, top, width, height = self.start().on_screen()
        right, bottom = left + width - RADIUS, top + height - RADIUS
        # The screen position of each corner square, and the centre of the rounding within the square.
        corners = {(left, top): (RADIUS, RADIUS), (right, top): (0, RADIUS),
                   (left, bottom): (RADIUS, 0), (right, bottom): (0, 0)}
        for desktop in "#d02080", DESKTOP:
            subprocess.run(["hsetroot", "-solid", desktop], check=True)
            wait_for("the corners show the desktop", lambda desktop=desktop: all(
                is_rounded(grab((*corner, RADIUS, RADIUS)), centre, desktop) for corner, centre in corners.items()))


if __name__ == "__main__":
    unittest.main()
