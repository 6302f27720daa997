"""What the tests of the desktop share: an installation to change, the launcher in it, and a pointer."""

import functools
import itertools
import os
import shutil
import sys
import tempfile
import unittest

from launcher import TITLE, Launcher, descendants, opened_by, output_of, wait_for, xdotool
from screen import grab, load

STAGE, PLUGINS = os.environ["CORVIX_STAGE"], os.environ["CORVIX_PLUGINS"]
ASIDE = (2, 2)  # Where the pointer touches nothing.
CAMERAS = 8  # of the simulator
BACKGROUND = "#0f1419"  # of the window
DESKTOP = "#b9c6d2"  # As script/with-desktop paints it.
HERE = os.path.dirname(os.path.abspath(__file__))
IMAGES = f"{HERE}/../../resources/images"


class Installation:
    """A copy of the staged installation, of hard links: files are replaced and never written to."""

    def __init__(self):
        self.root = tempfile.mkdtemp(dir=os.path.dirname(STAGE))

    def __enter__(self):
        shutil.copytree(STAGE, self.root, symlinks=True, copy_function=os.link, dirs_exist_ok=True)
        # It searches real networks, which no test here needs.
        if os.path.exists(f"{self.root}/cti/fallback/UniversalGEV.cti"):
            self.remove("cti/fallback/UniversalGEV.cti")
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.root)

    def path(self, name):
        return f"{self.root}/{name}"

    def remove(self, name):
        os.remove(self.path(name))

    def put(self, name, text, mode=0o755):
        """Writes a file, in the place of another if there is one."""
        if os.path.lexists(self.path(name)):
            self.remove(name)
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text)
        os.chmod(self.path(name), mode)

    def record_starts(self, name):
        """Puts a program there that notes its arguments, one a line, and its directory last, start after start; gives
        the note's path."""
        note = self.path(name) + ".note"
        self.put(name, '#!/bin/sh\nset -e\nPATH=/usr/bin:/bin\n'
                       f'(for argument; do echo "$argument"; done; pwd) >"{note}.$$"\ncat "{note}.$$" >>"{note}"\n')
        return note


def noted(note):
    """What a recorded start noted, waited for."""
    wait_for("the program is started", lambda: os.path.exists(note) and os.path.getsize(note))
    with open(note, encoding="utf-8") as file:
        return file.read().splitlines()


