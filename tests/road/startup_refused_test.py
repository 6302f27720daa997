"""Without the program that loads producers the SDK does not start: one dialog, no window, exit code 255."""

import os
import shutil
import sys
import tempfile

from launcher import Launcher, application, descendants, wait_for

TITLE = "Corvix X initialization failed"
TEXT = "Failed to initialize the Corvix X system. The launcher will be closed."


def windows(launcher):
    app = application(launcher.process.pid)
    return [] if app is None else [window for window in app if window is not None]


def main():
    with tempfile.TemporaryDirectory() as directory:
        stage = os.path.join(directory, "stage")
        shutil.copytree(sys.argv[1], stage, symlinks=True)
        os.remove(f"{stage}/bin/CvxProducerHost")
        with Launcher(stage) as launcher:
            dialog = wait_for("the dialog is shown", lambda: next(
                (window for window in windows(launcher) if window.name == TITLE), None))
            assert [window.name for window in windows(launcher) if window.name != TITLE] == []
            assert TEXT in [node.name for node in descendants(dialog)]
            buttons = [node for node in descendants(dialog) if node.getRoleName() == "push button"]
            assert [button.name for button in buttons] == ["OK"], buttons
            buttons[0].queryAction().doAction(0)
            assert launcher.process.wait(timeout=10) == 255


main()
