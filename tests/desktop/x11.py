"""Queries the X server about windows that the window reader describes, and sends requests to the window manager."""

import Xlib.display
import Xlib.error
from Xlib import X
from Xlib.protocol.event import ClientMessage

display = Xlib.display.Display()
root = display.screen().root


def window_of(node):
    return display.create_resource_object("window", int(node["xWindow"]))


def box_of(node):
    """Returns the position and size of a window, or None while the window is not visible."""
    window = window_of(node)
    try:
        if window.get_attributes().map_state != X.IsViewable:
            return None
        place, size = root.translate_coords(window, 0, 0), window.get_geometry()
    except Xlib.error.XError:  # The window has been destroyed.
        return None
    return place.x, place.y, size.width, size.height


def property_of(node, name):
    found = window_of(node).get_full_property(display.get_atom(name), X.AnyPropertyType)
    return list(found.value) if found else []


def ask(node, message, *data):
    """Sends the window manager a message about a window, as a task bar does."""
    event = ClientMessage(window=window_of(node), client_type=display.get_atom(message),
                          data=(32, (list(data) + [0] * 5)[:5]))
    root.send_event(event, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
    display.sync()


def ask_to_close(node):
    ask(node, "_NET_CLOSE_WINDOW")


def ask_to_activate(node):
    ask(node, "_NET_ACTIVE_WINDOW", 2)
