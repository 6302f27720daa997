"""What the guide lists, compared with the files and the code that it is about."""

import json
import pathlib
import re
import sys
import unittest
import xml.etree.ElementTree

from guide_document import read_guide

GUIDE, ROOT = (pathlib.Path(argument) for argument in (sys.argv.pop(1), sys.argv.pop(1)))


def text_of(path):
    return (ROOT / path).read_text(encoding="utf-8")


class GuideFacts(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.guide = read_guide(GUIDE)
        cls.config = json.loads(text_of("resources/config/launcher_config.json"))
        cls.cameras = json.loads(text_of("resources/config/cameras_reference.json"))["cameras"]
        cls.scene_source = text_of("sdk/simulator/Scene.cpp")

    def element(self, identifier):
        return next(element for element in self.guide.all() if element.attributes.get("id") == identifier)

    def rows(self, identifier):
        """The body of a table, or of all tables of a section, as texts."""
        return [[" ".join(cell.text().split()) for cell in row.all("td")]
                for body in self.element(identifier).all("tbody") for row in body.all("tr")]

    def test_tools_are_those_of_the_configuration(self):
        tools = {}
        for group in self.config["hardwareGroups"]:
            for tool in group["tools"]:
                if any(platform.startswith("linux") for platform in tool.get("platforms", ["linux"])):
                    tools.setdefault((tool["name"], tool["executable"]), []).append(group["name"])
        told = {(name, file): users for name, file, users in self.rows("tools")}
        self.assertEqual(sorted(told), sorted(tools))
        for tool, groups in tools.items():
            everywhere = len(groups) == len(self.config["hardwareGroups"])
            for group in ["every group"] if everywhere else groups:
                self.assertIn(group, told[tool])

    def test_families_are_those_of_the_reference(self):
        names = {group["type"]: group["name"] for group in self.config["hardwareGroups"]}
        families = {}
        for camera in self.cameras:
            families.setdefault(names[camera["type"]], []).append(camera["model"])
        self.assertEqual(dict(self.rows("families")), {group: ", ".join(models) for group, models in families.items()})

    def test_groups_are_those_of_the_configuration(self):
        told = {group for _, group in self.rows("groups")}
        self.assertLessEqual({group["name"] for group in self.config["hardwareGroups"]}, told)

    def test_number_of_models_is_that_of_the_compatibility_table(self):
        models = json.loads(text_of("resources/config/halvex_tool_compatibility.json"))["cameras"]
        self.assertIn(f"knows {len(models)} models", self.element("groups").text())

    def test_words_for_transport_layer_files_are_those_of_the_code(self):
        known = [set(words.lower().split()) for words in
                 re.findall(r'\{l\("[^"]*"\), l\("([^"]*)"\)\}', text_of("ui/MainWindowConfig.cpp"))]
        told = [set(re.sub(r"\(.*?\)", "", words).split()) for _, words in self.rows("keywords") if words != "none"]
        self.assertEqual(told, known)

    def test_keys_of_the_scene_are_those_of_the_code(self):
        known = set(re.findall(r'(?:Text|contains|forEachElement)\((?:\w+, )?"(\w+)"', self.scene_source))
        self.assertLessEqual({"id", "tlType", "devices", "interfaces"}, known)
        self.assertEqual({key for key, _, _ in self.rows("scene-keys")}, known)

    def test_example_of_a_scene_uses_them_all(self):
        keys = set()

        def collect(value):
            for child in value if isinstance(value, list) else value.values() if isinstance(value, dict) else []:
                collect(child)
            keys.update(value if isinstance(value, dict) else [])
        collect(json.loads(self.element("example-scene").text()))
        self.assertEqual(keys, {key for key, _, _ in self.rows("scene-keys")})

    def test_example_of_cvxc_adds_one_directory_before_the_last(self):
        def paths(text):
            return [path.text.strip() for path in xml.etree.ElementTree.fromstring(text).findall("CtiPaths/Path")]
        shipped = paths(text_of("packaging/CvxC.xml").encode())
        example = paths(self.element("example-cvxc").text())
        self.assertEqual(example[:-2] + example[-1:], shipped)

    def test_names_files_as_they_are_installed(self):
        root = GUIDE.parent.parent
        for file in ("bin/CorvixLauncher", "bin/CvxC.xml", "bin/CvxProducerHost", "cti/CorvixCameraSimulator.cti",
                     "cti/CorvixCameraSimulator.json", "lib/udev/rules.d/60-corvix-usb3-vision.rules"):
            self.assertIn(file, self.guide.text())
            self.assertTrue((root / file).exists(), file)

    def test_names_the_times_of_the_library(self):
        options = text_of("sdk/cvxcpp/SystemOptions.h")
        words = {1: "one", 2: "two", 3: "three", 10: "ten", 60: "60"}
        for name, sentence in (("lookInterval", "Cameras are looked for every {} seconds"),
                               ("interfaceInterval", "interfaces every {}"),
                               ("answerWait", "A search waits {} seconds for a producer"),
                               ("answerLimit", "has not answered for {} seconds"),
                               ("longestRestart", "up to {} seconds")):
            value = int(re.search(rf"{name}\s*{{\s*(\d+)}}", options)[1])
            self.assertIn(sentence.format(words[value // 1000]), " ".join(self.guide.text().split()))


unittest.main()
