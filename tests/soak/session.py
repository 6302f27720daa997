"""Runs random steps with one launcher. Each step ends when the window shows the expected content."""

import os
import signal
import time

from configurations import DEFAULT_ROWS, GROUPS
from launcher import TITLE, descendants, output_of, wait_for, xdotool
from scripted import SlowProducer
from simulator import rows_of

TOOL_TIP = "QTipLabel"  # the class of the tooltip's window
ATTEMPTS = 5  # A refresh may remove a new selection or tooltip at once.
NOTHING_SELECTED = "Select a camera to enable its recommended tools."


def named(window, name):
    return next(node for node in descendants(window) if node["name"] == name)


def middle(node):
    x, y, width, height = node["onScreen"]
    return x + width // 2, y + height // 2


def press(node, times=1):
    xdotool("mousemove", *middle(node), "click", "--repeat", times, "--delay", 50, 1)


class Session:
    def __init__(self, launcher, simulator, configurations, slow, crashing, random):
        self.launcher, self.simulator, self.configurations = launcher, simulator, configurations
        self.slow, self.crashing, self.random = slow, crashing, random
        self.simulated = self.last_valid = rows_of(simulator.read())
        self.broken = 0
        self.history = []

    def step(self):
        if self.random.random() < 0.25:
            self.slow.search_for(self.random.choice([300, 1500, 2500, 4000]))
        if self.random.random() < 0.25:
            self.crashing.crash(self.random)
        step = self.random.choices([self.change, self.break_configuration, self.remove_file, self.hover, self.start_tool,
                                    self.refresh], [8, 2, 1, 2, 3, 3])[0]
        self.history.append(f"{time.monotonic() - self.launcher.started:.1f} s: {step.__name__}")
        step()
        self.select()

    def window(self):
        """Returns the main window. Fails if any other window than a tooltip is open."""
        windows = [window for window in self.launcher.windows() if window["class"] != TOOL_TIP]
        assert [window["text"] for window in windows] == [TITLE], windows
        return windows[0]

    def listed(self):
        """Returns the sorted rows of the table, or None during a scan."""
        time.sleep(0.05)  # Continuous reading would slow the launcher down.
        window = self.window()
        if not named(window, "refreshBtn")["enabled"]:
            return None
        return sorted(tuple(row["texts"]) for row in named(window, "cameraTable")["rows"])

    def wait_for_table(self, promise):
        wait_for(f"{promise}: {self.expected()}", lambda: self.listed() == self.expected())

    def assert_unchanged(self, seconds):
        """Fails if the table shows unexpected cameras within this time."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            assert (listed := self.listed()) in (None, self.expected()), f"the table has changed by itself: {listed}"

    def expected(self):
        return sorted(self.simulated + SlowProducer.ROWS)

    def show(self, content):
        """Writes a simulator configuration and waits until the table shows its cameras."""
        self.simulated = self.last_valid = rows_of(content)
        self.simulator.write(content)
        self.wait_for_table("the table shows the simulator configuration")
        wait_for("a new list has no selection", lambda: self.launcher.hint() == NOTHING_SELECTED)

    def change(self):
        self.show(self.configurations.next())

    def break_configuration(self):
        text = self.configurations.broken()
        with open(self.simulator.file + ".new", "w", encoding="utf-8", errors="surrogateescape") as file:
            file.write(text)
        os.replace(self.simulator.file + ".new", self.simulator.file)
        self.broken += 1
        wait_for(f"a broken configuration is reported: {text!r}", lambda: self.reports() == self.broken)
        self.simulated = self.last_valid
        self.wait_for_table("the cameras of the last valid configuration are shown")
        press(named(self.window(), "refreshBtn"))
        self.assert_unchanged(3)
        self.change()  # Two broken configurations in a row could cause a single report.

    def reports(self):
        return self.launcher.printed().count("is not used")

    def remove_file(self):
        os.remove(self.simulator.file)
        self.simulated = DEFAULT_ROWS
        self.wait_for_table("the table shows the default cameras")
        self.change()

    def refresh(self):
        press(named(self.window(), "refreshBtn"), self.random.randint(1, 5))
        self.wait_for_table("the table shows the same cameras after a refresh")
        wait_for("a refresh clears the selection", lambda: self.launcher.hint() == NOTHING_SELECTED)

    def attempt(self, promise, act, condition):
        """Calls act() until condition(its result) is true, and returns the value of the condition."""
        for _ in range(ATTEMPTS):
            self.wait_for_table("the list is complete")
            done = act()
            end = time.monotonic() + 5
            while time.monotonic() < end:
                if value := condition(done):
                    return value
        raise AssertionError(f"not within {ATTEMPTS} attempts: {promise}")

    def select(self):
        def press_row():
            (vendor, *_), cells = self.random_row()
            press(cells[0])
            return f"Recommended for {GROUPS.get(vendor, '')}"

        self.attempt("a selection shows its group", press_row,
                     lambda hint: self.launcher.hint().startswith(hint) and self.launcher.enabled_tools())

    def hover(self):
        self.attempt("a tooltip opens", lambda: xdotool(
            "mousemove", 2, 2, "mousemove", *middle(self.random_row()[1][1])), lambda _: self.launcher.of_class(TOOL_TIP))
        xdotool("mousemove", 2, 2)
        wait_for("the tooltip closes", lambda: not self.launcher.of_class(TOOL_TIP))

    def start_tool(self):
        program = os.path.realpath(os.path.dirname(self.launcher.program)) + "/ImageViewer"
        tool, *others = self.attempt("the tool starts", lambda: (self.select(), press(
            self.launcher.tiles()["Image Viewer"])), lambda _: output_of("pgrep", "--full", "--exact", program).split())
        assert not others, "the tool was started more than once"
        os.kill(int(tool), signal.SIGTERM)
        wait_for("the tool has ended", lambda: not output_of("pgrep", "--full", "--exact", program))

    def random_row(self):
        """Returns the texts and the cells of a random row that is visible without scrolling."""
        table = named(self.window(), "cameraTable")
        row = self.random.choice(table["rows"][:4])
        left, top = table["onScreen"][:2]
        return row["texts"], [{"onScreen": (left + x, top + y, width, height)} for x, y, width, height in row["cells"]]
