"""Prints every translation of the given catalogues that is unfinished or does not match its source.

The exit status is 1 if anything is printed.
"""

import os
import re
import sys
from xml.etree import ElementTree

# A translation has to contain each of these patterns exactly as often as its source.
COUNTED = {
    "placeholders": r"%(?:L?\d+|n)",
    "tags": r"<[^<>]*>",
    "accelerators": r"&(?=\w)",
    "line breaks": r"\n",
    "dots at the end": r"\.\.\.$",
    "leading or trailing spaces": r"^\s|\s$",
}


def messages(catalogue):
    """Yields the context, the source and the translation element of every message."""
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message.findtext("source"), message.find("translation")


def findings(source, translation):
    forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
    if translation.get("type") is not None or not all(form.strip() for form in forms):
        yield translation.get("type", "empty")
        return
    for form in forms:
        for name, pattern in COUNTED.items():
            if sorted(re.findall(pattern, source)) != sorted(re.findall(pattern, form)):
                yield f"different {name}: {form!r}"


def main():
    lines = [f"{os.path.basename(catalogue)}: {context}: {source!r}: {finding}"
             for catalogue in sys.argv[1:]
             for context, source, translation in messages(catalogue)
             for finding in findings(source, translation)]
    for line in lines:
        print(line)
    sys.exit(bool(lines))


if __name__ == "__main__":
    main()
