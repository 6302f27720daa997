"""What the window opens: a camera's folder, the documentation, the maker's site and Qt's own notice."""

import os
import unittest

from desktop import DesktopTest, click, noted, texts_of
from launcher import wait_for, xdotool


class OpeningTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.opener = self.installation.record_starts("programs/xdg-open")

    def opened(self):
        """What the opener was given."""
        return noted(self.opener)[:-1]


class CtiLocation(OpeningTest):
    def open_menu(self, launcher, row):
        menu = launcher.menu_at(launcher.in_cell(row), button=3)
        self.assertEqual([action["text"] for action in menu["actions"]], ["CTI location"])
        return menu

    def test_the_opener_gets_the_folder_of_the_camera_s_file(self):
        launcher = self.start_listed()
        launcher.choose(self.open_menu(launcher, 0), "CTI location")
        self.assertEqual(self.opened(), [self.installation.path("cti")])

    def test_the_keyboard_chooses_as_well(self):
        launcher = self.start_listed()
        self.open_menu(launcher, 3)
        xdotool("key", "Down", "Return")
        self.assertEqual(self.opened(), [self.installation.path("cti")])

    def test_escape_opens_nothing(self):
        launcher = self.start_listed()
        self.open_menu(launcher, 0)
        xdotool("key", "Escape")
        wait_for("the menu closes", lambda: not launcher.of_class("QMenu"))
        click(*launcher.middle_of(launcher.find("documentationBtn")))
        self.assertEqual(self.opened(), [f"file://{self.installation.path('doc/index.html')}"])  # And nothing before.

    def test_there_is_no_menu_below_the_last_row(self):
        self.installation.put("cti/CorvixCameraSimulator.json", '{"interfaces": []}')
        launcher = self.start()
        launcher.wait_until_listed(cameras=0)
        click(*launcher.middle_of(launcher.find("cameraTable")), button=3)
        # Handled after the right click; with a menu open it would only close that.
        click(*launcher.middle_of(launcher.find("documentationBtn")))
        self.assertTrue(self.opened())
        self.assertIsNone(launcher.of_class("QMenu"))

    def test_without_an_opener_nothing_happens(self):
        self.installation.remove("programs/xdg-open")
        launcher = self.start_listed(PATH=self.programs)
        launcher.choose(self.open_menu(launcher, 0), "CTI location")
        launcher.select(0, "Area Scan Cameras")  # Not possible while a box is open.
        self.assertEqual(launcher.printed(), "")


class Documentation(OpeningTest):
    def open_documentation(self, **environment):
        launcher = self.start_listed(**environment)
        click(*launcher.middle_of(launcher.find("documentationBtn")))
        return launcher

    def assert_warns(self, launcher):
        box = launcher.box()
        self.assertEqual(box["text"], "Documentation")
        self.assertIn(f"Unable to open documentation at:\nfile://{self.installation.path('doc/index.html')}",
                      texts_of(box))
        launcher.answer(box)
        launcher.select(0, "Area Scan Cameras")

    def test_the_opener_gets_the_installation_s_documentation(self):
        launcher = self.open_documentation()
        self.assertEqual(self.opened(), [f"file://{self.installation.path('doc/index.html')}"])
        self.assertIsNone(launcher.of_class("QMessageBox"))

    def test_missing_documentation_is_told(self):
        self.installation.remove("doc/index.html")
        self.assert_warns(self.open_documentation())
        self.assertFalse(os.path.exists(self.opener))

    def test_a_missing_opener_is_told(self):
        self.installation.remove("programs/xdg-open")
        self.assert_warns(self.open_documentation(PATH=self.programs))

    def test_the_warning_closes_with_the_keyboard(self):
        self.installation.remove("doc/index.html")
        launcher = self.open_documentation()
        launcher.box()
        xdotool("key", "Return")
        wait_for("the box is gone", lambda: not launcher.of_class("QMessageBox"))


class Footer(OpeningTest):
    def test_the_link_opens_the_maker_s_site(self):
        launcher = self.start()
        click(*launcher.middle_of(launcher.find("linkLabel")))
        self.assertEqual(self.opened(), ["https://www.orvelle.example"])


class About(DesktopTest):
    def open_menu(self, launcher):
        menu = launcher.menu_at(launcher.middle_of(launcher.find("aboutQt_")))
        self.assertEqual([action["text"] for action in menu["actions"]], ["About Qt"])
        return menu

    def test_the_menu_opens_at_the_pointer_and_shows_qt_s_notice(self):
        launcher = self.start()
        x, y = launcher.middle_of(launcher.find("aboutQt_"))
        menu = self.open_menu(launcher)
        self.assertEqual(menu["onScreen"][:2], [x, y])
        launcher.choose(menu, "About Qt")
        box = launcher.box()
        self.assertEqual(box["text"], "About Qt")
        launcher.answer(box)

    def test_escape_closes_the_menu_and_nothing_else_happens(self):
        launcher = self.start_listed()
        self.open_menu(launcher)
        xdotool("key", "Escape")
        wait_for("the menu closes", lambda: not launcher.of_class("QMenu"))
        launcher.select(0, "Area Scan Cameras")  # Not possible while a box is open.


if __name__ == "__main__":
    unittest.main()
