"""Checks what a screen reader reads, and the order in which the Tab key reaches the controls."""

import os
import unittest

import accessible
from desktop import DesktopTest
from launcher import descendants, wait_for, xdotool

BUTTONS = ["Menu", "Minimize", "Close", "Refresh", "Documentation"]
LINK = "orvelle.example"
TAB_STOPS = ["Menu", "Minimize", "Close", "Refresh", "Recommended tools", LINK, "Documentation"]


class ReadingTest(DesktopTest):
    def start_readable(self, **environment):
        launcher = self.start_without_window(
            DBUS_SESSION_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"], **environment)
        self.application = accessible.application_of(launcher.process.pid)
        self.assertEqual(self.application.get_name(), "CorvixLauncher")
        self.assertEqual([button.get_name() for button in accessible.of_role(self.application, accessible.BUTTON)],
                         BUTTONS)
        return launcher


class UnderX(ReadingTest):
    def setUp(self):
        super().setUp()
        self.launcher = self.start_readable()
        self.launcher.wait_until_listed()

    def test_screen_reader_reads_the_headers_and_cells_of_the_table(self):
        table, = accessible.of_role(self.application, accessible.TABLE)
        self.assertEqual(table.get_name(), "Connected cameras")
        self.assertEqual([table.get_column_header(column).get_name() for column in range(table.get_n_columns())],
                         ["Vendor Name", "Model Name", "Serial Number"])
        self.assertEqual([tuple(table.get_accessible_at(row, column).get_name() for column in range(3))
                          for row in range(table.get_n_rows())], self.launcher.rows())
        self.launcher.select(4, "Line Scan Cameras")
        self.assertEqual(list(table.get_selected_rows()), [4])

    def test_screen_reader_reads_hint_and_tiles_and_message_boxes(self):
        self.installation.remove("doc/index.html")
        self.launcher.select(4, "Line Scan Cameras")
        self.assertTrue(accessible.named(self.application, self.launcher.hint()))
        enabled = self.launcher.enabled_tools()
        self.assertTrue(enabled)
        for name, node in self.launcher.tiles().items():
            tile = accessible.named(self.application, name)
            self.assertIn(tile.get_description(), [child["text"] for child in descendants(node)])
            self.assertEqual(accessible.has(tile, accessible.ENABLED), name in enabled)
        self.launcher.click("documentationBtn")
        self.launcher.box()
        text = f"Unable to open documentation at:\nfile://{self.installation.path('doc/index.html')}"
        self.assertTrue(accessible.named(self.application, text))

    def test_every_focusable_control_has_a_name(self):
        focusable = [node for node in accessible.descendants(self.application)
                     if accessible.has(node, accessible.FOCUSABLE)]
        self.assertGreaterEqual(len(focusable), len(TAB_STOPS))
        self.assertEqual([node.get_role_name() for node in focusable if not node.get_name()], [])

    def test_tab_key_cycles_through_the_controls_from_top_to_bottom(self):
        self.installation.record_openings()
        self.assertEqual(self.focused(), TAB_STOPS[0])
        for name in TAB_STOPS[1:] + TAB_STOPS[:1]:
            if self.focused() == LINK:
                xdotool("key", "Tab")  # Qt focuses a label with a link twice: first the text, and then the link.
                xdotool("key", "Return")
                self.assertEqual(self.installation.opened(), ["https://www.orvelle.example"])
            before = self.focused()
            xdotool("key", "Tab")
            self.assertEqual(wait_for("the focus moves", lambda before=before: self.focused() not in ("", before)
                                      and self.focused()), name)

    def focused(self):
        """Returns the name of the node that has the focus, or an empty string if no node has the focus."""
        return next((node.get_name() for node in accessible.descendants(self.application)
                     if accessible.has(node, accessible.FOCUSED)), "")


class UnderWayland(ReadingTest):
    def test_screen_reader_reads_the_window_title(self):
        self.start_readable(DISPLAY="")
        self.assertTrue(accessible.named(self.application, "Corvix X - Application Launcher"))


if __name__ == "__main__":
    unittest.main()
