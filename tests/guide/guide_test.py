"""Checks the installed guide in a browser: its files, its links, its layout in narrow windows and its contrast.

usage: guide_test.py GUIDE   Set GUIDE_PICTURES to a folder to keep pictures of the pages.
"""

import json
import os
import pathlib
import shutil
import sys
import tempfile
import unittest
import urllib.parse
import xml.etree.ElementTree

DRIVER = shutil.which("chromedriver")
if not DRIVER:
    print("SKIPPED: chromedriver is not installed.")
    sys.exit(77)

from selenium import webdriver  # pylint: disable=wrong-import-position
from selenium.webdriver.chrome.service import Service  # pylint: disable=wrong-import-position

GUIDE = pathlib.Path(sys.argv.pop(1)).resolve()
PICTURES = os.environ.get("GUIDE_PICTURES")
TIMEOUT = 60  # seconds
WIDTHS = (360, 600, 1280)

# Returns the elements that extend beyond the right edge of the page.
CUT_OFF = """
    return [...document.body.querySelectorAll('*')].filter(element => {
        const box = element.getBoundingClientRect();
        return box.width > 0 && box.right > document.documentElement.clientWidth + 1
            && getComputedStyle(element).position !== 'absolute' && !element.closest('pre, .scroll, svg');
    }).map(element => element.outerHTML.slice(0, 80))"""

# Returns the texts whose contrast with their background is less than 4.5, the minimum of WCAG 2.1, level AA.
LOW_CONTRAST = """
    const numbers = color => (color.match(/[\\d.]+/g) || []).map(Number);
    const luminance = ([r, g, b]) => [r, g, b].map(v => v / 255)
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
    const found = new Set();
    for (let node = walker.nextNode(); node; node = walker.nextNode()) {
        const element = node.parentElement;
        if (!node.data.trim() || !element.getClientRects().length || element.closest('svg')) continue;
        const [a, b] = [numbers(getComputedStyle(element).color), background(element)].map(luminance);
        if ((Math.max(a, b) + .05) / (Math.min(a, b) + .05) < 4.5) found.add(node.data.trim().slice(0, 60));
    }
    return [...found]"""


class Guide(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        profile = tempfile.TemporaryDirectory()
        cls.addClassCleanup(profile.cleanup)
        options = webdriver.ChromeOptions()
        for option in ("--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                       "--disable-background-networking", "--disable-component-update",
                       f"--user-data-dir={profile.name}"):
            options.add_argument(option)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        cls.browser = webdriver.Chrome(service=Service(DRIVER), options=options)
        cls.addClassCleanup(cls.browser.quit)
        cls.browser.set_page_load_timeout(TIMEOUT)
        cls.browser.set_script_timeout(TIMEOUT)

    def setUp(self):
        self.emulate(width=1280)
        self.browser.get(GUIDE.as_uri())
        self.browser.execute_script("document.querySelectorAll('details').forEach(fold => fold.open = true)")

    def emulate(self, width, scheme="light"):
        self.browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                     {"width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False})
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia",
                                     {"features": [{"name": "prefers-color-scheme", "value": scheme}]})

    def value(self, script):
        return self.browser.execute_script(script)

    def network_events(self, method):
        """Returns the parameters of the events with this name since the log was last read."""
        messages = (json.loads(entry["message"])["message"] for entry in self.browser.get_log("performance"))
        return [message["params"] for message in messages if message["method"] == method]

    def test_guide_loads_only_its_own_files(self):
        for log in ("browser", "performance"):
            self.browser.get_log(log)  # Reading a log removes its entries.
        self.browser.refresh()
        requested = [event["request"]["url"] for event in self.network_events("Network.requestWillBeSent")]
        self.assertIn(GUIDE.as_uri(), requested)
        for address in requested:
            self.assertTrue(address.startswith((GUIDE.parent.as_uri(), "data:")), address)
        self.assertEqual(self.browser.get_log("browser"), [])
        self.assertGreater(self.value("return document.images.length"), 0)
        self.assertEqual(self.value("return [...document.images].filter(image => !image.naturalWidth).length"), 0)
        # A page without scripts cannot load anything later.
        self.assertEqual(self.value("return document.scripts.length"), 0)

    def test_every_link_has_a_target(self):
        links = self.value("return [...document.links].map(link => link.getAttribute('href'))")
        self.assertGreater(len(links), 20)
        for link in links:
            with self.subTest(link):
                if link.startswith("#"):
                    self.assertEqual(self.value(
                        f"return document.querySelectorAll('[id={json.dumps(link[1:])}]').length"), 1)
                elif not urllib.parse.urlsplit(link).scheme:
                    self.assertTrue((GUIDE.parent / urllib.parse.unquote(link)).is_file())
        self.assertEqual(self.value(
            "return [...document.querySelectorAll('main section')].map(section => '#' + section.id)"), self.value(
            "return [...document.querySelectorAll('nav a')].map(link => link.getAttribute('href'))"))

    def test_guide_fits_every_width(self):
        for width in WIDTHS:
            with self.subTest(width):
                self.emulate(width)
                self.assertLessEqual(self.value("return document.documentElement.scrollWidth"), width)
                self.assertEqual(self.value(CUT_OFF), [])
                if PICTURES:
                    self.browser.save_screenshot(f"{PICTURES}/{width}.png")

    def test_text_is_readable_in_both_color_schemes(self):
        backgrounds = set()
        for scheme in ("light", "dark"):
            with self.subTest(scheme):
                self.emulate(1280, scheme)
                backgrounds.add(self.value("return getComputedStyle(document.body).backgroundColor"))
                self.assertEqual(self.value(LOW_CONTRAST), [])
        self.assertEqual(len(backgrounds), 2, "both schemes have the same background")

    def test_examples_are_well_formed(self):
        """Checks that the examples of configuration files can be parsed, because users copy them."""
        examples = self.value("return [...document.querySelectorAll('pre[id^=example-]')].map(pre => pre.textContent)")
        self.assertEqual(sorted(example.strip()[0] for example in examples), ["<", "{"])
        for example in examples:
            with self.subTest(example):
                if example.strip().startswith("{"):
                    json.loads(example)
                else:
                    xml.etree.ElementTree.fromstring(example.strip())


unittest.main()
