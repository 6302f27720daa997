"""Checks that the desktop entry, the application metadata and the icons are valid, consistent and translated.

usage: desktop_files_test.py STAGE SOURCES
"""

import configparser
import html
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

STAGE, SOURCES = pathlib.Path(sys.argv.pop(1)), pathlib.Path(sys.argv.pop(1))
IDS = tuple(f"example.orvelle.{program}" for program in (
    "CorvixLauncher", "CameraSetup", "FlatField", "FocusAssistant", "ImageViewer", "LineScanTuner", "PixelRepair",
    "TapBalance", "ThermalMonitor"))
LANGUAGES = {path.stem.partition("_")[2] for path in SOURCES.glob("translations/corvix_*.ts")}


def output_of(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False).stdout


def read_entry(file):
    parser = configparser.RawConfigParser(delimiters="=")
    parser.optionxform = str  # Keys are case-sensitive.
    parser.read(file, encoding="utf-8")
    return dict(parser["Desktop Entry"])


def entry_file(identifier):
    return STAGE / f"share/applications/{identifier}.desktop"


def metainfo_file(identifier):
    return STAGE / f"share/metainfo/{identifier}.metainfo.xml"


PROGRAMS = {identifier: read_entry(entry_file(identifier)) for identifier in IDS}


class DesktopFiles(unittest.TestCase):
    def test_desktop_entry_and_metadata_are_valid(self):
        for identifier, _ in PROGRAMS.items():
            self.assertEqual(output_of("desktop-file-validate", entry_file(identifier)), "")
            report = output_of("appstreamcli", "validate", "--no-net", "--no-color", metainfo_file(identifier))
            # The only remark concerns the top-level domain "example", which is reserved.
            self.assertEqual(re.findall(r"^[EWI]: \S+ (\S+)", report, re.MULTILINE), ["cid-maybe-not-rdns"], report)

    def test_desktop_entry_and_metadata_describe_the_same_program(self):
        for identifier, entry in PROGRAMS.items():
            self.assertTrue(os.access(STAGE / "bin" / entry["Exec"], os.X_OK))
            metainfo = xml.etree.ElementTree.parse(metainfo_file(identifier)).getroot()
            described = {key: metainfo.findtext(path) for key, path in (
                ("id", "id"), ("entry", "launchable[@type='desktop-id']"), ("icon", "icon[@type='stock']"),
                ("name", "name"), ("program", "provides/binary"), ("comment", "summary"))}
            self.assertEqual(described, {
                "id": identifier, "entry": entry_file(identifier).name, "icon": entry["Icon"], "name": entry["Name"],
                "program": entry["Exec"], "comment": entry["Comment"]})

    def test_desktop_entry_is_translated_into_every_language_of_the_program(self):
        for _, entry in PROGRAMS.items():
            for key in ("GenericName", "Comment", "Keywords"):
                self.assertEqual({match[1] for match in (re.fullmatch(rf"{key}\[(.*)\]", name) for name in entry)
                                  if match}, LANGUAGES, key)

    def test_icons_are_installed_in_every_size(self):
        icons = {str(path.relative_to(STAGE / "share/icons/hicolor")) for path in STAGE.rglob("share/icons/**/apps/*")}
        sizes = (16, 22, 24, 32, 48, 64, 128, 256, 512)
        self.assertEqual(icons, {path for identifier in IDS for path in (
            f"scalable/apps/{identifier}.svg", *(f"{size}x{size}/apps/{identifier}.png" for size in sizes))})
        for _, entry in PROGRAMS.items():
            for size in sizes:
                icon = STAGE / f"share/icons/hicolor/{size}x{size}/apps/{entry['Icon']}.png"
                self.assertEqual(icon.read_bytes()[16:24], 2 * size.to_bytes(4, "big"), icon)  # Width and height of a PNG.

    def test_guide_commands_add_an_unpacked_archive_to_the_menu(self):
        guide = (STAGE / "doc/index.html").read_text(encoding="utf-8")
        commands = html.unescape(re.search(r'<pre id="menu-entry"><code>(.*?)</code>', guide, re.DOTALL)[1])
        with tempfile.TemporaryDirectory() as home:
            os.mkdir(f"{home}/.local")
            shutil.copytree(STAGE, f"{home}/unpacked", symlinks=True)
            subprocess.run(["sh", "-e"], input=commands, text=True, check=True, cwd=f"{home}/unpacked",
                           env={**os.environ, "HOME": home})
            for identifier, entry in PROGRAMS.items():
                placed = f"{home}/.local/share/applications/{entry_file(identifier).name}"
                self.assertEqual(output_of("desktop-file-validate", placed), "")
                self.assertEqual(read_entry(placed)["Exec"], f"{home}/unpacked/bin/{entry['Exec']}")


unittest.main()
