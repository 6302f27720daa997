"""Checks what the window opens: a producer's directory, the documentation, the vendor's site, and the box about Qt."""

import unittest

from desktop import DesktopTest


class Opening(DesktopTest):
    def test_xdg_open_receives_the_path_or_url_of_each_target(self):
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

    def test_menu_at_the_pointer_opens_the_box_about_qt(self):
        launcher = self.start()
        menu = launcher.menu_at("aboutQt_")
        self.assertEqual(tuple(menu["onScreen"][:2]), launcher.place("aboutQt_"))
        launcher.choose(menu, "About Qt")
        box = launcher.box()
        self.assertEqual(box["text"], "About Qt")
        launcher.answer(box)


if __name__ == "__main__":
    unittest.main()
