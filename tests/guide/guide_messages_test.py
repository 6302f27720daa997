"""Each text of the program is in the guide, each message of it is explained there, and the guide explains no other."""

import pathlib
import re
import sys
import unittest

import message_texts
from guide_document import read_guide
from message_texts import normalised

GUIDE, ROOT = (pathlib.Path(argument) for argument in (sys.argv.pop(1), sys.argv.pop(1)))


def shown(element):
    return normalised(re.sub(r"\s+", " ", element.text(place="%")).strip())


class GuideMessages(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.guide = read_guide(GUIDE)
        cls.entries = [entry for messages in cls.guide.with_class("messages") for entry in messages.all("div")]
        cls.window = message_texts.window_texts(ROOT)
        cls.boxes = message_texts.box_texts(ROOT)
        cls.log = message_texts.launcher_log_texts(ROOT)
        cls.sdk = message_texts.sdk_texts(ROOT)

    def explained(self):
        """The messages with an explanation: in an entry of a list, or in a row of a table."""
        texts = []
        for entry in self.entries:
            texts += [shown(message) for message in entry.first("dt").all("samp")]
            texts += [shown(message) for message in entry.first("dd").all("samp")]
        for row in self.guide.all("tr"):
            if row.first("samp") and len(shown(list(row.all("td"))[-1])) > 30:
                texts += [shown(message) for message in row.all("samp")]
        return texts

    def test_sources_are_read(self):
        """Or the tests below would pass with nothing to look for."""
        for texts, some in (
                (self.window, {"Refresh", "Scanning...", "Could not launch: %", "CTI location"}),
                (self.boxes, {"Launch failed", "Error", "Unable to register camera list observer"}),
                (self.log, {"Failed to load stylesheet", "The camera scan failed: %"}),
                (self.sdk, {"did not answer within % and was killed", "was ended by SIG% (%)", "GC_ERR_TIMEOUT",
                            "Camera simulator: % is not used: %", '%: "%" is not a string', "gave no handle",
                            "The network cards cannot be listed", "the library lacks %"})):
            self.assertLessEqual(some, texts)

    def test_every_text_of_the_window_is_named(self):
        named = {shown(element) for element in self.guide.with_class("ui")} | set(self.explained())
        named |= {shown(element) for element in self.guide.all("h1", "footer")}
        title = {"Corvix X", "Application launcher", "Orvelle - Corvix X"}  # The window's own name, and no message.
        self.assertEqual(sorted(self.window - title - named), [])

    def test_every_message_of_the_launcher_is_explained(self):
        sentences = {text for text in self.window if re.search(r"[.!]$|%", text)}
        self.assertEqual(sorted((sentences | self.boxes | self.log) - set(self.explained())), [])

    def test_every_reason_of_the_sdk_is_explained(self):
        explained = self.explained()
        missing = [text for text in sorted(self.sdk) if not any(text in message for message in explained)]
        self.assertEqual(missing, [])

    def test_every_explanation_says_why_and_what_to_do(self):
        self.assertGreater(len(self.entries), 30)
        for entry in self.entries:
            with self.subTest(message=shown(entry.first("dt"))):
                for part in ("why", "do"):
                    texts = [shown(element) for element in entry.first("dd").with_class(part)]
                    self.assertEqual(len(texts), 1)
                    self.assertGreater(len(texts[0]), 10)

    def test_no_message_is_explained_that_the_program_does_not_have(self):
        texts = sorted(self.window | self.boxes | self.log | self.sdk, key=len, reverse=True)
        for entry in self.entries:
            if "system" in entry.attributes.get("class", "").split():
                continue  # Of the system or a library; not in our sources.
            for message in entry.first("dt").all("samp"):
                rest = shown(message)
                for text in texts:
                    rest = re.sub(rf"(?<!\w){re.escape(text)}(?!\w)", " ", rest)
                words = [word for word in re.findall(r"\w+", rest) if not re.match(r"libCvxCPP$|dl|(GC|TL|IF)[A-Z]", word)]
                self.assertEqual(words, [], shown(message))

    def test_codes_have_their_numbers(self):
        names = re.findall(r'"(GC_ERR_\w+)"', (ROOT / "sdk/cvxcpp/ExitReason.cpp").read_text(encoding="utf-8"))
        rows = [[shown(cell) for cell in row.all("td")][:2] for row in self.guide.all("tr")]
        self.assertEqual([row for row in rows if row and row[1].startswith("GC_ERR_")],
                         [[str(-1001 - index), name] for index, name in enumerate(names)])


unittest.main()
