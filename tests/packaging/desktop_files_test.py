"""What an installation tells a desktop of the program: valid, of one application id, and in every language."""

import configparser
import glob
import html
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

STAGE, SOURCE = sys.argv.pop(1), sys.argv.pop(1)
SHARE = f"{STAGE}/share"
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


def only(pattern):
    """The one file that matches."""
    file, = glob.glob(f"{SHARE}/{pattern}")
    return file


def printed_by(*command):
    """What a command that succeeds prints."""
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    assert result.returncode == 0, f"{command}: {result.stdout}"
    return result.stdout


def pixels(*files):
    """The pixels of a picture, red, green, blue and alpha; transparent ones have no colour."""
    command = ["convert-im6.q16", *files, "-background", "black", "-alpha", "background", "-depth", "8", "rgba:-"]
    return subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout


def read_entry(file):
    parser = configparser.RawConfigParser(delimiters="=")
    parser.optionxform = str  # Keys are sensitive to case.
    parser.read(file, encoding="utf-8")
    return dict(parser["Desktop Entry"])


def catalogues():
    """What the window's subtitle is in each language that the program speaks."""
    texts = {}
    for file in glob.glob(f"{SOURCE}/translations/corvix_*.ts"):
        messages = xml.etree.ElementTree.parse(file).iter("message")
        texts[re.search(r"corvix_(.*)\.ts", file)[1]] = next(
            message.findtext("translation") for message in messages
            if message.findtext("source") == "Application launcher")
    return texts


class DesktopFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.entry_file, cls.metainfo_file = only("applications/*"), only("metainfo/*")
        cls.id = os.path.basename(cls.entry_file).removesuffix(".desktop")
        cls.entry = read_entry(cls.entry_file)
        cls.metainfo = xml.etree.ElementTree.parse(cls.metainfo_file).getroot()

    def in_languages(self, key):
        """The entry's translations of a key."""
        found = (re.fullmatch(rf"{key}\[(.*)\]", name) for name in self.entry)
        return {match[1]: self.entry[match[0]] for match in found if match}

    def test_the_entry_is_valid(self):
        self.assertEqual(printed_by("desktop-file-validate", self.entry_file), "")

    def test_the_metainfo_is_valid(self):
        said = printed_by("appstreamcli", "validate", "--no-net", "--no-color", self.metainfo_file)
        # The top-level domain is one of those that are reserved for names that nobody may own.
        self.assertEqual(re.findall(r"^[EWI]: \S+ (\S+)", said, re.MULTILINE), ["cid-maybe-not-rdns"], said)

    def test_there_is_one_application_id(self):
        self.assertEqual({
            "metainfo's file": os.path.basename(self.metainfo_file).removesuffix(".metainfo.xml"),
            "component": self.metainfo.findtext("id"),
            "launchable": self.metainfo.findtext("launchable[@type='desktop-id']").removesuffix(".desktop"),
            "metainfo's icon": self.metainfo.findtext("icon[@type='stock']"),
            "icon": self.entry["Icon"],
            "window class": self.entry["StartupWMClass"],
            "icon files": {os.path.splitext(os.path.basename(file))[0]
                           for file in glob.glob(f"{SHARE}/icons/hicolor/*/*/*")},
        }, {
            **dict.fromkeys(("metainfo's file", "component", "launchable", "metainfo's icon", "icon", "window class"),
                            self.id),
            "icon files": {self.id},
        })

    def test_the_entry_starts_the_program(self):
        self.assertTrue(os.access(f"{STAGE}/bin/{self.entry['Exec']}", os.X_OK))
        self.assertEqual(self.metainfo.findtext("provides/binary"), self.entry["Exec"])

    def test_both_tell_the_same_of_it(self):
        self.assertEqual(self.metainfo.findtext("name"), self.entry["Name"])
        summaries = {summary.get(LANGUAGE): summary.text for summary in self.metainfo.iter("summary")}
        self.assertEqual(summaries.pop(None), self.entry["Comment"])
        self.assertEqual(summaries, {language.replace("_", "-"): text
                                     for language, text in self.in_languages("Comment").items()})
        self.assertEqual([category.text for category in self.metainfo.iter("category")],
                         self.entry["Categories"].rstrip(";").split(";"))

    def test_the_entry_speaks_the_program_s_languages(self):
        self.assertEqual(self.in_languages("Name"), {})  # It is a name.
        self.assertEqual(self.in_languages("GenericName"), catalogues())
        for key in ("Comment", "Keywords"):
            with self.subTest(key):
                translated = self.in_languages(key)
                self.assertEqual(set(translated), set(catalogues()))
                self.assertNotIn(self.entry[key], translated.values())

    def test_the_guide_names_it_as_the_menu_does(self):
        self.assertIn(f"Choose {self.entry['Name']} in the desktop's menu", self.guide())

    def test_the_guide_s_commands_put_an_unpacked_archive_into_the_menu(self):
        commands = re.search(r'<pre id="menu-entry"><code>(.*?)</code>', self.guide(), re.DOTALL)[1]
        with tempfile.TemporaryDirectory() as home:
            os.mkdir(f"{home}/.local")
            shutil.copytree(STAGE, f"{home}/unpacked", symlinks=True)
            subprocess.run(["sh", "-e"], input=html.unescape(commands), text=True, check=True,
                           cwd=f"{home}/unpacked", env={**os.environ, "HOME": home})
            placed = f"{home}/.local/share/applications/{self.id}.desktop"
            self.assertEqual(printed_by("desktop-file-validate", placed), "")
            self.assertTrue(os.access(read_entry(placed)["Exec"], os.X_OK))
            self.assertTrue(os.path.isabs(read_entry(placed)["Exec"]))
            self.assertTrue(os.path.exists(f"{home}/.local/share/icons/hicolor/scalable/apps/{self.id}.svg"))

    def test_every_size_has_an_icon(self):
        icons = {os.path.relpath(file, f"{SHARE}/icons/hicolor") for file in glob.glob(f"{SHARE}/icons/hicolor/*/*/*")}
        self.assertEqual(icons, {f"scalable/apps/{self.id}.svg",
                                 *(f"{size}x{size}/apps/{self.id}.png" for size in SIZES)})
        for size in SIZES:
            with self.subTest(size):
                self.assertEqual(len(pixels(self.icon(size))), 4 * size * size)

    def test_the_icons_are_the_program_s_own(self):
        """As render-icons draws them, from the logo of today."""
        window_icon = f"{SOURCE}/resources/images/orvelle-logo.ico"
        for index, size in enumerate((16, 24, 32, 48, 64, 128, 256)):
            with self.subTest(size):
                self.assertTrue(pixels(self.icon(size)) == pixels(f"{window_icon}[{index}]"), "render-icons is to be run")
        for size, alike in ((22, 24), (512, 256)):
            with self.subTest(size):
                shrunk = pixels(self.icon(size), "-resize", f"{alike}x{alike}")
                other = pixels(self.icon(alike))
                self.assertLess(sum(abs(a - b) for a, b in zip(shrunk, other)) / len(other), 8)

    def guide(self):
        with open(f"{STAGE}/doc/index.html", encoding="utf-8") as guide:
            return guide.read()

    def icon(self, size):
        return f"{SHARE}/icons/hicolor/{size}x{size}/apps/{self.id}.png"


if __name__ == "__main__":
    unittest.main()
