"""Closing, exiting and storms of requests while cameras are searched for, and while a box is open."""

import os
import time
import unittest

from desktop import DesktopTest, click, drag, window_box, x_window
from launcher import output_of, soon, wait_for, xdotool
from scripted import ScriptedTest
from x11 import ask_to_close

TOOL = "bin/ImageViewer"


class DuringAScan(ScriptedTest):
    def start_scanning(self):
        launcher = self.start(**self.scripted(cameras=3, gate=True))
        self.wait_for_scan()
        self.assertEqual(launcher.rows(), [("Scanning...", "", "")])
        return launcher

    def assert_ends_after_the_scan(self, launcher):
        self.assertFalse(soon(lambda: self.recorded("Shutdown") or launcher.process.poll() is not None, 0.3))
        self.open_gate()
        self.assert_ends(launcher)
        self.assertEqual((self.recorded("Scan"), self.recorded("Shutdown")), (1, 1))
        self.assertEqual(launcher.printed(), "")

    def test_the_window_answers(self):
        launcher = self.start_scanning()
        self.assertFalse(launcher.is_idle())
        left, top, _, _ = window_box()
        drag(launcher.middle_of(launcher.find("widget")), (30, 20))
        wait_for("the window follows", lambda: window_box()[:2] == (left + 30, top + 20))
        launcher.menu_at(launcher.middle_of(launcher.find("aboutQt_")))
        xdotool("key", "Escape")
        self.open_gate()
        launcher.wait_until_listed(cameras=3)

    def test_a_press_on_refresh_is_dropped(self):
        launcher = self.start_scanning()
        click(*launcher.middle_of(launcher.find("refreshBtn")), times=5)
        launcher.menu_at(launcher.middle_of(launcher.find("aboutQt_")))  # Handled after the presses.
        self.open_gate()
        launcher.wait_until_listed(cameras=3)
        self.assertEqual(self.recorded("Scan"), 1)

    def test_closing_ends_the_program_after_the_scan(self):
        launcher = self.start_scanning()
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        wait_for("the window is gone", lambda: not window_box())
        self.assert_ends_after_the_scan(launcher)

    def test_exit_ends_the_program_after_the_scan(self):
        launcher = self.start_scanning()
        menu = launcher.open_tray_menu()
        launcher.choose(menu, "Exit")
        wait_for("the menu closes", lambda: "IsViewable" not in output_of("xwininfo", "-id", menu["xWindow"]))
        self.assert_ends_after_the_scan(launcher)


def press_refresh_a_thousand_times(launcher):
    click(*launcher.middle_of(launcher.find("refreshBtn")), times=1000, delay=1)
    launcher.menu_at(launcher.middle_of(launcher.find("aboutQt_")))  # Opens when all presses have been handled.
    xdotool("key", "Escape")


class Storms(ScriptedTest):
    def test_a_thousand_announcements_a_second_leave_the_window_usable(self):
        launcher = self.start(**self.scripted(cameras=5, storm=True))
        begin = time.monotonic()
        slowest = 0.0
        while self.recorded("Announcement") < 2000:
            asked = time.monotonic()
            launcher.windows()
            slowest = max(slowest, time.monotonic() - asked)
            self.assertLess(asked - begin, 20, "the announcements come to a halt")
        seconds = time.monotonic() - begin
        print(f"{self.recorded('Announcement') / seconds:.0f} announcements and {self.recorded('Scan') / seconds:.0f} "
              f"scans a second; slowest answer {slowest:.3f} s")
        self.assertLess(slowest, 1)
        self.assertGreater(self.recorded("Scan"), 10)
        self.assertEqual(self.recorded("OverlappingScan"), 0)
        launcher.menu_at(launcher.middle_of(launcher.find("aboutQt_")))
        xdotool("key", "Escape")
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        self.assert_ends(launcher)
        self.assertEqual(self.recorded("Shutdown"), 1)


    def test_a_thousand_presses_on_refresh_never_scan_twice_at_once(self):
        launcher = self.start(**self.scripted(cameras=5))
        launcher.wait_until_listed(cameras=5)
        press_refresh_a_thousand_times(launcher)
        launcher.wait_until_listed(cameras=5)
        print(f"{self.recorded('Scan')} scans by 1000 presses")
        self.assertIn(self.recorded("Scan"), range(10, 1002))
        self.assertEqual(self.recorded("OverlappingScan"), 0)


class Presses(DesktopTest):
    def test_a_thousand_presses_on_refresh_leave_nothing_behind(self):
        launcher = self.start_listed()
        rows, hosts, held = launcher.rows(), self.hosts(launcher), self.held(launcher)
        press_refresh_a_thousand_times(launcher)
        launcher.wait_until_listed()
        self.assertEqual(launcher.rows(), rows)
        self.assertEqual(self.hosts(launcher), hosts)
        # Threads that wait for the next scan, one a processor at most, have a descriptor each.
        for before, now in zip(held, self.held(launcher)):
            self.assertLessEqual(now, before + os.cpu_count())
        launcher.select(0, "Area Scan Cameras")
        click(*launcher.middle_of(launcher.find("pushButton_2")))
        self.assert_ends(launcher)
        self.assertEqual(launcher.printed(), "")

    @staticmethod
    def hosts(launcher):
        return output_of("pgrep", "--parent", str(launcher.process.pid)).split()

    @staticmethod
    def held(launcher):
        """How many descriptors and threads."""
        return [len(os.listdir(f"/proc/{launcher.process.pid}/{kind}")) for kind in ("fd", "task")]


class DuringABox(DesktopTest):
    def start_with_box(self):
        """A message box over the window: a tool is missing."""
        self.installation.remove(TOOL)
        launcher = self.start_listed()
        launcher.select(0, "Area Scan Cameras")
        click(*launcher.middle_of(launcher.tiles()["Image Viewer"]))
        launcher.box()
        return launcher

    def test_the_window_closes_only_after_the_box(self):
        launcher = self.start_with_box()
        window = x_window()
        ask_to_close(window)
        ask_to_close(x_window("Launch failed"))
        wait_for("the box is gone", lambda: not launcher.of_class("QMessageBox"))
        launcher.select(2, "High Resolution Cameras")  # The first request is not remembered.
        ask_to_close(window)
        self.assert_ends(launcher)
        self.assertEqual(launcher.printed(), "")

    def test_a_menu_does_not_keep_the_window_from_closing(self):
        launcher = self.start_listed()
        launcher.menu_at(launcher.in_cell(0), button=3)
        ask_to_close(x_window())
        self.assert_ends(launcher)
        self.assertEqual(launcher.printed(), "")

    def test_the_camera_list_changes_behind_the_box(self):
        launcher = self.start_with_box()
        self.installation.put("cti/CorvixCameraSimulator.json", '{"interfaces": []}')
        wait_for("the cameras go", lambda: launcher.rows() == [])
        launcher.answer(launcher.box())

    def test_the_tray_waits_for_the_box(self):
        launcher = self.start_with_box()
        icon = launcher.middle_of(launcher.tray_icon())
        click(*icon, button=3)
        click(*icon, times=2)
        launcher.answer(launcher.box())
        self.assertIsNone(launcher.of_class("QMenu"))
        launcher.choose(launcher.open_tray_menu(), "Exit")
        self.assert_ends(launcher)


if __name__ == "__main__":
    unittest.main()
