"""One launcher over a long time: the steps, each of which ends when the window shows what it has to."""

import os
import signal
import time

import footprint
from launcher import BOUND, TITLE, descendants, wait_for, xdotool
from scenes import DEFAULT_ROWS, rows_of
from scripted import CrashingProducer

LOOK = 2.0  # seconds from one look for cameras to the next
TOOL_TIP = "QTipLabel"  # the window's class
ATTEMPTS = 5  # A refresh may take a selection away while it is made.
NOTHING_SELECTED = ("Select a camera to enable its recommended tools.", set())


def named(window, name):
    return next(node for node in descendants(window) if node["name"] == name)


def middle(node):
    x, y, width, height = node["onScreen"]
    return str(x + width // 2), str(y + height // 2)


def press(node, times=1):
    xdotool("mousemove", *middle(node), "click", "--repeat", str(times), "--delay", "50", "1")


class Session:
    def __init__(self, launcher, scene, scenes, recommendation, slow, crashing, random):
        self.launcher, self.scene, self.scenes, self.recommendation = launcher, scene, scenes, recommendation
        self.slow, self.crashing, self.random = slow, crashing, random
        self.expected = rows_of(scene.read())  # of the simulator's cameras
        self.last_good = self.expected
        self.counts = {}
        self.worst = {}
        self.history = []

    def step(self):
        self.disturb()
        act = self.random.choices(
            [self.change, self.break_scene, self.remove_file, self.hover, self.start_tool, self.refresh],
            [8, 2, 1, 2, 3, 3])[0]
        act()
        self.select()

    def note(self, kind, detail=""):
        self.counts[kind] = self.counts.get(kind, 0) + 1
        self.history = self.history[-9:] + [f"{time.monotonic() - self.launcher.started:.1f} s: {kind} {detail}"]

    # What is seen

    def window(self):
        """The main window; there must be no other, but for a tooltip."""
        windows = [window for window in self.launcher.windows() if window["class"] != TOOL_TIP]
        extra = [window for window in windows if window["text"] != TITLE]
        assert not extra, f"another window is open: {[window['text'] for window in extra]}"
        assert windows, "the window is gone"
        return windows[0]

    def listed(self):
        """The table's rows, in order of their texts; none while a scan is running."""
        time.sleep(0.05)  # Looking costs the program more than it does itself.
        window = self.window()
        if not named(window, "refreshBtn")["enabled"]:
            return None
        return sorted(tuple(row["texts"]) for row in named(window, "cameraTable")["rows"])

    def everything(self):
        return sorted(self.expected + self.slow.ROWS)

    def await_table(self, promise, bound=BOUND):
        try:
            wait_for(promise, lambda: self.listed() == self.everything(), bound)
        except AssertionError as failure:
            listed = self.listed() or []
            missing = [row for row in self.everything() if row not in listed]
            extra = [row for row in listed if row not in self.everything()]
            raise AssertionError(f"{failure}; missing: {missing}; too many: {extra}") from None

    def stays(self, seconds):
        """Every list in that time is the right one."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            listed = self.listed()
            assert listed in (None, self.everything()), f"the table has changed by itself: {listed}"

    # What is done

    def disturb(self):
        """Changes how the two bad producers fail, at times."""
        if self.random.random() < 0.25:
            self.slow.take(self.random.choice([300, 1500, 2500, 4000]))
        if self.random.random() < 0.25:
            self.crashing.crash_in(self.random.choice(CrashingProducer.CALLS),
                                   self.random.choice(CrashingProducer.ENDS))

    def show(self, kind, content):
        if self.expected == DEFAULT_ROWS:
            kind = "interfaces"  # The default scene has one of its own.
        self.expected = self.last_good = rows_of(content)
        written = time.monotonic()
        self.scene.write(content)
        if kind == "details":
            self.refresh_until_shown()
        self.await_table(f"the table shows the scene ({kind})")
        self.await_tools(NOTHING_SELECTED, "a new list has no selection")
        self.took(kind, written)

    def took(self, kind, since):
        self.worst[kind] = max(time.monotonic() - since, self.worst.get(kind, 0))

    def change(self):
        kind, content = self.scenes.next()
        self.note(f"changes of {kind}", f"to {len(rows_of(content))}")
        self.show(kind, content)

    def refresh_until_shown(self):
        """Texts that change under a camera's ID are no plugging, which alone is announced: the next list has them."""
        def refreshed():
            press(named(self.window(), "refreshBtn"))
            end = time.monotonic() + LOOK
            while time.monotonic() < end:
                if self.listed() == self.everything():
                    return True
            return False
        wait_for("refreshes bring changed texts", refreshed)

    def show_largest(self):
        self.note("changes of interfaces", "to the largest scene")
        self.show("interfaces", self.scenes.largest())

    def break_scene(self):
        text = self.scenes.broken()
        self.note("broken scenes", repr(text[:40]))
        before = self.reports()
        with open(self.scene.file + ".new", "w", encoding="utf-8", errors="surrogateescape") as file:
            file.write(text)
        os.replace(self.scene.file + ".new", self.scene.file)
        wait_for("the broken scene is reported", lambda: self.reports() == before + 1)
        self.expected = self.last_good  # Also where there was no file, and so the default scene, in between.
        self.await_table("the last good scene is shown")
        press(named(self.window(), "refreshBtn"))
        self.stays(LOOK + 0.5)
        self.change()  # Else two broken scenes could follow each other, and make one report.

    def reports(self):
        return self.launcher.printed().count("is not used")

    def remove_file(self):
        if not os.path.exists(self.scene.file):
            self.change()
            return
        self.note("removed scenes")
        written = time.monotonic()
        os.remove(self.scene.file)
        self.expected = DEFAULT_ROWS
        self.await_table("the table shows the default scene")
        self.took("interfaces", written)

    def refresh(self):
        times = self.random.randint(1, 5)
        self.note("refresh clicks", f"{times} at once")
        press(named(self.window(), "refreshBtn"), times)
        self.await_table("the table shows the scene after a refresh")
        self.await_tools(NOTHING_SELECTED, "a refresh takes the selection away")

    def select(self):
        """Selects a row that is in view, after turning the wheel; gives the tools that have to be enabled."""
        self.note("selections")
        turns = self.random.randint(-5, 5)
        place = self.random.random()
        for _ in range(ATTEMPTS):
            self.await_table("the table is there to select in")
            (vendor, model, _), cells = self.row_in_view(turns, place)
            press(cells[0])
            hint, tools = self.recommendation.hint(vendor, model), self.recommendation.tools(vendor, model)
            self.history[-1] += f" {vendor!r} {model!r}"
            try:
                self.await_tools((hint, set(tools)), f"{vendor!r} {model!r} is selected")
                return tools
            except AssertionError as failure:
                seen = failure
                self.note("selections lost to a refresh")
        raise seen

    def hover(self):
        """Rests the pointer on a model until its tooltip is there."""
        self.note("tooltips")
        turns = self.random.randint(-5, 5)
        place = self.random.random()
        for _ in range(ATTEMPTS):
            self.await_table("the table is there to point at")
            _, cells = self.row_in_view(turns, place)
            xdotool("mousemove", "2", "2", "mousemove", *middle(cells[1]))
            try:
                wait_for("a tooltip appears", self.tool_tips, 3)
                break
            except AssertionError as failure:
                seen = failure
                self.note("tooltips lost to a refresh")
        else:
            raise seen
        xdotool("mousemove", "2", "2")
        wait_for("the tooltip goes", lambda: not self.tool_tips())

    def tool_tips(self):
        return [window for window in self.launcher.windows() if window["class"] == TOOL_TIP]

    def row_in_view(self, turns, place):
        """Turns the wheel, and gives the texts and the cells of one of the rows that can be seen whole."""
        table = named(self.window(), "cameraTable")
        if turns:
            xdotool("mousemove", *middle(table), "click", "--repeat", str(abs(turns)), "5" if turns > 0 else "4")
            table = named(self.window(), "cameraTable")
        left, top = table["onScreen"][:2]
        _, view_top, _, view_height = named(table, "qt_scrollarea_viewport")["onScreen"]
        in_view = []
        for row in table["rows"]:
            cells = [{"onScreen": (left + x, top + y, width, height)} for x, y, width, height in row["cells"]]
            _, cell_top, _, cell_height = cells[0]["onScreen"]
            if cell_top >= view_top and cell_top + cell_height <= view_top + view_height:
                in_view.append((row["texts"], cells))
        return in_view[int(place * len(in_view))]

    def await_tools(self, expected, promise):
        try:
            wait_for(promise, lambda: self.recommended() == expected, 3)
        except AssertionError as failure:
            raise AssertionError(f"{failure}: {self.recommended()} in place of {expected}") from None

    def recommended(self):
        """The hint and the names of the enabled tools."""
        window = self.window()
        return named(window, "toolsDescriptionLabel")["text"], {
            child["text"] for tile in descendants(window) if tile["class"] == "ApplicationLauncher" and tile["enabled"]
            for child in tile["children"] if child["name"] == "applicationName"}

    def start_tool(self):
        place = self.random.random()
        for _ in range(ATTEMPTS):
            tools = self.select()
            name = sorted(tools)[int(place * len(tools))]
            program = os.path.realpath(self.launcher.program + "/../..") + "/" + tools[name]["executable"]
            press(self.launcher.tiles()[name])
            try:
                started = wait_for(f"{name} is started", lambda: self.running(program), 5)
                break
            except AssertionError as failure:
                seen = failure
                self.note("tool starts lost to a refresh")
        else:
            raise seen
        self.note("tool starts", name)
        assert len(started) == 1, f"{name} was started {len(started)} times"
        os.kill(started[0], signal.SIGTERM)
        wait_for(f"{name} has ended", lambda: not self.running(program))

    @staticmethod
    def running(program):
        """The processes of a program, without those that it has forked, which bear its name until they are another."""
        found = {process: footprint.parent(process) for process in footprint.processes()
                 if footprint.arguments(process)[0] == program and footprint.state(process) != "Z"}
        return [process for process, parent in found.items() if parent not in found]
