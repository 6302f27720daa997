"""On screens of other scales everything is larger, nothing is cut off, and nothing is a small picture blown up."""

import unittest

from desktop import ASIDE, BACKGROUND, IMAGES, DesktopTest, click, descendants, drag, move, window_box
from launcher import wait_for
from screen import grab, load

BUTTON = "#1e2a3a"
BUTTON_ICONS = {"aboutQt_": "menu-dots", "pushButton": "minimize", "pushButton_2": "cross", "refreshBtn": "refresh@2x"}


def centred(box, size):
    """The box of that many device pixels in the middle of another."""
    x, y, width, height = box
    return x + round((width - size[0]) / 2), y + round((height - size[1]) / 2), *size


class ScaleTest:
    """Everything that is promised at any scale."""

    factor = None
    sharpness = None  # How much nearer to the right picture than a small one blown up.

    def scaled(self, length):
        return round(self.factor * length)

    def start_listed(self, **environment):
        return super().start_listed(QT_SCALE_FACTOR=str(self.factor), **environment)

    def test_the_window_has_the_size_of_the_scale(self):
        launcher = self.start_listed()
        self.assertEqual(window_box()[2:], (self.scaled(600), self.scaled(660)))
        launcher.picture().keep(f"listed at {self.factor}")
        launcher.select(2, "High Resolution Cameras")
        move(*ASIDE)
        wait_for("the pointer's marks are gone",
                 lambda: grab(launcher.cell_box(2, 0)).share_of("#243447") == 0)
        launcher.picture().keep(f"selected at {self.factor}")

    def test_every_text_fits_its_place(self):
        launcher = self.start_listed()
        launcher.select(2, "High Resolution Cameras")  # The longest hint.
        texts = [node for node in descendants(launcher.window()) if node["text"]]
        self.assertGreater(len(texts), 20)
        for node in texts:
            with self.subTest(node["text"]):
                self.assertLessEqual(node["needs"][0], node["box"][2])
                self.assertLessEqual(node["needs"][1], node["box"][3])

    def test_everything_lies_inside_of_what_holds_it(self):
        launcher = self.start_listed()
        window = launcher.window()
        for holder in [window, *descendants(window)]:
            left, top, width, height = holder["box"]
            for node in holder["children"]:
                x, y, right, bottom = node["box"][0], node["box"][1], sum(node["box"][::2]), sum(node["box"][1::2])
                with self.subTest(f"{node['class']} {node['name']}"):
                    self.assertTrue(left <= x and top <= y and right <= left + width and bottom <= top + height,
                                    f"{node['box']} in {holder['box']}")

    def test_nothing_shows_a_scroll_bar_but_the_table(self):
        launcher = self.start_listed()
        bars = [node for node in descendants(launcher.find("toolsScroll")) if node["class"] == "QScrollBar"]
        self.assertEqual(bars, [])

    def test_the_logo_is_sharp(self):
        launcher = self.start_listed()
        self.assert_sharp(self.drawn(launcher, "label_3"), "orvelle-logo.png", BACKGROUND)

    def test_the_buttons_pictures_are_sharp(self):
        launcher = self.start_listed()
        size = self.scaled(16), self.scaled(16)
        for button, picture in BUTTON_ICONS.items():
            with self.subTest(picture):
                box = centred(self.drawn(launcher, button), size)
                self.assert_sharp(box, f"{picture}.png", BUTTON)

    def test_the_tooltip_grows_with_the_scale(self):
        """But its picture is the small one of scale 1, which is intended: every row carries it as text."""
        launcher = self.start_listed()
        move(*launcher.in_cell(0, 1))
        tip = wait_for("a tooltip opens", lambda: launcher.of_class("QTipLabel"))
        left, top, width, _ = launcher.device(tip["onScreen"])
        self.assertGreaterEqual(width, self.scaled(270))
        wait_for("the tooltip is drawn", lambda: grab((left + self.scaled(40), top + self.scaled(5), 1, 1)).at(0, 0)
                 == "#ffffff")
        grab(launcher.device(tip["onScreen"])).keep(f"tooltip at {self.factor}")
        size = self.scaled(78), self.scaled(70)
        shown = grab((left + self.scaled(10), top + self.scaled(9), *size))
        _, blown_up = self.sharp_and_blown_up(size, "cameras/kx200-pro.png", "#ffffff")
        self.assertLess(shown.mean_difference(blown_up), 10)  # Of 255; scalers differ.

    def test_the_header_follows_the_pointer(self):
        launcher = self.start_listed()
        before = window_box()
        drag(launcher.middle_of(launcher.find("widget")), (40, 20))
        # A window stands on whole units of the scale, so it may be off by one of them.
        wait_for("the window follows", lambda: all(
            abs(now - then - by) <= self.factor for now, then, by in zip(window_box(), before, (40, 20, 0, 0))))

    def test_the_close_button_is_where_it_is_drawn(self):
        launcher = self.start_listed()
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        self.assert_ends(launcher)

    def drawn(self, launcher, name):
        """Where the X server has a widget of the window."""
        left, top, _, _ = window_box()
        x, y, width, height = launcher.device(launcher.find(name)["box"])
        return left + x, top + y, width, height

    def assert_sharp(self, box, picture, background):
        """What is drawn is much more like the picture at its right size than like one blown up to it."""
        ideal, blown_up = self.sharp_and_blown_up(box[2:], picture, background)
        self.assertLess(grab(box).mean_difference(ideal), blown_up.mean_difference(ideal) / self.sharpness)

    def sharp_and_blown_up(self, size, picture, background):
        unscaled = tuple(round(length / self.factor) for length in size)
        path = f"{IMAGES}/{picture}"
        return load(path, background, [size]), load(path, background, [unscaled, size])


class Double(ScaleTest, DesktopTest):
    factor = 2
    sharpness = 4


class OneAndAQuarter(ScaleTest, DesktopTest):
    factor = 1.25
    sharpness = 2


if __name__ == "__main__":
    unittest.main()
