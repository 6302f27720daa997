"""The installed guide in a real browser: it loads nothing but its own files, follows its links, and fits every page."""

import base64
import os
import pathlib
import re
import sys
import unittest

from browser import Browser, find_browser

GUIDE = pathlib.Path(sys.argv.pop(1)).resolve()
PICTURES = os.environ.get("GUIDE_PICTURES")  # A folder for pictures of what is tested, to be looked at.
WIDTHS = {"phone": 360, "tablet": 768, "desktop": 1280}

FOLLOW_LINK = """
    (() => {
        const link = document.querySelectorAll('a[href^="#"]')[%d];
        const target = document.getElementById(link.hash.slice(1));
        link.click();
        const box = target.getBoundingClientRect();
        const seen = box.bottom > 0 && box.top < innerHeight;
        return [link.hash, location.hash, seen, target.getClientRects().length > 0];
    })()"""

# Texts that stand out of the page, or of a box that does not scroll.
CUT_OFF = """
    [...document.body.querySelectorAll('*')].filter(element => {
        const box = element.getBoundingClientRect();
        const style = getComputedStyle(element);
        return box.width > 0 && box.right > document.documentElement.clientWidth + 1 && style.position !== 'absolute'
            && !element.closest('pre, .scroll, svg');
    }).map(element => element.outerHTML.slice(0, 80))"""

# Boxes that have to be scrolled sideways.
SCROLLED = """
    [...document.querySelectorAll('pre, .scroll')].filter(box => box.scrollWidth > box.clientWidth)
        .map(box => box.innerText.slice(0, 80))"""

# The contrast of every text with the background it stands on, where it is less than WCAG asks for.
PALE = """
    (() => {
        const numbers = color => (color.match(/[\\d.]+/g) || []).map(Number);
        const light = ([r, g, b]) => [r, g, b].map(v => v / 255)
            .map(v => v <= .04045 ? v / 12.92 : ((v + .055) / 1.055) ** 2.4)
            .reduce((sum, v, i) => sum + v * [.2126, .7152, .0722][i], 0);
        const background = element => {
            for (let node = element; node; node = node.parentElement) {
                const color = numbers(getComputedStyle(node).backgroundColor);
                if (color.length === 3 || color[3] > 0) return color;
            }
            return [255, 255, 255];
        };
        const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        const pale = new Set();
        for (let node = walker.nextNode(); node; node = walker.nextNode()) {
            const element = node.parentElement;
            if (!node.data.trim() || !element.getClientRects().length || element.closest('svg')) continue;
            const [a, b] = [numbers(getComputedStyle(element).color), background(element)].map(light);
            if ((Math.max(a, b) + .05) / (Math.min(a, b) + .05) < 4.5) pale.add(node.data.trim().slice(0, 60));
        }
        return [...pale];
    })()"""


class GuideInBrowser(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = Browser(find_browser()).__enter__()
        cls.addClassCleanup(cls.browser.__exit__)

    def setUp(self):
        self.browser.set_media()
        self.browser.resize(1280, 900)
        self.browser.open(GUIDE.as_uri())

    def keep_picture(self, name):
        if PICTURES:
            height = self.browser.value("document.documentElement.scrollHeight")
            picture = self.browser.call("Page.captureScreenshot", captureBeyondViewport=True, clip={
                "x": 0, "y": 0, "width": self.browser.value("innerWidth"), "height": height, "scale": 1})
            pathlib.Path(PICTURES, f"{name}.png").write_bytes(base64.b64decode(picture["data"]))

    def test_loads_nothing_but_files_beside_it(self):
        requested = self.browser.requested()
        self.assertIn(GUIDE.as_uri(), requested)
        for address in requested:
            self.assertTrue(address.startswith((GUIDE.parent.as_uri(), "data:")), address)
        self.assertEqual([event["params"]["errorText"] for event in self.browser.events
                          if event.get("method") == "Network.loadingFailed"], [])
        self.assertTrue(self.browser.value("[...document.images].every(image => image.naturalWidth > 0)"))

    def test_every_link_shows_its_target(self):
        count = self.browser.value("document.querySelectorAll('a[href^=\"#\"]').length")
        self.assertGreater(count, 20)
        for index in range(count):
            link, place, is_seen, is_there = self.browser.value(FOLLOW_LINK % index)
            self.assertEqual(place, link)
            self.assertTrue(is_seen and is_there, link)

    def test_fits_every_width_in_light_and_dark(self):
        backgrounds = set()
        for scheme in ("light", "dark"):
            self.browser.set_media(scheme=scheme)
            backgrounds.add(self.browser.value("getComputedStyle(document.body).backgroundColor"))
            for name, width in WIDTHS.items():
                with self.subTest(scheme=scheme, width=width):
                    self.browser.resize(width, 900)
                    self.keep_picture(f"{name}-{scheme}")
                    self.assertLessEqual(self.browser.value("document.documentElement.scrollWidth"), width)
                    self.assertEqual(self.browser.value(CUT_OFF), [])
                    if name == "desktop":
                        self.assertEqual(self.browser.value(SCROLLED), [])
                    self.assertEqual(self.browser.value(PALE), [])
        self.assertEqual(len(backgrounds), 2, "light and dark look the same")

    def test_prints_on_paper(self):
        self.browser.set_media(media="print")
        self.assertEqual(self.browser.value("getComputedStyle(document.querySelector('nav')).display"), "none")
        self.assertEqual(self.browser.value("getComputedStyle(document.body).backgroundColor"), "rgb(255, 255, 255)")
        self.assertEqual(self.browser.value(PALE), [])
        document = base64.b64decode(self.browser.call("Page.printToPDF", preferCSSPageSize=True, printBackground=False)["data"])
        if PICTURES:
            pathlib.Path(PICTURES, "guide.pdf").write_bytes(document)
        pages = len(re.findall(rb"/Type\s*/Page\b", document))
        self.assertTrue(8 <= pages <= 24, f"{pages} pages")

    def test_works_without_scripts(self):
        self.browser.call("Emulation.setScriptExecutionDisabled", value=True)
        self.browser.open(GUIDE.as_uri())
        self.browser.call("Emulation.setScriptExecutionDisabled", value=False)
        self.assertGreater(self.browser.value("document.body.innerText.length"), 20000)


if not find_browser():
    print("SKIPPED: no chromium is installed.")
    sys.exit(77)
unittest.main()
