"""Operates the window of a tool that the launcher has started."""

import os
import signal
import subprocess

from launcher import descendants, output_of, read_windows, wait_for, xdotool


class Tool:
    """A tool within a with statement, which ends it."""

    def __init__(self, launcher, name):
        """Waits until the tool shows its window. The name is that of the program, for example "ImageViewer"."""
        directory = os.path.dirname(os.path.realpath(launcher.program))
        self.process = wait_for(f"{name} runs", lambda: output_of("pgrep", "-fx", f"{directory}/{name}").strip())
        self.reader = f"{launcher.socket}.{self.process}"
        self.window = wait_for(f"{name} shows its window", lambda: output_of(
            "xdotool", "search", "--all", "--onlyvisible", "--pid", self.process, "--name", "–").split())[0]

    def __enter__(self):
        return self

    def __exit__(self, *_):
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

    def brightness(self):
        """Returns the mean of the middle of the window, 0 to 1, and the number of its colours."""
        picture = subprocess.run(["import", "-window", self.window, "png:-"], check=True, stdout=subprocess.PIPE).stdout
        result = subprocess.run(["convert-im6.q16", "-", "-gravity", "Center", "-crop", "30%x30%+0+0", "+repage",
                                 "-format", "%k ", "-write", "info:", "-colorspace", "Gray", "-format", "%[fx:mean]", "info:"],
                                input=picture, check=True, stdout=subprocess.PIPE).stdout
        colours, mean = result.split()
        return float(mean), int(colours)
