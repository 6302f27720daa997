"""The installed guide as a document: well formed, every link leads somewhere, and nothing comes from the network."""

import pathlib
import re
import sys
import unittest
import urllib.parse

from guide_document import read_guide

GUIDE, _ = (pathlib.Path(argument) for argument in (sys.argv.pop(1), sys.argv.pop(1)))
OUTSIDE = {"https://www.orvelle.example"}  # What the window's footer links to as well. Never fetched.
LOADING = ("src", "srcset", "data", "poster", "action", "formaction", "background", "ping", "manifest")


class GuideText(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.guide = read_guide(GUIDE)
        cls.source = GUIDE.read_text(encoding="utf-8")
        cls.ids = [element.attributes["id"] for element in cls.guide.all() if "id" in element.attributes]

    def test_has_a_language_and_a_title(self):
        self.assertTrue(self.source.startswith("<!doctype html>"))
        self.assertEqual(self.guide.first("html").attributes.get("lang"), "en")
        self.assertEqual(self.guide.first("title").text(), "Corvix X launcher: user guide")

    def test_ids_are_unique(self):
        self.assertEqual(sorted(self.ids), sorted(set(self.ids)))

    def test_every_link_leads_somewhere(self):
        for link in self.guide.all("a"):
            address = link.attributes["href"]
            with self.subTest(link=address):
                if address.startswith("#"):
                    self.assertIn(address[1:], self.ids)
                elif urllib.parse.urlsplit(address).scheme:
                    self.assertIn(address, OUTSIDE)
                else:
                    self.assertTrue((GUIDE.parent / urllib.parse.unquote(address)).is_file(), "no such file")

    def test_references_inside_drawings_exist(self):
        for element in self.guide.all():
            for name in ("aria-labelledby", "aria-describedby"):
                for target in element.attributes.get(name, "").split():
                    self.assertIn(target, self.ids)

    def test_loads_only_files_beside_it(self):
        self.assertEqual(list(self.guide.all("script", "iframe", "object", "embed", "base", "link")), [])
        for element in self.guide.all():
            for name in LOADING:
                if name in element.attributes:
                    self.assertRegex(element.attributes[name], r"^[\w.-]+$")
                    self.assertTrue((GUIDE.parent / element.attributes[name]).is_file(), element.attributes[name])
            self.assertEqual([name for name in element.attributes if name.startswith("on")], [])
        self.assertEqual(re.findall(r"@import|url\((?!#)|http-equiv", self.source), [])
        hosts = set(re.findall(r"""["'(](?:https?:)?//[^"')\s]+""", self.source))
        self.assertEqual({host[1:] for host in hosts}, OUTSIDE)

    def test_pictures_have_a_size_and_a_text(self):
        for picture in self.guide.all("img"):
            self.assertGreater(len(picture.attributes["alt"]), 20)
            size = (GUIDE.parent / picture.attributes["src"]).read_bytes()[16:24]  # Of a PNG.
            self.assertEqual((int.from_bytes(size[:4], "big"), int.from_bytes(size[4:], "big")),
                             (int(picture.attributes["width"]), int(picture.attributes["height"])))
        for drawing in self.guide.all("svg"):
            hidden = drawing.attributes.get("aria-hidden") == "true"
            self.assertTrue(hidden or drawing.first("title"), "a drawing has no title")

    def test_contents_name_every_section_in_order(self):
        entries = [link.attributes["href"][1:] for link in self.guide.first("nav").all("a")]
        sections = list(self.guide.first("main").all("section"))
        self.assertEqual(entries, [section.attributes["id"] for section in sections])
        for section in sections:
            self.assertEqual(len(list(section.all("h2"))), 1, section.attributes["id"])

    def test_headings_do_not_skip_a_level(self):
        levels = [int(heading.tag[1]) for heading in self.guide.all("h1", "h2", "h3", "h4", "h5", "h6")]
        self.assertEqual(levels.count(1), 1)
        for before, after in zip(levels, levels[1:]):
            self.assertLessEqual(after, before + 1)

    def test_is_small(self):
        loaded = [picture.attributes["src"] for picture in self.guide.all("img")]
        self.assertLess(len(self.source.encode()), 80_000)
        self.assertLess(sum((GUIDE.parent / name).stat().st_size for name in loaded), 150_000)


unittest.main()
