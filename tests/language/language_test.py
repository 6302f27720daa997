"""Checks in each language that the program's strings are translated, fit into their widgets, and can be drawn."""

import os
import unittest

from desktop import SOURCES, DesktopTest
from findings import messages
from launcher import descendants, output_of, soon, wait_for

LOCALES = {"de_DE": "de", "fr_FR": "fr", "ja_JP": "ja", "ko_KR": "ko", "zh_CN": "zh_CN"}


def translations_of(language):
    catalogue = f"{SOURCES}/translations/corvix_{language}.ts"
    return {source: translation.text for _, source, translation in messages(catalogue)}


def drawable_characters():
    """Returns every character that the installed fonts contain."""
    characters = set()
    for part in output_of("fc-list", "--format", "%{charset} ").split():
        first, _, last = part.partition("-")
        characters.update(map(chr, range(int(first, 16), int(last or first, 16) + 1)))
    return characters


def texts_of(window):
    """Returns every string of a window that a user sees, or that a screen reader reads aloud."""
    for node in [window, *descendants(window)]:
        yield from (node["text"], node["toolTip"], node["accessibleName"])
        yield from (part["text"] for part in node.get("columns", []) + node.get("actions", []))


class Languages(DesktopTest):
    def test_windows_are_german(self):
        self.check("de_DE")

    def test_windows_are_french(self):
        self.check("fr_FR")

    def test_windows_are_japanese(self):
        self.check("ja_JP")

    def test_windows_are_korean(self):
        self.check("ko_KR")

    def test_windows_are_chinese(self):
        self.check("zh_CN")

    def check(self, locale):
        self.installation.remove("doc/index.html")
        self.installation.remove("bin/ImageViewer")
        self.translations = translations_of(LOCALES[locale])
        self.launcher = self.start(LC_ALL=f"{locale}.UTF-8")
        self.check_main_window()
        self.check_menus()
        self.check_boxes()
        self.check_placeholder(locale)

    def check_main_window(self):
        self.launcher.click(self.launcher.cell_place(2))  # The group of this camera has the longest hint.
        wait_for("tools are enabled", self.launcher.enabled_tools)
        hint = self.launcher.find("toolsDescriptionLabel")
        self.assertEqual(hint["text"], self.translated("Recommended for %1. Non-recommended tools are disabled.")
                         .replace("%1", "High Resolution Cameras"))
        self.assertLessEqual(hint["needs"][0], 0.9 * hint["box"][2])  # Other desktops may use larger fonts.
        window = self.launcher.window()
        self.assertEqual(window["box"][2:], [600, 660])
        self.assert_translated_and_fits(window)
        for column in self.launcher.find("cameraTable")["columns"]:
            self.assertLessEqual(column["needs"], column["width"], column)

    def check_menus(self):
        for place, button, text in (self.launcher.cell_place(0), 3, "CTI location"), ("aboutQt_", 1, "About Qt"):
            menu = self.launcher.menu_at(place, button)
            self.assertEqual([action["text"] for action in menu["actions"]], [self.translated(text)])
            self.launcher.close_menu()

    def check_boxes(self):
        for target in "documentationBtn", self.launcher.tiles()["Image Viewer"]:
            self.launcher.click(target)
            box = self.launcher.box()
            self.assertIn(box["text"], self.translations.values())
            self.assert_translated_and_fits(box)
            self.launcher.answer(box)
        self.launcher.choose(self.launcher.menu_at("aboutQt_"), self.translated("About Qt"))
        box = self.launcher.box()
        self.assertFalse([text for text in texts_of(box) if "This program uses Qt" in text])
        self.assert_translated_and_fits(box)
        self.launcher.answer(box)

    def check_placeholder(self, locale):
        """Checks the row that the table shows during the first scan. The scan lasts three seconds, because the program
        that loads the producers never answers."""
        host = "bin/CvxProducerHost"
        self.installation.remove(host)
        with open(self.installation.path(host), "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\nexec sleep 60\n")
        os.chmod(self.installation.path(host), 0o755)

        def scanning():
            launcher = self.start_without_window(LC_ALL=f"{locale}.UTF-8")
            row = soon(lambda: [row for row in launcher.find("cameraTable")["rows"]
                                if row["texts"] == [self.translated("Scanning..."), "", ""]], 5)
            launcher.process.kill()
            return row
        row, = wait_for("the table shows the scan", scanning)
        self.assertLessEqual(row["needs"][0], row["cells"][0][2])

    def translated(self, source):
        self.assertNotEqual(self.translations[source], source)
        return self.translations[source]

    def assert_translated_and_fits(self, window):
        texts = set(texts_of(window))
        self.assertFalse([text for text in texts if self.translations.get(text, text) != text])
        self.assertEqual({char for text in texts for char in text if char.isprintable()} - drawable_characters(), set())
        for node in filter(lambda node: node["text"], descendants(window)):
            (x, y, width, height), needs = node["box"], node["needs"]
            self.assertTrue(needs[0] <= width and needs[1] <= height, f"cut off: {node}")
            self.assertTrue(0 <= x <= window["box"][2] - width and 0 <= y <= window["box"][3] - height, node)


class Log(unittest.TestCase):
    def test_log_message_is_not_translated(self):
        message = "Configuration files version mismatch!"
        self.assertEqual({translations_of(language)[message] for language in LOCALES.values()}, {message})


if __name__ == "__main__":
    unittest.main()
