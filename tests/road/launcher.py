"""The running launcher as its user meets it: read through AT-SPI, operated with the pointer."""

import os
import signal
import subprocess
import time

import pyatspi

BOUND = 30.0  # seconds, for everything that is waited for


def wait_for(promise, condition, bound=BOUND):
    """Returns the first true value of condition(); fails, naming the promise, when there is none in time."""
    end = time.monotonic() + bound
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"not within {bound} s: {promise}")
        time.sleep(0.02)


def descendants(node):
    for child in node:
        if child is not None:
            yield child
            yield from descendants(child)


def application(process_id):
    for app in pyatspi.Registry.getDesktop(0):
        if app is not None and app.get_process_id() == process_id:
            return app
    return None


def processes_named(name):
    found = subprocess.run(["pgrep", "-x", name[:15]], capture_output=True, text=True, check=False)
    return [int(line) for line in found.stdout.split()]


class Launcher:
    """Starts the program of the installation; to be used in a with statement."""

    def __init__(self, stage):
        self.stage = stage

    def __enter__(self):
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        environment.pop("GENICAM_GENTL64_PATH", None)
        self.started = time.monotonic()
        # From another directory: nothing may depend on where the program is started.
        self.process = subprocess.Popen(
            [f"{self.stage}/bin/CorvixLauncher"], cwd="/", env=environment, stderr=subprocess.PIPE)
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()
        self.process.stderr.close()

    def frame(self, title):
        """The window of that title, or None while there is none."""
        app = application(self.process.pid)
        windows = [] if app is None else [window for window in app if window is not None]
        return next((window for window in windows if window.name == title), None)

    def find(self, role, name=None):
        window = self.frame("Corvix X - Application Launcher")
        return [] if window is None else [
            node for node in descendants(window)
            if node.getRoleName() == role and (name is None or node.name == name)]

    def rows(self):
        """The table's texts, row by row; None while the window cannot be read."""
        try:
            texts = [cell.name for cell in self.find("table cell")]
        except Exception:  # The table was rebuilt while it was read.
            return None
        return [tuple(texts[i:i + 3]) for i in range(0, len(texts), 3)]

    def enabled_tools(self):
        """Names of the tools whose tiles are enabled."""
        return {labels[0] for tile, labels in self.tiles() if is_enabled(tile)}

    def tiles(self):
        for tile in self.find("filler"):
            labels = [child.name for child in tile if child is not None and child.getRoleName() == "label"]
            area = tile.queryComponent().getExtents(pyatspi.WINDOW_COORDS)
            if len(labels) == 2 and (area.width, area.height) == (185, 70):
                yield tile, labels

    def tile(self, tool):
        return next(tile for tile, labels in self.tiles() if labels[0] == tool)

    def x_window(self):
        found = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", "^Corvix X - Application Launcher$"],
            capture_output=True, text=True, check=False)
        return found.stdout.split()[0] if found.stdout.split() else None

    def point_at(self, node):
        area = node.queryComponent().getExtents(pyatspi.WINDOW_COORDS)
        x, y = area.x + area.width // 2, area.y + area.height // 2
        xdotool("mousemove", "--sync", "--window", self.x_window(), str(x), str(y))

    def click(self, node):
        self.point_at(node)
        xdotool("click", "1")


def is_enabled(node):
    return node.getState().contains(pyatspi.STATE_ENABLED)


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)
