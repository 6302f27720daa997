"""The common base of the desktop tests. Each test has its own installation and operates the launcher with a pointer."""

import os
import shutil
import tempfile
import unittest

import x11
from launcher import Launcher, descendants, soon, wait_for, xdotool
from screen import changed_share, grab, load, mean_difference

STAGE, PLUGINS = os.environ["CORVIX_STAGE"], os.environ["CORVIX_PLUGINS"]
ASIDE = (2, 2)  # No window is at this position, so the pointer has no effect.
CAMERAS = 8  # The simulator reports this many cameras.
BACKGROUND = "#0f1419"  # The background colour of the window.
DESKTOP = "#b9c6d2"  # The background colour that script/with-desktop sets.
HERE = os.path.dirname(os.path.abspath(__file__))
SOURCES = f"{HERE}/../.."
IMAGES = f"{SOURCES}/resources/images"


class Installation:
    """A copy of the staged installation. The copy consists of hard links, so tests replace files and never write to
    them."""

    def __init__(self):
        self.root = tempfile.mkdtemp(dir=os.path.dirname(STAGE))
        shutil.copytree(STAGE, self.root, symlinks=True, copy_function=os.link, dirs_exist_ok=True)
        # The producers in this directory would search real networks and buses.
        shutil.rmtree(self.path("cti/fallback"), ignore_errors=True)
        os.mkdir(self.path("programs"))

    def path(self, name):
        return f"{self.root}/{name}"

    def remove(self, name):
        os.remove(self.path(name))

    def record_openings(self):
        """Installs an xdg-open that writes its arguments to a file, one line per start."""
        with open(self.path("programs/xdg-open"), "w", encoding="utf-8") as file:
            file.write(f'#!/bin/sh\necho "$*" >>"{self.path("opened")}"\n')
        os.chmod(self.path("programs/xdg-open"), 0o755)

    def opened(self):
        """Waits until xdg-open has been started, and returns the recorded lines. Each line is returned only once."""
        record = self.path("opened")
        wait_for("xdg-open is started", lambda: os.path.exists(record) and os.path.getsize(record))
        with open(record, encoding="utf-8") as file:
            lines = file.read().splitlines()
        os.remove(record)
        return lines


