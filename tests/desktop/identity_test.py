"""Checks how a task bar recognises the windows: by class, group and icon."""

import unittest

import x11
from desktop import IMAGES, DesktopTest
from PIL import Image
from screen import load, mean_difference


def icons_of(window):
    """Returns the icons of a window on a black background, by size."""
    numbers, icons = x11.property_of(window, "_NET_WM_ICON"), {}
    while numbers:
        size, numbers = tuple(numbers[:2]), numbers[2:]
        count = size[0] * size[1]
        pixels = b"".join((number & 0xffffffff).to_bytes(4, "little") for number in numbers[:count])
        icon = Image.frombytes("RGBA", size, pixels, "raw", "BGRA")
        icons[size] = Image.alpha_composite(Image.new("RGBA", size, "black"), icon).convert("RGB")
        numbers = numbers[count:]
    return icons


class Identity(DesktopTest):
    def test_message_box_has_the_class_and_group_of_the_main_window(self):
        launcher = self.start()
        window = launcher.window()
        self.assertEqual(x11.window_of(window).get_wm_class(), ("CorvixLauncher", "CorvixLauncher"))
        launcher.choose(launcher.menu_at("aboutQt_"), "About Qt")
        box = launcher.box()
        self.assertEqual(x11.window_of(box).get_wm_class(), ("CorvixLauncher", "CorvixLauncher"))
        self.assertTrue(x11.property_of(window, "WM_CLIENT_LEADER"))
        self.assertEqual(x11.property_of(box, "WM_CLIENT_LEADER"), x11.property_of(window, "WM_CLIENT_LEADER"))

    def test_window_has_an_icon_in_every_size(self):
        icons = icons_of(self.start().window())
        for length in 16, 24, 32, 48, 64, 128, 256:
            drawn = load(f"{IMAGES}/orvelle-logo.ico", "black", (length, length))
            self.assertLess(mean_difference(icons[length, length], drawn), 1, length)


if __name__ == "__main__":
    unittest.main()
