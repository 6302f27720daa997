"""The unchanged program in another language: every text that a person meets, and the room that it takes."""

import contextlib
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from html import escape
from signal import SIGCONT, SIGSTOP

from findings import messages
from launcher import Launcher, descendants, opened_by, output_of, wait_for, xdotool

LOCALE = sys.argv.pop()
STAGE, PLUGINS = os.environ["CORVIX_STAGE"], os.environ["CORVIX_PLUGINS"]
HERE = os.path.dirname(os.path.abspath(__file__))
LONGEST_GROUP = "High Resolution Cameras"
VENDOR_OF_THE_GROUP = "KORDANE"


def texts_in(catalogue):
    return {(context, source): translation.text for context, source, translation in messages(catalogue)}


def catalogue_name():
    """The language alone, or with its country where that is how the catalogue is called."""
    return next(name for name in (LOCALE, LOCALE.split("_")[0])
                if os.path.exists(f"{HERE}/../../translations/corvix_{name}.ts"))


def qt_s_own_texts():
    """What is in Qt's catalogue, which is there compiled only."""
    directory = output_of("qmake", "-query", "QT_INSTALL_TRANSLATIONS").strip() or "/usr/share/qt5/translations"
    with tempfile.TemporaryDirectory() as scratch:
        subprocess.run(["lconvert", "-i", f"{directory}/qtbase_{catalogue_name()}.qm", "-o", f"{scratch}/qt.ts"],
                       check=True)
        return texts_in(f"{scratch}/qt.ts")


def drawable_characters():
    """All that an installed font has."""
    characters = set()
    for part in output_of("fc-list", "--format", "%{charset} ").split():
        first, _, last = part.partition("-")
        characters.update(map(chr, range(int(first, 16), int(last or first, 16) + 1)))
    return characters


OURS = texts_in(f"{HERE}/../../translations/corvix_{catalogue_name()}.ts")
QT = qt_s_own_texts()


def window_text(source):
    return OURS["MainWindow", source]


def controller_text(source):
    return OURS["ApplicationController", source]


TITLE = window_text("Corvix X - Application Launcher")


class ForeignLauncher(Launcher):
    """The launcher in the language, and a pointer to it."""

    title = TITLE

    def __init__(self, stage):
        super().__init__(stage, PLUGINS, {"LC_ALL": f"{LOCALE}.UTF-8"})

    def of_class(self, name):
        """The visible window of that class; none while there is none."""
        return next((window for window in self.windows() if window["class"] == name), None)

    def opened(self, name):
        return wait_for(f"a {name} opens", lambda: self.of_class(name))

    def is_in_place(self):
        """On the screen, with the keyboard, and where the program takes it to be."""
        found = output_of("xdotool", "search", "--onlyvisible", "--name", "^Corvix X - ", "getwindowgeometry",
                          "--shell")
        window = self.window()
        x, y = window["onScreen"][:2]
        return window["active"] and f"\nX={x}\nY={y}\n" in found

    def click(self, node, button=1):
        move_to(node)
        xdotool("click", str(button))

    def menu_of(self, node, button=1):
        """The texts of the menu that a click there opens."""
        menu = opened_by(lambda: self.click(node, button), "a menu opens", lambda: self.of_class("QMenu"))
        return [action["text"] for action in menu["actions"]]

    def close_menu(self):
        """Until the X server has taken it away, it gets what is clicked."""
        window = self.of_class("QMenu")["xWindow"]
        xdotool("key", "Escape")
        wait_for("the menu closes", lambda: "IsViewable" not in output_of("xwininfo", "-id", window)
                 and self.is_in_place())

    def answer_box(self):
        """Presses its button, again should the window manager have moved it meanwhile."""
        def gone():
            box = self.of_class("QMessageBox")
            if box:
                self.click(button_of(box))
            return not box
        wait_for("the box closes", gone)

    @contextlib.contextmanager
    def scan_held(self):
        """Scans do not end before their time is up."""
        hosts = [int(host) for host in output_of("pgrep", "--parent", str(self.process.pid)).split()]
        assert hosts, "no producer host runs"
        for host in hosts:
            os.kill(host, SIGSTOP)
        try:
            yield
        finally:
            for host in hosts:
                with contextlib.suppress(ProcessLookupError):  # The SDK ended it, for not answering.
                    os.kill(host, SIGCONT)


