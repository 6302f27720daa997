"""The running launcher as its user meets it: what its windows show, and a pointer to operate them with."""

import json
import os
import shutil
import signal
import socket
import subprocess
import tempfile
import time

BOUND = 30.0  # seconds, for everything that is waited for
TITLE = "Corvix X - Application Launcher"
ENGLISH = {"LC_ALL": "C.UTF-8", "LANGUAGE": ""}


def soon(condition, bound):
    """Returns the first true value of condition(); what is not true when there is none in time."""
    end = time.monotonic() + bound
    while True:
        value = condition()
        if value or time.monotonic() > end:
            return value
        time.sleep(0.02)


def wait_for(promise, condition, bound=BOUND):
    """As above; fails, naming the promise, when there is no true value in time."""
    value = soon(condition, bound)
    if not value:
        raise AssertionError(f"not within {bound} s: {promise}")
    return value


def opened_by(action, promise, condition):
    """Waits for what an action opens, and acts again when it is not there: Qt closes a menu when another window gets
    the keyboard, of which it hears late, and the X server loses a click in a thousand."""
    def opened():
        action()
        return soon(condition, BOUND / 6)
    return wait_for(promise, opened)


def output_of(*command):
    """What a command prints; empty when it fails."""
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False).stdout


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def point_at(node, title=TITLE):
    """Moves the pointer to the middle of a node in the window of that title."""
    x, y, width, height = node["box"]
    found = wait_for("the window is on the screen", lambda: output_of(
        "xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split())
    xdotool("mousemove", "--sync", "--window", found[0], str(x + width // 2), str(y + height // 2))


def click(node, title=TITLE):
    point_at(node, title)
    xdotool("click", "1")


def descendants(node):
    for child in node["children"]:
        yield child
        yield from descendants(child)


def keep_to_this_machine(stage):
    """Takes the producer that would search real networks out of an installation, unless the network is our own."""
    if "CORVIX_OWN_NETWORK" in os.environ:
        return
    try:
        os.remove(f"{stage}/cti/fallback/UniversalGEV.cti")
    except FileNotFoundError:
        return
    print("no network of the test's own: UniversalGEV.cti is taken out")


def answer_at(path):
    """What the socket there answers, from JSON; None when nobody does."""
    with socket.socket(socket.AF_UNIX) as reader:
        reader.settimeout(BOUND)
        try:
            reader.connect(path)
            with reader.makefile() as answer:
                return json.loads(answer.read() or "null")
        except (FileNotFoundError, ConnectionRefusedError, ConnectionResetError):
            return None


class Launcher:
    """Starts the program of an installation; to be used in a with statement."""

    title = TITLE  # In the language that the program is to speak.

    def __init__(self, stage, plugins, environment=None):
        self.program = f"{stage}/bin/CorvixLauncher"
        self.plugins = plugins
        self.environment = environment or {}

    def __enter__(self):
        self.directory = tempfile.mkdtemp()
        self.socket = f"{self.directory}/reader"
        environment = {**os.environ, "QT_PLUGIN_PATH": self.plugins,
                       "QT_QPA_GENERIC_PLUGINS": f"windowreader:{self.socket}{self.more_plugins()}",
                       **ENGLISH, **self.environment}  # Whatever the language of the one who runs the test.
        environment.pop("GENICAM_GENTL64_PATH", None)
        self.started = time.monotonic()
        # From another directory: nothing may depend on where the program is started.
        with open(f"{self.directory}/stderr", "wb") as errors:  # No pipe: the tools hold it open as well.
            self.process = subprocess.Popen([self.program], cwd="/", env=environment,
                                            stdout=subprocess.DEVNULL, stderr=errors)
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()
        shutil.rmtree(self.directory)

    def more_plugins(self):
        """What else Qt is to load into the program, with a comma before it; for derived classes."""
        return ""

    def elapsed(self):
        """Seconds since the start."""
        return time.monotonic() - self.started

    def printed(self):
        """What came on standard error so far."""
        with open(f"{self.directory}/stderr", encoding="utf-8", errors="replace") as errors:
            return errors.read()

    def windows(self):
        """The visible windows; none before the program answers."""
        return answer_at(self.socket) or []

    def window(self):
        """The main window, waited for."""
        return wait_for("the window is shown", lambda: next(
            (window for window in self.windows() if window["text"] == self.title), None))

    def find(self, name):
        """The widget of that object name."""
        return next(node for node in descendants(self.window()) if node["name"] == name)

    def rows(self):
        """The table's texts, row by row."""
        return [tuple(row["texts"]) for row in self.find("cameraTable")["rows"]]

    def tool_tip(self, vendor):
        """The tooltip of that vendor's first row."""
        return next(row["toolTips"][1] for row in self.find("cameraTable")["rows"] if row["texts"][0] == vendor)

    def cell(self, vendor):
        """The first cell of that vendor, as something to click."""
        table = self.find("cameraTable")
        x, y, width, height = next(row["cells"][0] for row in table["rows"] if row["texts"][0] == vendor)
        return {"box": (table["box"][0] + x, table["box"][1] + y, width, height)}

    def scroll_to(self, vendor):
        """Turns the wheel over the table until the row of that vendor is in view; gives its first cell."""
        def in_view():
            table, cell = self.find("cameraTable"), self.cell(vendor)
            if cell["box"][1] + cell["box"][3] <= table["box"][1] + table["box"][3]:
                return cell
            point_at(table)
            xdotool("click", "5")
            return None
        return wait_for(f"the row of {vendor} can be scrolled to", in_view)

    def tiles(self):
        """The tiles by the name of their tool."""
        return {child["text"]: tile for tile in descendants(self.window())
                if tile["class"] == "ApplicationLauncher"
                for child in tile["children"] if child["name"] == "applicationName"}

    def enabled_tools(self):
        return {name for name, tile in self.tiles().items() if tile["enabled"]}