class DesktopLauncher(Launcher):
    """Operates the launcher with a pointer. A target is a widget's object name, a node, or a position in device
    pixels."""

    scale = 1

    def device(self, box):
        return tuple(round(self.scale * number) for number in box)

    def place(self, target):
        if isinstance(target, tuple):
            return target
        node = self.find(target) if isinstance(target, str) else target
        x, y, width, height = self.device(node["onScreen"])
        return x + width // 2, y + height // 2

    def point_at(self, target):
        xdotool("mousemove", *self.place(target))

    def click(self, target, button=1, times=1):
        self.point_at(target)
        xdotool("click", "--repeat", times, "--delay", 30, button)

    def drag(self, target, by, button=1):
        x, y = self.place(target)
        xdotool("mousemove", x, y, "mousedown", button)
        xdotool("mousemove", x + by[0] // 2, y + by[1] // 2)
        xdotool("mousemove", x + by[0], y + by[1], "mouseup", button)

    def cell_place(self, row, column=0):
        table = self.find("cameraTable")
        x, y, width, height = table["rows"][row]["cells"][column]
        left, top, *_ = table["onScreen"]
        return self.place({"onScreen": (left + x, top + y, width, height)})

    def wait_until_listed(self, cameras=CAMERAS):
        # The window manager has already positioned an active window.
        wait_for("the cameras are listed", lambda: self.window()["active"] and self.find("refreshBtn")["enabled"]
                 and len(self.rows()) == cameras)

    def select(self, row, group):
        self.click(self.cell_place(row))
        wait_for("the row is selected", lambda: f"Recommended for {group}." in self.hint())

    def on_screen(self):
        """Returns the main window's position and size in the X server, or None while the window is not visible."""
        window = self.of_class("MainWindow")
        return window and x11.box_of(window)

    def active(self, name):
        """Waits until a window of this class is active, and returns the window."""
        def active():
            window = self.of_class(name)
            return window if window and window["active"] else None
        return wait_for(f"a {name} is active", active)

    def box(self):
        return self.active("QMessageBox")

    def answer(self, box):
        """Presses the only button of a message box, and waits until the box has closed."""
        button, = [node for node in descendants(box) if node["class"] == "QPushButton" and node["text"]]
        self.click(button)
        wait_for("the box closes", lambda: not self.of_class("QMessageBox"))

    def opened_at(self, action, name):
        """Runs an action until a window of this class opens, and returns the window. One attempt may not be enough: Qt
        closes a menu when another window becomes active, and the X server loses one click in a thousand."""
        def opened():
            action()
            return soon(lambda: self.of_class(name), 5)
        return wait_for(f"a {name} opens", opened)

    def menu_at(self, target, button=1):
        return self.opened_at(lambda: self.click(target, button), "QMenu")

    def tooltip_at(self, target):
        def point():
            xdotool("mousemove", *ASIDE)
            self.point_at(target)
        return self.opened_at(point, "QTipLabel")

    def choose(self, menu, text):
        """Clicks an entry of a menu as soon as the pointer has highlighted the entry."""
        x, y, width, height = next(action["box"] for action in menu["actions"] if action["text"] == text)
        left, top, *_ = menu["onScreen"]
        entry = self.place({"onScreen": (left + x, top + y, width, height)})

        def highlighted():
            xdotool("mousemove", entry[0] + 1, entry[1], "mousemove", *entry)
            return any(action["active"] and action["text"] == text for action in self.of_class("QMenu")["actions"])
        wait_for(f'"{text}" is highlighted', highlighted)
        xdotool("click", 1)

    def close_menu(self):
        """Closes the open menu, and waits until the X server has removed the menu, which would otherwise receive the
        next click."""
        menu = self.of_class("QMenu")
        xdotool("key", "Escape")
        wait_for("the menu closes", lambda: not x11.box_of(menu) and self.window()["active"])

    def tray_icon(self):
        """Waits until the screen shows the logo at the position that Qt reports for the tray icon. Returns the icon's
        node."""
        logo = load(f"{IMAGES}/orvelle-logo.ico", DESKTOP, (24, 24))

        def drawn():
            icon = self.of_class("QSystemTrayIconSys")
            return icon if icon and mean_difference(grab(self.device(icon["onScreen"])), logo) < 3 else None
        return wait_for("the icon is in the tray", drawn)


def texts_of(window):
    return [node["text"] for node in descendants(window) if node["text"]]


class DesktopTest(unittest.TestCase):
    """Creates an installation for each test. At the end of a test, the screen is saved in a file named after the
    test."""

    launcher_class = DesktopLauncher

    def setUp(self):
        xdotool("mousemove", *ASIDE)
        self.installation = Installation()
        self.addCleanup(shutil.rmtree, self.installation.root)

    def start_without_window(self, **environment):
        """Starts the launcher, and returns it as soon as any of its windows is visible."""
        given = {"PATH": f"{self.installation.path('programs')}:{os.environ['PATH']}",
                 "DBUS_SESSION_BUS_ADDRESS": "disabled:",  # Through a session bus, Qt may find another kind of tray.
                 **environment}
        launcher = self.launcher_class(self.installation.root, PLUGINS, given)
        launcher.scale = float(environment.get("QT_SCALE_FACTOR", 1))
        launcher.__enter__()
        self.addCleanup(launcher.__exit__)
        self.addCleanup(lambda: grab().save(f"{self.id().removeprefix('__main__.')}.png", compress_level=1))
        wait_for("the launcher shows a window", launcher.windows)
        return launcher

    def start(self, **environment):
        """Starts the launcher, and returns it when the table shows the cameras."""
        launcher = self.start_without_window(**environment)
        launcher.wait_until_listed()
        return launcher

    def start_with_box(self):
        """Starts the launcher and clicks a tool that is not installed. Returns the launcher and its message box."""
        self.installation.remove("bin/ImageViewer")
        launcher = self.start()
        launcher.select(0, "Area Scan Cameras")
        launcher.click(launcher.tiles()["Image Viewer"])
        box = launcher.box()
        self.assertEqual(box["text"], "Launch failed")
        self.assertIn("Could not launch:\nbin/ImageViewer", texts_of(box))
        return launcher, box

    def assert_ends(self, launcher, code=0):
        self.assertEqual(launcher.process.wait(timeout=60), code, launcher.printed())
        self.assertEqual(launcher.printed(), "")

    def assert_matches(self, name, grabbed):
        """Fails if the screen differs from a reference picture. Small differences at the edges of glyphs are allowed.
        If CORVIX_UPDATE_REFERENCES is set, the reference picture is replaced first."""
        file = f"{HERE}/references/{name}.png"
        if "CORVIX_UPDATE_REFERENCES" in os.environ:
            wait_for("the screen is still", lambda: grabbed().tobytes() == grabbed().tobytes())
            grabbed().quantize().save(file, optimize=True)
        reference = load(file)
        if not soon(lambda: changed_share(grabbed(), reference) < 0.001, 10):
            grabbed().save(f"{name}.png")
            self.fail(f"the screen differs from {file}; see {os.getcwd()}/{name}.png")
