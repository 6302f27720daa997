"""Prints what in catalogues is unfinished, or disagrees with its source; fails when there is anything."""

import os
import re
import sys
from xml.etree import ElementTree

# What has to be in a translation as often as it is in its source.
KEPT = {
    "places": r"%(?:L?\d+|n)",
    "tags": r"<[^<>]*>",
    "accelerators": r"&(?=\w)",
    "line ends": r"\n",
    "dots at the end": r"\.\.\.$",
    "blanks around it": r"^\s|\s$",
}


def messages(catalogue):
    """(context, source, translation element) of every entry."""
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message.findtext("source"), message.find("translation")


def findings(source, translation):
    forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
    if translation.get("type") is not None or not all(form.strip() for form in forms):
        yield translation.get("type", "empty")
        return
    for form in forms:
        for what, pattern in KEPT.items():
            if sorted(re.findall(pattern, source)) != sorted(re.findall(pattern, form)):
                yield f"other {what}: {form!r}"


def main():
    found = False
    for catalogue in sys.argv[1:]:
        for context, source, translation in messages(catalogue):
            for finding in findings(source, translation):
                found = True
                print(f"{os.path.basename(catalogue)}: {context}: {source!r}: {finding}")
    sys.exit(found)


if __name__ == "__main__":
    main()
