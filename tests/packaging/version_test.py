"""The version stands in one place, the project() line of CMakeLists.txt; what else tells it agrees, or is made from it."""

import os
import re
import subprocess
import sys
import xml.etree.ElementTree

SOURCE = sys.argv[1]


def read(path):
    with open(f"{SOURCE}/{path}", encoding="utf-8") as file:
        return file.read()


def source_files():
    """What is under version control; of a tree without history, everything but hidden and built files."""
    if os.path.exists(f"{SOURCE}/.git"):
        listed = subprocess.run(["git", "-c", f"safe.directory={SOURCE}", "-C", SOURCE, "ls-files"], check=True,
                                stdout=subprocess.PIPE, text=True).stdout
        return [path for path in listed.splitlines() if os.path.isfile(f"{SOURCE}/{path}")]
    return [os.path.relpath(os.path.join(parent, name), SOURCE) for parent, folders, names in os.walk(SOURCE)
            for name in names if not re.match(r"(build|\.)", os.path.relpath(parent, SOURCE)) or parent == SOURCE]


def project_version():
    return re.search(r"^project\(\w+ VERSION (\d+\.\d+\.\d+)\b", read("CMakeLists.txt"), re.MULTILINE)[1]


def releases_of_changelog():
    """Version and day of each release, newest first."""
    text = read("CHANGELOG.md")
    releases = re.findall(r"^## \[(\d+\.\d+\.\d+)\] - (\d{4}-\d\d-\d\d)$", text, re.MULTILINE)
    heads = re.findall(r"^## .*$", text, re.MULTILINE)
    assert len(heads) - ("## [Unreleased]" in heads) == len(releases), f"a head of CHANGELOG.md is malformed: {heads}"
    assert heads.index("## [Unreleased]") == 0 if "## [Unreleased]" in heads else True
    numbers = [tuple(map(int, version.split("."))) for version, _ in releases]
    assert numbers == sorted(set(numbers), reverse=True), f"the releases are out of order: {releases}"
    return releases


def releases_of_metainfo(path):
    return [(release.get("version"), release.get("date"))
            for release in xml.etree.ElementTree.fromstring(read(path)).iter("release")]


def main():
    version, files, releases = project_version(), source_files(), releases_of_changelog()
    assert [version] == sys.argv[2:] or not sys.argv[2:], "the build tree is configured for another version"
    assert releases[0][0] == version, f"CHANGELOG.md tells of {releases[0][0]}, the project is {version}"

    told = {"CMakeLists.txt", "CHANGELOG.md"}
    for path in files:
        if path.endswith((".metainfo.xml", ".metainfo.xml.in", ".appdata.xml")):
            assert releases_of_metainfo(path) == releases, f"{path} and CHANGELOG.md tell of other releases"
            told.add(path)

    example = read("sdk/examples/list-cameras/CMakeLists.txt")
    assert f"find_package(CvxCPP {version.split('.', maxsplit=1)[0]} " in example, "the example asks for another version"

    literal = re.compile(rb"(?<![\d.])" + re.escape(version.encode()) + rb"(?![\d.]*\d)")
    for path in sorted(set(files) - told):
        with open(f"{SOURCE}/{path}", "rb") as file:
            assert not literal.search(file.read()), f"{path} tells the version; it has to be made from the project's"
    print(f"{version} in {', '.join(sorted(told))}; in none of {len(files) - len(told)} other files")


main()
