"""What a screen reader learns of a program, over AT-SPI. Needs tests/desktop/with-screen-reader-bus."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 (the version comes first)

from launcher import wait_for

FOCUSABLE, FOCUSED, ENABLED = Atspi.StateType.FOCUSABLE, Atspi.StateType.FOCUSED, Atspi.StateType.ENABLED
BUTTON, TABLE = Atspi.Role.PUSH_BUTTON, Atspi.Role.TABLE


def application_of(process):
    """The application of that process, waited for."""
    Atspi.init()
    desktop = Atspi.get_desktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)

    def found():
        return next((node for node in children(desktop) if process_of(node) == process), None)
    application = wait_for("the program is on the bus", found)
    application.set_cache_mask(Atspi.Cache.NONE)  # Every answer is the program's, of now.
    return application


def process_of(application):
    try:
        return application.get_process_id()
    except GLib.Error:  # It has just ended.
        return None


def children(node):
    return [child for child in map(node.get_child_at_index, range(node.get_child_count())) if child]


def descendants(node):
    for child in children(node):
        yield child
        yield from descendants(child)


def has(node, state):
    return node.get_state_set().contains(state)


def of_role(node, role):
    return [child for child in descendants(node) if child.get_role() == role]


def named(node, name):
    """The first below the node that has the name."""
    return next((child for child in descendants(node) if child.get_name() == name), None)
