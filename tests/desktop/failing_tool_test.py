"""A tool that cannot be started is told by the path of the configuration; what a started one does is its own affair."""

import os
import unittest

from desktop import DesktopTest, click, texts_of
from launcher import output_of, wait_for

TOOL = "bin/ImageViewer"


class FailingTool(DesktopTest):
    def press_tile(self):
        launcher = self.start_listed()
        launcher.select(0, "Area Scan Cameras")
        click(*launcher.middle_of(launcher.tiles()["Image Viewer"]))
        return launcher

    def assert_told(self, launcher):
        box = launcher.box()
        self.assertEqual(box["text"], "Launch failed")
        self.assertIn(f"Could not launch:\n{TOOL}", texts_of(box))
        launcher.answer(box)
        self.assert_goes_on(launcher)

    def assert_goes_on(self, launcher):
        self.assertEqual(len(launcher.rows()), 8)
        launcher.select(2, "High Resolution Cameras")  # Not possible while a box is open.
        self.assertIsNone(launcher.of_class("QMessageBox"))

    def test_a_missing_tool_is_told(self):
        self.installation.remove(TOOL)
        self.assert_told(self.press_tile())

    def test_a_dangling_link_is_told(self):
        self.installation.remove(TOOL)
        os.symlink("nowhere", self.installation.path(TOOL))
        self.assert_told(self.press_tile())

    def test_a_directory_in_its_place_is_told(self):
        self.installation.remove(TOOL)
        os.mkdir(self.installation.path(TOOL))
        self.assert_told(self.press_tile())

    def test_a_tool_that_is_not_executable_is_told(self):
        self.installation.put(TOOL, "#!/bin/sh\n", mode=0o644)
        self.assert_told(self.press_tile())

    def test_a_tool_with_a_broken_interpreter_line_is_told(self):
        self.installation.put(TOOL, "#!/nowhere/interpreter\n")
        self.assert_told(self.press_tile())

    def test_an_empty_file_is_told(self):
        self.installation.put(TOOL, "")
        self.assert_told(self.press_tile())

    def test_a_tool_that_exits_at_once_leaves_no_box_and_no_zombie(self):
        note = self.installation.path("note")
        self.installation.put(TOOL, f'#!/bin/sh\n>"{note}"\nexit 3\n')
        launcher = self.press_tile()
        wait_for("the tool ran", lambda: os.path.exists(note))
        self.assert_goes_on(launcher)
        states = output_of("ps", "--ppid", str(launcher.process.pid), "-o", "stat=").split()
        self.assertEqual([state for state in states if state.startswith("Z")], [])
        self.assertEqual(launcher.printed(), "")

    def test_after_a_failure_the_tool_can_be_started(self):
        self.installation.remove(TOOL)
        launcher = self.press_tile()
        launcher.answer(launcher.box())
        note = self.installation.record_starts(TOOL)
        click(*launcher.middle_of(launcher.tiles()["Image Viewer"]))
        wait_for("the tool is started", lambda: os.path.exists(note))


if __name__ == "__main__":
    unittest.main()
