"""What script/translations notices, in a copy of what it reads."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCES = sys.argv.pop()
FOLDERS = ("app", "camera", "config", "ui", "translations")
GERMAN = "translations/corvix_de.ts"


class Translations(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = directory.name
        for folder in FOLDERS:
            shutil.copytree(f"{SOURCES}/{folder}", f"{self.root}/{folder}")
        os.mkdir(f"{self.root}/script")
        shutil.copy(f"{SOURCES}/script/translations", f"{self.root}/script")

    def run_script(self, *arguments):
        return subprocess.run([f"{self.root}/script/translations", *arguments], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, check=False)

    def check(self):
        return self.run_script("--check")

    def read(self, name):
        with open(f"{self.root}/{name}", encoding="utf-8") as file:
            return file.read()

    def replace(self, name, old, new):
        text = self.read(name)
        self.assertEqual(text.count(old), 1, old)
        with open(f"{self.root}/{name}", "w", encoding="utf-8") as file:
            file.write(text.replace(old, new))

    def catalogues(self):
        return {name: self.read(f"translations/{name}") for name in os.listdir(f"{self.root}/translations")
                if name.endswith(".ts")}

    def test_nothing_to_do_is_fine(self):
        done = self.check()
        self.assertEqual((done.returncode, done.stdout), (0, ""))

    def test_updating_again_changes_nothing(self):
        before = self.catalogues()
        self.assertEqual(self.run_script().returncode, 0)
        self.assertEqual(self.catalogues(), before)

    def test_lines_that_move_change_nothing(self):
        self.replace("app/ApplicationController.cpp", "#include <exception>\n", "#include <exception>\n\n\n")
        self.assertEqual(self.check().returncode, 0)

    def test_new_text_is_missing(self):
        self.replace("app/ApplicationController.cpp", 'tr("Exit")', 'tr("Leave")')
        before = self.catalogues()
        done = self.check()
        self.assertEqual(done.returncode, 1)
        for name in before:
            self.assertIn(f"{name}: ApplicationController: 'Leave': unfinished", done.stdout)
        self.assertEqual(self.catalogues(), before, "a check changed a catalogue")

    def test_update_asks_for_the_new_text_and_drops_the_old_one(self):
        self.replace("app/ApplicationController.cpp", 'tr("Exit")', 'tr("Leave")')
        done = self.run_script()
        self.assertEqual(done.returncode, 0)
        self.assertIn("corvix_de.ts: ApplicationController: 'Leave': unfinished", done.stdout)
        german = self.read(GERMAN)
        self.assertIn("<source>Leave</source>", german)
        self.assertNotIn("<source>Exit</source>", german)
        self.assertNotIn("Beenden", german)
        self.assertNotIn("<location", german)

    def test_text_that_nobody_asks_for_is_out_of_date(self):
        self.replace("ui/MainWindow.ui", "<string>Refresh</string>", "<string/>")
        done = self.check()
        self.assertEqual(done.returncode, 1)
        self.assertIn("-        <source>Refresh</source>", done.stdout)

    def test_translation_has_to_agree_with_its_source(self):
        for old, new, finding in (
                ("<translation>Beenden</translation>", '<translation type="unfinished">Beenden</translation>',
                 "'Exit': unfinished"),
                ("<translation>Beenden</translation>", "<translation></translation>", "'Exit': empty"),
                ("<translation>Beenden</translation>", "<translation>&amp;Beenden</translation>",
                 "'Exit': other accelerators: '&Beenden'"),
                ("<translation>Suche läuft ...</translation>", "<translation>Suche läuft</translation>",
                 "'Scanning...': other dots at the end: 'Suche läuft'"),
                ("Empfohlen für „%1“.", "Empfohlen für „%2“.", "other places:"),
                ("Empfohlen für „%1“.", "Empfohlen für &lt;b>%1&lt;/b>.", "other tags:"),
                ("werden:\n%1</translation>\n    </message>\n    <message>\n        <source>Interface",
                 "werden: %1</translation>\n    </message>\n    <message>\n        <source>Interface",
                 "other line ends:")):
            with self.subTest(finding):
                pristine = self.read(GERMAN)
                self.replace(GERMAN, old, new)
                done = self.check()
                self.assertEqual(done.returncode, 1)
                self.assertIn(finding, done.stdout)
                with open(f"{self.root}/{GERMAN}", "w", encoding="utf-8") as file:
                    file.write(pristine)

    def test_every_catalogue_is_compiled_in(self):
        collection, build = self.read("translations/translations.qrc"), self.read("translations/CMakeLists.txt")
        self.assertTrue(self.catalogues())
        for name in self.catalogues():
            self.assertIn(f"<file>{name[:-3]}.qm</file>", collection)
            self.assertIn(f" {name}", build)

    def test_text_for_the_log_stays_english(self):
        for name, catalogue in self.catalogues().items():
            self.assertIn("<translation>Configuration files version mismatch!</translation>", catalogue, name)

    def test_unknown_argument_is_refused(self):
        self.assertEqual(self.run_script("--chekc").returncode, 2)


unittest.main()
