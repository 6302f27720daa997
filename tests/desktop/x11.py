"""The one request to the X server that xdotool does not know."""

import ctypes

xlib = ctypes.CDLL("libX11.so.6")
xlib.XOpenDisplay.restype = ctypes.c_void_p
SUBSTRUCTURE = 1 << 19 | 1 << 20  # Redirect and notify: the window manager hears it.


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5), ("padding", ctypes.c_long * 12)]


def ask_to_close(window):
    """As a task bar does; the window may decline."""
    display = ctypes.c_void_p(xlib.XOpenDisplay(None))
    message = ClientMessage(type=33, window=int(window), format=32,
                            message_type=xlib.XInternAtom(display, b"_NET_CLOSE_WINDOW", False))
    root = ctypes.c_ulong(xlib.XDefaultRootWindow(display))
    xlib.XSendEvent(display, root, False, ctypes.c_long(SUBSTRUCTURE), ctypes.byref(message))
    xlib.XCloseDisplay(display)
