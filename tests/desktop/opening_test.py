"""What the window opens: a camera's directory, the documentation, the vendor's site, and Qt's notice."""

import unittest

from desktop import DesktopTest


class Opening(DesktopTest):
    def test_opener_gets_directory_documentation_and_site(self):
        self.installation.record_openings()
        launcher = self.start()
        menu = launcher.menu_at(launcher.cell_place(0), button=3)
        launcher.choose(menu, "CTI location")
        self.assertEqual(self.installation.opened(), [self.installation.path("cti")])
        launcher.click("documentationBtn")
        self.assertEqual(self.installation.opened(), [f"file://{self.installation.path('doc/index.html')}"])
        launcher.click("linkLabel")
        self.assertEqual(self.installation.opened(), ["https://www.orvelle.example"])
        self.assertIsNone(launcher.of_class("QMessageBox"))

    def test_the_menu_opens_at_the_pointer_and_shows_qt_s_notice(self):
        launcher = self.start()
        menu = launcher.menu_at("aboutQt_")
        self.assertEqual(tuple(menu["onScreen"][:2]), launcher.place("aboutQt_"))
        launcher.choose(menu, "About Qt")
        box = launcher.box()
        self.assertEqual(box["text"], "About Qt")
        launcher.answer(box)


if __name__ == "__main__":
    unittest.main()
