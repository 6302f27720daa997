"""Without the program that loads producers the SDK does not start: one dialog, no window, exit code 255."""

import os
import shutil
import sys
import tempfile

from launcher import Launcher, click, descendants, wait_for

TITLE = "Corvix X initialization failed"
TEXT = "Failed to initialize the Corvix X system. The launcher will be closed."


def main():
    with tempfile.TemporaryDirectory() as directory:
        stage = os.path.join(directory, "stage")
        shutil.copytree(sys.argv[1], stage, symlinks=True)
        os.remove(f"{stage}/bin/CvxProducerHost")
        with Launcher(stage, sys.argv[2]) as launcher:
            dialog, = wait_for("the dialog is shown", launcher.windows)
            assert dialog["text"] == TITLE, dialog
            assert TEXT in [node["text"] for node in descendants(dialog)], dialog
            button, = [node for node in descendants(dialog) if node["class"] == "QPushButton"]
            assert button["text"] in ("OK", "&OK"), button
            click(button, TITLE)
            assert launcher.process.wait(timeout=10) == 255, launcher.printed()


main()
