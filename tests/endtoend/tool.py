"""Operates the window of a tool that the launcher has started."""

import os
import signal
import subprocess
import sys

from launcher import TITLE, click, descendants, output_of, read_windows, wait_for, xdotool


def start(launcher, title, name):
    """Starts a tool by its tile, for the selected camera. The name is that of the program, for example "ImageViewer"."""
    xdotool("search", "--name", f"^{TITLE}$", "windowactivate", "--sync")
    click(launcher.tiles()[title])
    return Tool(launcher, name)


def start_for(launcher, vendor, title, name):
    """Starts a tool for the vendor's first camera."""
    wait_for("the camera is listed", lambda: any(row[0] == vendor for row in launcher.rows()))
    click(launcher.cell(vendor))
    wait_for(f"{title} is enabled", lambda: title in launcher.enabled_tools())
    return start(launcher, title, name)


class Tool:
    """A tool within a with statement, which ends it."""

    def __init__(self, launcher, name):
        """Waits until the tool shows its window."""
        directory = os.path.dirname(os.path.realpath(launcher.program))
        self.process = wait_for(f"{name} runs", lambda: output_of("pgrep", "--oldest", "-fx", f"{directory}/{name}").strip())
        self.reader = f"{launcher.socket}.{self.process}"
        self.window = wait_for(f"{name} shows its window", lambda: output_of(
            "xdotool", "search", "--all", "--onlyvisible", "--pid", self.process, "--name", "–").split())[0]

    def __enter__(self):
        return self

    def __exit__(self, failure, *_):
        if failure:
            print("The window shows:", self.shows(bool), file=sys.stderr)
        os.kill(int(self.process), signal.SIGTERM)

    def widgets(self):
        return [widget for window in read_windows(self.reader) for widget in descendants(window)]

    def shows(self, matches):
        """Returns the texts of the labels and buttons for which matches(text) is true."""
        return [widget["text"] for widget in self.widgets() if matches(widget["text"])]

    def click(self, text):
        """Clicks the button with this text, which contains no "&", as soon as it can be used and stays at its place. The
        position of the window comes from the X server, because Qt learns the position later."""
        places = []

        def resting_place():
            place = next(((window["xWindow"], widget["box"]) for window in read_windows(self.reader)
                          for widget in descendants(window)
                          if widget["enabled"] and widget["text"].replace("&", "") == text), None)
            places.append(place)
            return place if places[-10:] == [place] * 10 else None
        window, (x, y, width, height) = wait_for(f'the button "{text}" can be used', resting_place)
        xdotool("mousemove", "--window", window, x + width // 2, y + height // 2, "click", 1)

    def activate(self):
        xdotool("windowactivate", "--sync", self.window)

    def press(self, *keys):
        xdotool("key", "--delay", 50, *keys)

    def type(self, text):
        xdotool("type", "--delay", 50, text)

    def choose_target(self, name):
        """Chooses what the simulated camera looks at, in the camera settings of the panel, by the first letter."""
        def box():
            return next((widget for widget in self.widgets() if widget["class"] == "QComboBox"
                         and widget["accessibleName"] == "SceneTarget" and widget["enabled"]), None)
        x, y, width, height = wait_for("the target can be chosen", box)["box"]
        xdotool("mousemove", "--window", self.window, x + width // 2, y + height // 2, "click", 1)
        self.press(name[0], "Return")

    def save_result(self, path):
        """Saves the result of a measurement, and waits for the report, which is the last file."""
        def is_active():
            return any(widget["active"] for widget in self.widgets() if widget["text"].replace("&", "") == "Save")
        self.press("ctrl+s")
        wait_for("the file dialog is active", is_active)
        self.press("ctrl+a")
        self.type(path)
        self.press("Return")
        wait_for("the report is written", lambda: os.path.exists(os.path.splitext(path)[0] + ".html"))
        wait_for("the file dialog is closed", lambda: not is_active())

    def screenshot(self):
        """Returns the content of the window as PNG."""
        return subprocess.run(["import", "-window", self.window, "png:-"], check=True, stdout=subprocess.PIPE).stdout

    def shown_pixels(self, width, height):
        """Returns the grey values of the middle of the shown picture, line by line."""
        canvas = next(widget for widget in self.widgets() if widget["class"] == "ImageCanvas")
        x, y, full_width, full_height = canvas["box"]
        area = f"{width}x{height}+{x + (full_width - width) // 2}+{y + (full_height - height) // 2}"
        return subprocess.run(["convert-im6.q16", "-", "-crop", area, "-depth", "8", "gray:-"], input=self.screenshot(),
                              check=True, stdout=subprocess.PIPE).stdout

    def brightness(self):
        """Returns the mean of the middle of the window, 0 to 1, and the number of its colours."""
        result = subprocess.run(["convert-im6.q16", "-", "-gravity", "Center", "-crop", "30%x30%+0+0", "+repage",
                                 "-format", "%k ", "-write", "info:", "-colorspace", "Gray", "-format", "%[fx:mean]", "info:"],
                                input=self.screenshot(), check=True, stdout=subprocess.PIPE).stdout
        colours, mean = result.split()
        return float(mean), int(colours)
