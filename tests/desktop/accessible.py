"""Reads a program over AT-SPI as a screen reader does. The functions need the buses of with-screen-reader-bus."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 (the version has to be required first)

from launcher import wait_for

FOCUSABLE, FOCUSED, ENABLED = Atspi.StateType.FOCUSABLE, Atspi.StateType.FOCUSED, Atspi.StateType.ENABLED
BUTTON, TABLE = Atspi.Role.PUSH_BUTTON, Atspi.Role.TABLE


def application_of(process):
    """Waits until a process is registered on the accessibility bus, and returns its application object."""
    Atspi.init()
    desktop = Atspi.get_desktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)
    application = wait_for("the program is on the bus", lambda: next(
        (node for node in children(desktop) if process_of(node) == process), None))
    application.set_cache_mask(Atspi.Cache.NONE)  # The cache would return outdated names and states.
    return application


def process_of(application):
    try:
        return application.get_process_id()
    except GLib.Error:  # The application has just ended.
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
    return next((child for child in descendants(node) if child.get_name() == name), None)
