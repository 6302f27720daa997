"""Applies corrections in the Image Viewer that the launcher has started."""

from launcher import wait_for
from tool import start


def watch(launcher):
    """Starts the Image Viewer for the selected camera, which another tool uses, and shows each pixel of its pictures as one
    pixel of the screen."""
    viewer = start(launcher, "Image Viewer", "ImageViewer")
    viewer.activate()
    viewer.click("Watch only")
    wait_for("the viewer watches", lambda: any(widget["class"] == "ImageCanvas" for widget in viewer.widgets()))
    viewer.press("ctrl+1")
    return viewer


def correct_pictures(viewer, field, path):
    """Enters a file in the dialog for corrections. Alt and the letter `field` reach its field."""
    viewer.press("alt+c", "c")
    wait_for("the dialog is active", lambda: any(widget["active"] for widget in viewer.widgets()
                                                 if widget["text"].replace("&", "") == "Correct the pictures"))
    viewer.press(f"alt+{field}")
    viewer.type(path)
    viewer.press("Return")
    wait_for("the pictures are corrected", lambda: viewer.shows(lambda text: text == "The pictures are corrected."))
    viewer.press("Escape")