def x_window(title=TITLE):
    """The X server's number for the window of that title, which has to be on the screen."""
    return output_of("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()[0]


def window_box():
    """Where the X server has the main window; none while it is not on the screen."""
    found = output_of("xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$", "getwindowgeometry", "--shell")
    facts = dict(line.split("=") for line in found.splitlines() if "=" in line)
    return tuple(int(facts[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")) if facts else None


class DesktopLauncher(Launcher):
    """The launcher of an installation, and a pointer to it. Places are in device pixels of the screen."""

    scale = 1

    def device(self, box):
        return tuple(round(self.scale * number) for number in box)

    def middle_of(self, node):
        x, y, width, height = self.device(node["onScreen"])
        return x + width // 2, y + height // 2

    def cell_box(self, row, column):
        table = self.find("cameraTable")
        x, y, width, height = table["rows"][row]["cells"][column]
        return self.device((table["onScreen"][0] + x, table["onScreen"][1] + y, width, height))

    def in_cell(self, row, column=0):
        x, y, width, height = self.cell_box(row, column)
        return x + width // 2, y + height // 2

    def hint(self):
        return self.find("toolsDescriptionLabel")["text"]

    def is_idle(self):
        """No scan is running."""
        return self.find("refreshBtn")["enabled"]

    def wait_until_listed(self, cameras=CAMERAS):
        wait_for("the cameras are listed", lambda: self.active("MainWindow") and self.is_idle()
                 and len(self.rows()) == cameras)

    def select(self, row, group):
        click(*self.in_cell(row))
        wait_for("the row is selected", lambda: f"Recommended for {group}." in self.hint())

    def of_class(self, name):
        """The visible window of that class; none while there is none."""
        return next((window for window in self.windows() if window["class"] == name), None)

    def active(self, name):
        """The window of that class with the keyboard; a window gets that when it has found its place."""
        window = self.of_class(name)
        return window if window and window["active"] else None

    def box(self):
        """The message box that is open, waited for."""
        return wait_for("a message box opens", lambda: self.active("QMessageBox"))

    def press_button(self, box):
        """Presses the one button of a message box."""
        button, = [node for node in descendants(box) if node["class"] == "QPushButton" and node["text"]]
        click(*self.middle_of(button))

    def answer(self, box):
        """As above, and waits until no box is open."""
        self.press_button(box)
        wait_for("the box is gone", lambda: not self.of_class("QMessageBox"))

    def menu(self):
        """The menu that is open, waited for."""
        return wait_for("a menu opens", lambda: self.of_class("QMenu"))

    def menu_at(self, place, button=1):
        """The menu that a click there opens."""
        return opened_by(lambda: click(*place, button), "a menu opens", lambda: self.of_class("QMenu"))

    def choose(self, menu, text):
        """Clicks an entry of a menu, once the pointer has marked it; until then the menu may not be on the screen."""
        x, y, width, height = next(action["box"] for action in menu["actions"] if action["text"] == text)
        left, top = menu["onScreen"][:2]
        across = itertools.cycle((width // 2, width // 2 + 1))

        def marked():
            move(*self.device((left + x + next(across), top + y + height // 2)))
            return any(action["active"] and action["text"] == text for action in self.menu()["actions"])
        wait_for(f'"{text}" is marked', marked)
        xdotool("click", "1")

    def tray_icon(self):
        """The icon, as soon as it is drawn where the program takes it to be."""
        logo = load(f"{IMAGES}/orvelle-logo.ico[1]", DESKTOP)  # The second one has the size of the icons in the tray.

        def drawn():
            icon = self.of_class("QSystemTrayIconSys")
            return icon if icon and grab(self.device(icon["onScreen"])).mean_difference(logo) < 3 else None
        return wait_for("the icon is in the tray", drawn)

    def open_tray_menu(self):
        return self.menu_at(self.middle_of(self.tray_icon()), button=3)

    def picture(self):
        """The main window, as the screen shows it."""
        return grab(window_box())


def texts_of(window):
    return [node["text"] for node in descendants(window) if node["text"]]


def move(x, y):
    xdotool("mousemove", str(x), str(y))


def click(x, y, button=1, times=1, delay=30):
    """The delay, in milliseconds, is that between two clicks."""
    # No --sync: it waits for a movement even if the pointer is there already.
    xdotool("mousemove", str(x), str(y), "click", "--repeat", str(times), "--delay", str(delay), str(button))


def drag(start, by, button=1):
    x, y = start
    xdotool("mousemove", str(x), str(y), "mousedown", str(button))
    xdotool("mousemove", str(x + by[0] // 2), str(y + by[1] // 2))
    xdotool("mousemove", str(x + by[0]), str(y + by[1]), "mouseup", str(button))


def pictured(test):
    """Saves the screen when the test fails."""
    @functools.wraps(test)
    def run(self):
        try:
            test(self)
        except Exception:
            print(f"{test.__name__}: see {grab().save_as(self.id())}", file=sys.stderr)
            raise
    return run


class DesktopTest(unittest.TestCase):
    """Every test has an installation of its own, a folder before the PATH, and the pointer out of the way."""

    launcher_class = DesktopLauncher

    def __init_subclass__(cls):
        for name in [name for name in dir(cls) if name.startswith("test_")]:
            setattr(cls, name, pictured(getattr(cls, name)))

    def setUp(self):
        move(*ASIDE)
        self.installation = self.entered(Installation())
        self.programs = self.installation.path("programs")
        os.mkdir(self.programs)

    def entered(self, context):
        """As enterContext() of Python 3.11, which Ubuntu 22.04 does not have."""
        value = context.__enter__()
        self.addCleanup(context.__exit__, None, None, None)
        return value

    def start(self, **environment):
        """The launcher, with its window on the screen."""
        launcher = self.start_without_window(**environment)
        wait_for("the window is on the screen", lambda: window_box() and launcher.active("MainWindow"))
        return launcher

    def start_without_window(self, **environment):
        """The launcher, as soon as it answers."""
        given = {"PATH": f"{self.programs}:{os.environ['PATH']}",
                 "DBUS_SESSION_BUS_ADDRESS": "disabled:",  # A session bus may offer a tray of another kind.
                 **environment}
        launcher = self.entered(self.launcher_class(self.installation.root, PLUGINS, given))
        launcher.scale = float(environment.get("QT_SCALE_FACTOR", 1))
        wait_for("the launcher shows something", launcher.windows)
        return launcher

    def start_listed(self, **environment):
        launcher = self.start(**environment)
        launcher.wait_until_listed()
        return launcher

    def assert_ends(self, launcher, code=0):
        self.assertEqual(launcher.process.wait(timeout=10), code, launcher.printed())

    def assert_looks_like(self, name, grabbed):
        """Allows for other roundings at the edges of glyphs, and for no more."""
        reference = load(f"{HERE}/references/{name}.png")
        seen, difference = None, 1.0

        def matches():
            nonlocal seen, difference
            seen = grabbed()
            difference = seen.difference(reference)
            return difference < 0.001

        try:
            wait_for(f"the screen shows {name}.png", matches, bound=5)
        except AssertionError:
            self.fail(f"{difference:.2%} of the pixels differ from {name}.png; see {seen.save_as(name)}")
        seen.keep(name)
