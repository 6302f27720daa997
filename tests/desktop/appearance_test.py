"""What is on the screen: references, the marks of hovering and selecting, the tooltip, and the window's corners."""

import math
import subprocess
import unittest

from desktop import ASIDE, BACKGROUND, DESKTOP, DesktopTest, click, move, window_box
from launcher import wait_for
from screen import grab, near

HOVERED, BAR, ROW_LINE = "#243447", "#64748b", "#2d3a4d"
SELECTED, SELECTED_LINE = "#12273a", "#2196f3"  # The first is rgba(33, 150, 243, 0.15) on the window's background.
RADIUS = 12
AREA_SCAN, HIGH_RESOLUTION = "Area Scan Cameras", "High Resolution Cameras"


class References(DesktopTest):
    def test_the_list_before_a_selection(self):
        launcher = self.start_listed()
        self.assert_looks_like("listed", launcher.picture)

    def test_the_list_with_a_selection(self):
        launcher = self.start_listed()
        launcher.select(2, HIGH_RESOLUTION)
        move(*ASIDE)
        self.assert_looks_like("selected", launcher.picture)

    def test_the_tooltip_of_a_camera(self):
        launcher = self.start_listed()
        move(*launcher.in_cell(0, 1))
        box = launcher.device(wait_for("a tooltip opens", lambda: launcher.of_class("QTipLabel"))["onScreen"])
        self.assert_looks_like("tooltip", lambda: grab(box))


