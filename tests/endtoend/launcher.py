"""Starts the launcher of an installation, reads its windows through the windowreader plugin, and operates it."""

import json
import os
import shutil
import socket
import subprocess
import tempfile
import time

BOUND = 60.0  # Seconds. Only a hang takes this long.
TITLE = "Corvix X - Application Launcher"


def soon(condition, bound):
    """Returns the first true value of condition(). If no value is true within the bound, returns the last value."""
    end = time.monotonic() + bound
    while True:
        value = condition()
        if value or time.monotonic() > end:
            return value
        time.sleep(0.02)


def wait_for(promise, condition, bound=BOUND):
    """Returns the first true value of condition(). If no value is true within the bound, fails and prints the
    promise."""
    value = soon(condition, bound)
    if not value:
        raise AssertionError(f"not within {bound} s: {promise}")
    return value


def output_of(*command):
    """Returns the standard output of a command, and ignores whether the command fails."""
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False).stdout


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def click(node):
    """Clicks the middle of a node in the main window. The position of the window comes from the X server, because Qt
    learns the position later."""
    found = wait_for("the window is on the screen", lambda: output_of(
        "xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$").split())
    x, y, width, height = node["box"]
    xdotool("mousemove", "--window", found[0], x + width // 2, y + height // 2, "click", 1)


def descendants(node):
    for child in node["children"]:
        yield child
        yield from descendants(child)


def read_windows(path):
    """Returns the visible windows of the program whose windowreader uses this socket. The list is empty while the program
    does not accept connections."""
    with socket.socket(socket.AF_UNIX) as reader:
        reader.settimeout(BOUND)
        try:
            reader.connect(path)
            with reader.makefile(encoding="utf-8") as reply:
                return json.loads(reply.read() or "[]")
        except (FileNotFoundError, ConnectionRefusedError, ConnectionResetError):
            return []


def keep_to_this_machine(stage):
    """Removes from an installation the producer that searches real networks, unless the test has its own network."""
    producer = f"{stage}/cti/fallback/UniversalGEV.cti"
    if "CORVIX_OWN_NETWORK" not in os.environ and os.path.exists(producer):
        os.remove(producer)


class Launcher:
    """Runs the launcher of an installation within a with statement."""

    def __init__(self, stage, plugins, environment=None):
        self.program = f"{stage}/bin/CorvixLauncher"
        self.plugins = plugins
        self.environment = environment or {}

    def __enter__(self):
        self.directory = tempfile.mkdtemp()
        self.socket = f"{self.directory}/reader"
        environment = {**os.environ, "LC_ALL": "C.UTF-8", "LANGUAGE": "", "QT_PLUGIN_PATH": self.plugins,
                       "QT_QPA_GENERIC_PLUGINS": f"windowreader:{self.socket}",
                       "XDG_CONFIG_HOME": f"{self.directory}/config", **self.environment}
        environment.pop("GENICAM_GENTL64_PATH", None)
        self.started = time.monotonic()
        # Standard error is a file, because a started tool would keep a pipe open. The launcher starts in "/", because
        # no result may depend on the working directory.
        with open(f"{self.directory}/stderr", "wb") as errors:
            self.process = subprocess.Popen([self.program], cwd="/", env=environment,
                                            stdout=subprocess.DEVNULL, stderr=errors)
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        shutil.rmtree(self.directory)

    def printed(self):
        """Returns the standard error so far, without Qt's message about a window that disappeared during a request."""
        with open(f"{self.directory}/stderr", encoding="utf-8", errors="replace") as errors:
            return "".join(line for line in errors if not line.startswith("qt.qpa.xcb: QXcbConnection: XCB error"))

    def hosts(self):
        """Returns the process IDs of the producer hosts."""
        return output_of("pgrep", "--parent", str(self.process.pid)).split()

    def windows(self):
        return read_windows(self.socket)

    def of_class(self, name):
        """Returns the first visible window of a class, or None if there is no such window."""
        return next((window for window in self.windows() if window["class"] == name), None)

    def window(self):
        return wait_for("the main window is visible", lambda: self.of_class("MainWindow"))

    def find(self, name):
        """Returns the widget of the main window that has this object name."""
        return next(node for node in descendants(self.window()) if node["name"] == name)

    def rows(self):
        return [tuple(row["texts"]) for row in self.find("cameraTable")["rows"]]

    def hint(self):
        return self.find("toolsDescriptionLabel")["text"]

    def cell(self, vendor):
        """Returns the first cell of a vendor's first row, as a node for click()."""
        table = self.find("cameraTable")
        x, y, width, height = next(row["cells"][0] for row in table["rows"] if row["texts"][0] == vendor)
        return {"box": (table["box"][0] + x, table["box"][1] + y, width, height)}

    def tiles(self):
        """Returns the tiles, by the names of their tools."""
        return {child["text"]: tile for tile in descendants(self.window()) if tile["class"] == "ApplicationLauncher"
                for child in tile["children"] if child["name"] == "applicationName"}

    def enabled_tools(self):
        return {name for name, tile in self.tiles().items() if tile["enabled"]}
