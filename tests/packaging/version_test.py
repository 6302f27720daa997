"""Checks that the changelog and the metadata contain the same releases, and that the newest is the project's version.

usage: version_test.py SOURCES
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

SOURCES = pathlib.Path(sys.argv[1])
METAINFO = SOURCES / "packaging/desktop/example.orvelle.CorvixLauncher.metainfo.xml"

project = re.search(r"^project\(\w+ VERSION (\S+)", (SOURCES / "CMakeLists.txt").read_text(encoding="utf-8"), re.M)[1]
changelog = re.findall(r"^## \[([\d.]+)\] - (\S+)$", (SOURCES / "CHANGELOG.md").read_text(encoding="utf-8"), re.M)
metainfo = [(release.get("version"), release.get("date"))
            for release in xml.etree.ElementTree.parse(METAINFO).iter("release")]
assert changelog[0][0] == project and metainfo == changelog, f"project {project}, {changelog}, metadata {metainfo}"