class Rows(DesktopTest):
    def test_the_row_under_the_pointer_is_tinted_in_all_cells(self):
        launcher = self.start_listed()
        move(*launcher.in_cell(1, 2))
        wait_for("the row is tinted", lambda: self.fills(launcher, 1) == [HOVERED] * 3)
        self.assertEqual(self.fills(launcher, 0), [BACKGROUND] * 3)
        move(*launcher.in_cell(3))
        wait_for("another one is tinted", lambda: self.fills(launcher, 3) == [HOVERED] * 3)
        self.assertEqual(self.fills(launcher, 1), [BACKGROUND] * 3)

    def test_the_tint_goes_with_the_pointer(self):
        launcher = self.start_listed()
        move(*launcher.in_cell(1))
        wait_for("the row is tinted", lambda: self.fills(launcher, 1) == [HOVERED] * 3)
        move(*launcher.middle_of(launcher.find("connectedCamerasLabel")))
        wait_for("the tint is gone", lambda: self.fills(launcher, 1) == [BACKGROUND] * 3)

    def test_the_selected_row_has_its_own_colours_also_under_the_pointer(self):
        launcher = self.start_listed()
        launcher.select(2, HIGH_RESOLUTION)
        wait_for("the row looks selected",
                 lambda: all(near(colour, SELECTED) for colour in self.fills(launcher, 2)))
        self.assertEqual(self.lines(launcher, 2), [SELECTED_LINE] * 3)
        self.assertEqual(self.lines(launcher, 1), [ROW_LINE] * 3)

    def test_a_bar_marks_the_rows_of_the_selected_camera_s_group(self):
        launcher = self.start_listed()
        launcher.select(2, HIGH_RESOLUTION)
        wait_for("the bars are drawn", lambda: self.marked(launcher) == [2, 3])
        x, y, _, height = launcher.cell_box(3, 0)
        band = grab((x, y, 6, height))
        self.assertEqual([band.at(column, 3) for column in range(6)], [BAR] * 3 + [BACKGROUND] * 3)
        self.assertEqual([band.at(0, 0), band.at(0, height - 1)], [BAR] * 2)  # Over the full height.
        launcher.select(0, AREA_SCAN)
        wait_for("the bars are drawn elsewhere", lambda: self.marked(launcher) == [0, 1])

    def test_a_refresh_takes_the_marks_away(self):
        launcher = self.start_listed()
        launcher.select(2, HIGH_RESOLUTION)
        click(*launcher.middle_of(launcher.find("refreshBtn")))
        move(*ASIDE)
        wait_for("no row is marked", lambda: launcher.is_idle() and self.marked(launcher) == [])
        self.assertEqual(self.fills(launcher, 2), [BACKGROUND] * 3)
        self.assertEqual(launcher.hint(), "Select a camera to enable its recommended tools.")

    @staticmethod
    def fills(launcher, row):
        """The colour of the row's cells, beside their texts."""
        return [picture.at(picture.width - 5, 3) for picture in Rows.cells(launcher, row)]

    @staticmethod
    def lines(launcher, row):
        """The colour of the line below the row's cells."""
        return [picture.at(picture.width // 2, picture.height - 1) for picture in Rows.cells(launcher, row)]

    @staticmethod
    def cells(launcher, row):
        return [grab(launcher.cell_box(row, column)) for column in range(3)]

    @staticmethod
    def marked(launcher):
        return [row for row in range(5) if grab(launcher.cell_box(row, 0)).at(0, 10) == BAR]


class Tooltip(DesktopTest):
    def test_the_tooltip_shows_picture_and_facts_and_goes(self):
        launcher = self.start_listed()
        move(*launcher.in_cell(0, 1))
        tip = wait_for("a tooltip opens", lambda: launcher.of_class("QTipLabel"))
        for fact in (">GigE<", ">CorvixCameraSimulator.cti<"):
            self.assertIn(fact, tip["text"])
        picture = wait_for("its picture is drawn", lambda: self.with_picture(launcher.device(tip["onScreen"])))
        picture.keep("tooltip seen")
        move(*launcher.middle_of(launcher.find("connectedCamerasLabel")))
        wait_for("the tooltip closes", lambda: not launcher.of_class("QTipLabel"))

    def with_picture(self, box):
        """The tooltip, once there is a picture on white, 78 pixels wide in a cell of 90."""
        tip = grab(box)
        white = [column for column in range(tip.width) if tip.at(column, 4) == "#ffffff"]
        drawn = {tip.at(x, y) for x in white for y in range(tip.height)} - {"#ffffff"}
        return tip if len(white) in range(88, 103) and len(drawn) > 50 else None

    def test_the_documentation_button_has_a_tooltip(self):
        launcher = self.start()
        move(*launcher.middle_of(launcher.find("documentationBtn")))
        tip = wait_for("a tooltip opens", lambda: launcher.of_class("QTipLabel"))
        self.assertEqual(tip["text"], "Documentation")


class Corners(DesktopTest):
    def test_the_four_corners_show_what_lies_behind(self):
        self.start()
        for colour in (DESKTOP, "#d02080"):
            with self.subTest(colour):
                subprocess.run(["hsetroot", "-solid", colour], check=True)
                wait_for("the corners show the desktop", lambda: self.is_round(window_box(), colour))

    def is_round(self, box, behind):
        left, top, width, height = box
        # Each corner's square, and where the centre of its rounding lies in it.
        corners = {(left, top): (RADIUS, RADIUS), (left + width - RADIUS, top): (0, RADIUS),
                   (left, top + height - RADIUS): (RADIUS, 0), (left + width - RADIUS, top + height - RADIUS): (0, 0)}
        return all(self.is_rounded(grab((x, y, RADIUS, RADIUS)), centre, behind)
                   for (x, y), centre in corners.items())

    @staticmethod
    def is_rounded(square, centre, behind):
        """Outside the rounding what lies behind, inside the window's colour, and some mixture on the edge."""
        for y in range(square.height):
            for x in range(square.width):
                distance = math.hypot(x + 0.5 - centre[0], y + 0.5 - centre[1])
                expected = behind if distance > RADIUS + 0.8 else BACKGROUND if distance < RADIUS - 0.8 else None
                if expected and not near(square.at(x, y), expected):
                    return False
        return True


if __name__ == "__main__":
    unittest.main()
