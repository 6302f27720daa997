"""Times the staged launcher from its start to its window, and to its first complete list on the screen.

usage: script/with-desktop python3 -B bench/first_list.py STAGE PLUGINS [ROUNDS]
"""

import os
import statistics
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "road"))

from launcher import Launcher, wait_for  # pylint: disable=wrong-import-position


def one_round(stage, plugins):
    """Milliseconds to the window and to the list."""
    with Launcher(stage, plugins) as launcher:
        wait_for("a window", launcher.windows)
        window = time.monotonic()
        wait_for("the list", lambda: launcher.rows() and launcher.rows()[0][0] != "Scanning...")
        listed = time.monotonic()
        return (window - launcher.started) * 1000, (listed - launcher.started) * 1000


def main():
    stage, plugins = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 15
    one_round(stage, plugins)  # Fills the page cache.
    figures = zip(*(one_round(stage, plugins) for _ in range(rounds)))
    for name, values in zip(("start to window", "start to first list"), figures):
        print(f"{name}: median {statistics.median(values):.0f} ms, "
              f"{min(values):.0f} to {max(values):.0f} ms, {rounds} rounds")


main()