def move_to(node):
    x, y, width, height = node["onScreen"]
    xdotool("mousemove", str(x + width // 2), str(y + height // 2))


def on_screen(launcher, vendor):
    """The first cell of that vendor."""
    table, cell = launcher.find("cameraTable"), launcher.cell(vendor)
    left, top = table["onScreen"][0] - table["box"][0], table["onScreen"][1] - table["box"][1]
    x, y, width, height = cell["box"]
    return {"onScreen": (left + x, top + y, width, height)}


def button_of(box):
    button, = [node for node in descendants(box) if node["class"] == "QPushButton"]
    return button


def texts_of(window):
    return [node["text"] for node in descendants(window) if node["text"]]


class LanguageTest(unittest.TestCase):
    """One installation in which neither the documentation nor a tool can be opened."""

    @classmethod
    def setUpClass(cls):
        directory = tempfile.TemporaryDirectory(dir=os.path.dirname(STAGE))
        cls.addClassCleanup(directory.cleanup)
        cls.stage = directory.name
        shutil.copytree(STAGE, cls.stage, symlinks=True, copy_function=os.link, dirs_exist_ok=True)
        for name in ("doc/index.html", "bin/ImageViewer", "cti/fallback/UniversalGEV.cti"):  # It searches networks.
            if os.path.exists(f"{cls.stage}/{name}"):
                os.remove(f"{cls.stage}/{name}")

    def start_program(self):
        launcher = ForeignLauncher(self.stage)
        self.addCleanup(launcher.__exit__)
        return launcher.__enter__()

    def start(self):
        launcher = self.start_program()
        wait_for("the cameras are listed", lambda: len(launcher.rows()) == 8)
        wait_for("the window has its place", launcher.is_in_place)
        return launcher

    def assert_all_texts_fit(self, window):
        for node in descendants(window):
            needs, (x, y, width, height) = node["needs"], node["box"]
            if not node["text"]:
                continue
            self.assertTrue(needs[0] <= width and needs[1] <= height, f"cut off, needs {needs}: {node}")
            self.assertTrue(x >= 0 and x + width <= window["box"][2], f"not in the window: {node}")
            self.assertTrue(y >= 0 and y + height <= window["box"][3], f"not in the window: {node}")

    def assert_has_room_to_spare(self, label):
        """The hint is the longest text by far; desktops with larger fonts are to show it as well."""
        self.assertLessEqual(label["needs"][0], 0.9 * label["box"][2], label["text"])

    def assert_box(self, launcher, title, text):
        box = launcher.opened("QMessageBox")
        self.assertEqual(box["text"], title)
        self.assertIn(text, texts_of(box))
        self.assertEqual(button_of(box)["text"].replace("&", ""), QT["QPlatformTheme", "OK"])
        self.assert_all_texts_fit(box)
        launcher.answer_box()

    def test_language_is_another_one(self):
        self.assertGreater(sum(source != text for (_, source), text in OURS.items()), 20)
        self.assertNotEqual(QT["QMessageBox", "About Qt"], "About Qt")

    def test_fonts_have_every_character(self):
        """The others would be empty boxes, whose sizes tell nothing."""
        texts = "".join(text or "" for text in [*OURS.values(), *QT.values()])
        said = set(filter(str.isprintable, texts))
        self.assertGreater(len(said), 50)
        self.assertEqual(sorted(said - drawable_characters()), [])

    def test_window(self):
        launcher = self.start()
        window = launcher.window()
        nodes = {node["name"]: node for node in descendants(window)}
        for name, source in (("titleLabel", "Corvix X"), ("label_5", "Application launcher"),
                             ("connectedCamerasLabel", "Connected cameras"),
                             ("recommendedToolsLabel", "Recommended tools"),
                             ("toolsDescriptionLabel", "Select a camera to enable its recommended tools."),
                             ("footerLabel", "Orvelle - Corvix X"), ("documentationBtn", "Documentation")):
            self.assertEqual(nodes[name]["text"], window_text(source))
        for name, source in (("aboutQt_", "Menu"), ("pushButton", "Minimize"), ("pushButton_2", "Close"),
                             ("refreshBtn", "Refresh")):
            self.assertEqual(nodes[name]["accessibleName"], window_text(source))
        self.assertEqual(nodes["documentationBtn"]["toolTip"], window_text("Documentation"))
        self.assertEqual(window["box"][2:], [600, 660])
        self.assert_all_texts_fit(window)
        self.assert_has_room_to_spare(nodes["toolsDescriptionLabel"])
        self.columns(nodes["cameraTable"]["columns"])
        self.tool_tip(launcher.tool_tip(VENDOR_OF_THE_GROUP))

    def columns(self, columns):
        self.assertEqual([column["text"] for column in columns],
                         [window_text(source) for source in ("Vendor Name", "Model Name", "Serial Number")])
        for column in columns:
            self.assertLessEqual(column["needs"], column["width"], column)

    def tool_tip(self, tip):
        for source in ("Interface", "CTI file"):
            self.assertIn(f">{escape(window_text(source))}</td>", tip)

    def test_selection_and_failed_launch(self):
        launcher = self.start()
        launcher.click(on_screen(launcher, VENDOR_OF_THE_GROUP))
        wait_for("tools are enabled", launcher.enabled_tools)
        hint = launcher.find("toolsDescriptionLabel")
        self.assertEqual(hint["text"], window_text("Recommended for %1. Non-recommended tools are disabled.")
                         .replace("%1", LONGEST_GROUP))
        self.assert_all_texts_fit(launcher.window())
        self.assert_has_room_to_spare(hint)
        launcher.click(launcher.tiles()["Image Viewer"])
        self.assert_box(launcher, controller_text("Launch failed"),
                        controller_text("Could not launch:\n%1").replace("%1", "bin/ImageViewer"))

    def test_scan(self):
        launcher = self.start()
        placeholder = [controller_text("Scanning..."), "", ""]

        def told():
            rows = launcher.find("cameraTable")["rows"]
            if [row["texts"] for row in rows] == [placeholder]:
                return rows
            button = launcher.find("refreshBtn")
            if button["enabled"]:  # Also once more, after a scan whose time was up before we looked.
                launcher.click(button)
            return None
        with launcher.scan_held():
            row, = wait_for("the scan is told", told)
        self.assertLessEqual(row["needs"][0], row["cells"][0][2])

    def test_menus_and_boxes(self):
        launcher = self.start()
        self.assertEqual(launcher.menu_of(on_screen(launcher, VENDOR_OF_THE_GROUP), button=3),
                         [window_text("CTI location")])
        launcher.close_menu()

        self.assertEqual(launcher.menu_of(launcher.find("aboutQt_")), [window_text("About Qt")])
        xdotool("key", "Down", "Return")
        box = launcher.opened("QMessageBox")
        self.assertEqual(box["text"], QT["QMessageBox", "About Qt"])
        self.assertNotIn("This program uses Qt", "".join(texts_of(box)))
        self.assert_all_texts_fit(box)
        launcher.answer_box()

        launcher.click(launcher.find("documentationBtn"))
        self.assert_box(launcher, window_text("Documentation"), window_text("Unable to open documentation at:\n%1")
                        .replace("%1", f"file://{os.path.realpath(self.stage)}/doc/index.html"))

    def test_tray_and_end(self):
        launcher = self.start()

        def point_at_icon():
            xdotool("mousemove", "2", "2")  # From elsewhere, also once more: the tray may have moved its icon.
            move_to(launcher.opened("QSystemTrayIconSys"))

        tip = opened_by(point_at_icon, "the icon tells its name", lambda: launcher.of_class("QTipLabel"))
        self.assertEqual(tip["text"], controller_text("Corvix X - Application Launcher"))
        self.assertEqual(launcher.menu_of(launcher.of_class("QSystemTrayIconSys"), button=3),
                         [controller_text("Show"), "", controller_text("Exit")])
        launcher.close_menu()
        launcher.click(launcher.find("pushButton_2"))
        self.assertEqual((launcher.process.wait(timeout=10), launcher.printed()), (0, ""))

    def test_refused_start(self):
        host = f"{self.stage}/bin/CvxProducerHost"
        os.rename(host, f"{host}.aside")
        self.addCleanup(os.rename, f"{host}.aside", host)
        launcher = self.start_program()
        self.assert_box(launcher, OURS["QObject", "Corvix X initialization failed"],
                        OURS["QObject", "Failed to initialize the Corvix X system. The launcher will be closed."])
        self.assertEqual(launcher.process.wait(timeout=10), 255)


unittest.main()
