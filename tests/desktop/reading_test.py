"""The window can be read by a screen reader and its buttons be operated by keyboard."""

import json
import os
import unittest

import accessible
from desktop import HERE, DesktopTest, click, noted, window_box
from launcher import wait_for, xdotool

BUTTONS = ["Menu", "Minimize", "Close", "Refresh", "Documentation"]
LINK = "orvelle.example"
TAB_STOPS = ["Menu", "Minimize", "Close", "Refresh", "Recommended tools", LINK, "Documentation"]


def tools():
    """The description of each tool that has a tile here."""
    with open(f"{HERE}/../../resources/config/launcher_config.json", encoding="utf-8") as file:
        groups = json.load(file)["hardwareGroups"]
    return {tool["name"]: tool["description"] for group in groups for tool in group["tools"]}


def button_names(application):
    return [button.get_name() for button in accessible.of_role(application, accessible.BUTTON)]


class ReadingTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.launcher = self.start_listed(DBUS_SESSION_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self.application = accessible.application_of(self.launcher.process.pid)


class Reading(ReadingTest):
    def test_the_table_has_its_headers_and_cells(self):
        table, = accessible.of_role(self.application, accessible.TABLE)
        self.assertEqual(table.get_name(), "Connected cameras")
        self.assertEqual([table.get_column_header(column).get_name() for column in range(table.get_n_columns())],
                         ["Vendor Name", "Model Name", "Serial Number"])
        self.assertEqual([tuple(table.get_accessible_at(row, column).get_name() for column in range(3))
                          for row in range(table.get_n_rows())], self.launcher.rows())
        self.assertEqual(table.get_n_selected_rows(), 0)
        self.launcher.select(4, "Line Scan Cameras")
        self.assertEqual(list(table.get_selected_rows()), [4])

    def test_every_button_has_its_name(self):
        self.assertEqual(button_names(self.application), BUTTONS)

    def test_the_tiles_have_name_and_description_and_tell_whether_they_are_enabled(self):
        self.launcher.select(4, "Line Scan Cameras")
        told = tools()
        enabled = self.launcher.enabled_tools()
        self.assertTrue(enabled)
        for name in self.launcher.tiles():
            with self.subTest(name):
                tile = accessible.named(self.application, name)
                self.assertEqual(tile.get_description(), told[name])
                self.assertEqual(accessible.has(tile, accessible.ENABLED), name in enabled)

    def test_the_hint_is_read_as_it_changes(self):
        for row, group in ((0, "Area Scan Cameras"), (4, "Line Scan Cameras")):
            self.launcher.select(row, group)
            self.assertTrue(accessible.named(
                self.application, f"Recommended for {group}. Non-recommended tools are disabled."))

    def test_nothing_that_takes_the_focus_is_without_a_name(self):
        focusable = [node for node in accessible.descendants(self.application)
                     if accessible.has(node, accessible.FOCUSABLE)]
        self.assertGreaterEqual(len(focusable), len(TAB_STOPS))
        self.assertEqual([node.get_role_name() for node in focusable if not node.get_name()], [])

    def test_a_message_box_is_read_as_well(self):
        self.installation.remove("doc/index.html")
        click(*self.launcher.middle_of(self.launcher.find("documentationBtn")))
        self.launcher.box()
        text = f"Unable to open documentation at:\nfile://{self.installation.path('doc/index.html')}"
        self.assertTrue(accessible.named(self.application, text))


class UnderWayland(DesktopTest):
    def test_the_window_is_read(self):
        launcher = self.start_without_window(
            DISPLAY="", DBUS_SESSION_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"])
        application = accessible.application_of(launcher.process.pid)
        self.assertTrue(accessible.named(application, launcher.title))
        self.assertEqual(button_names(application), BUTTONS)


class Keyboard(ReadingTest):
    def focused(self):
        """The name of what has the focus; empty when nothing has."""
        return next((node.get_name() for node in accessible.descendants(self.application)
                     if accessible.has(node, accessible.FOCUSED)), "")

    def tab(self):
        """The focus goes on; gives the name of what has it then."""
        before = self.focused()
        # Qt stops twice at a label with a link: at its text, and at the link in it.
        xdotool("key", *["Tab"] * (2 if before == LINK else 1))
        return wait_for("the focus moves", lambda: self.focused() not in (before, "") and self.focused())

    def tab_to(self, name):
        """Gives the names of what had the focus on the way, and the last."""
        passed = [self.tab()]
        while passed[-1] != name:
            self.assertLess(len(passed), len(TAB_STOPS), passed)
            passed.append(self.tab())
        return passed

    def press(self, name):
        self.tab_to(name)
        xdotool("key", "space")

    def test_tab_goes_from_top_to_bottom_and_round_again(self):
        self.assertEqual(self.focused(), TAB_STOPS[0])
        self.assertEqual(self.tab_to(TAB_STOPS[-1]) + [self.tab()], TAB_STOPS[1:] + TAB_STOPS[:1])

    def test_space_opens_the_menu(self):
        self.tab_to("Minimize")
        xdotool("key", "shift+Tab", "space")
        self.assertEqual([action["text"] for action in self.launcher.menu()["actions"]], ["About Qt"])

    def test_space_minimises(self):
        self.press("Minimize")
        wait_for("the window leaves the screen", lambda: not window_box())

    def test_space_closes(self):
        self.press("Close")
        self.assert_ends(self.launcher)

    def test_space_searches_anew(self):
        self.launcher.select(0, "Area Scan Cameras")
        self.press("Refresh")
        wait_for("nothing is selected", lambda: self.launcher.hint().startswith("Select a camera"))
        self.launcher.wait_until_listed()

    def test_space_opens_the_documentation(self):
        opener = self.installation.record_starts("programs/xdg-open")
        self.press("Documentation")
        self.assertEqual(noted(opener)[:-1], [f"file://{self.installation.path('doc/index.html')}"])

    def test_return_follows_the_link(self):
        opener = self.installation.record_starts("programs/xdg-open")
        self.tab_to(LINK)
        xdotool("key", "Tab", "Return")
        self.assertEqual(noted(opener)[:-1], ["https://www.orvelle.example"])


if __name__ == "__main__":
    unittest.main()
