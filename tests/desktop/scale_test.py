"""Checks at larger scales that all widgets grow, fit into their parents, and are drawn at the full resolution."""

import unittest

from desktop import BACKGROUND, IMAGES, DesktopTest
from launcher import descendants, wait_for
from PIL import Image
from screen import grab, load, mean_difference

BUTTON = "#1e2a3a"
ICONS = {"aboutQt_": "menu-dots", "pushButton": "minimize", "pushButton_2": "cross", "refreshBtn": "refresh@2x"}


def lies_inside(box, holder):
    return (holder[0] <= box[0] and holder[1] <= box[1] and box[0] + box[2] <= holder[0] + holder[2]
            and box[1] + box[3] <= holder[1] + holder[3])


class Scale(DesktopTest):
    def test_window_is_complete_and_sharp_at_double_scale(self):
        self.assert_scaled(2)

    def test_window_is_complete_and_sharp_at_a_fractional_scale(self):
        self.assert_scaled(1.25)

    def assert_scaled(self, factor):
        launcher = self.start(QT_SCALE_FACTOR=str(factor))
        self.assertEqual(launcher.on_screen()[2:], (round(600 * factor), round(660 * factor)))
        launcher.select(2, "High Resolution Cameras")  # This group has the longest hint.
        self.assert_all_fits(launcher.window())
        self.assertNotIn("QScrollBar", [node["class"] for node in descendants(launcher.find("toolsScroll"))])

        self.assert_sharp(self.drawn(launcher, "label_3"), f"{IMAGES}/orvelle-logo.png", BACKGROUND, factor)
        for button, picture in ICONS.items():
            x, y, width, height = self.drawn(launcher, button)
            size = round(16 * factor)
            box = (x + round((width - size) / 2), y + round((height - size) / 2), size, size)
            self.assert_sharp(box, f"{IMAGES}/{picture}.png", BUTTON, factor)

        self.assertGreaterEqual(launcher.tooltip_at(launcher.cell_place(0, 1))["onScreen"][2], 270)
        before = launcher.on_screen()
        launcher.drag("titleLabel", (40, 20))
        # Qt rounds the window's position to whole device-independent pixels.
        wait_for("the window follows", lambda: all(abs(now - then - by) <= factor for now, then, by
                                                   in zip(launcher.on_screen(), before, (40, 20, 0, 0))))
        wait_for("Qt knows the window's place", lambda: self.drawn(launcher, "pushButton_2")[:2]
                 == launcher.device(launcher.find("pushButton_2")["onScreen"])[:2])
        launcher.click("pushButton_2")
        self.assert_ends(launcher)

    def assert_all_fits(self, window):
        texts = [node for node in descendants(window) if node["text"]]
        self.assertGreater(len(texts), 20)
        for node in texts:
            self.assertTrue(node["needs"][0] <= node["box"][2] and node["needs"][1] <= node["box"][3], node)
        for holder in [window, *descendants(window)]:
            for node in holder["children"]:
                self.assertTrue(lies_inside(node["box"], holder["box"]), node)

    def drawn(self, launcher, name):
        """Returns a widget's box in device pixels, relative to the window's position in the X server."""
        left, top, *_ = launcher.on_screen()
        x, y, *size = launcher.device(launcher.find(name)["box"])
        return left + x, top + y, *size

    def assert_sharp(self, box, file, background, factor):
        """Fails if a picture on the screen was drawn at the unscaled size and then enlarged."""
        original = load(file, background)
        small = [round(length / factor) for length in box[2:]]
        sharp = original.resize(box[2:], Image.HAMMING)
        enlarged = original.resize(small, Image.HAMMING).resize(box[2:], Image.BILINEAR)
        self.assertLess(mean_difference(grab(box), sharp), mean_difference(enlarged, sharp) / 2, file)


if __name__ == "__main__":
    unittest.main()
