"""What to ask of the X server that xdotool does not know."""

import ctypes

xlib = ctypes.CDLL("libX11.so.6")
xlib.XOpenDisplay.restype = ctypes.c_void_p
xfixes = ctypes.CDLL("libXfixes.so.3")
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


class CursorNotify(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("subtype", ctypes.c_int),
                ("cursor_serial", ctypes.c_ulong), ("timestamp", ctypes.c_ulong), ("cursor_name", ctypes.c_ulong),
                ("padding", ctypes.c_long * 16)]


class PointerShapes:
    """Tells the shapes that the pointer takes while it lives, each by a number; to be used in a with statement."""

    def __enter__(self):
        self.display = ctypes.c_void_p(xlib.XOpenDisplay(None))
        base, unused = ctypes.c_int(), ctypes.c_int()
        xfixes.XFixesQueryExtension(self.display, ctypes.byref(base), ctypes.byref(unused))
        self.event_type = base.value + 1  # XFixesCursorNotify
        root = ctypes.c_ulong(xlib.XDefaultRootWindow(self.display))
        xfixes.XFixesSelectCursorInput(self.display, root, ctypes.c_ulong(1))  # XFixesDisplayCursorNotifyMask
        xlib.XSync(self.display, False)
        return self

    def __exit__(self, *_):
        xlib.XCloseDisplay(self.display)

    def new(self):
        """Those since the last call, in their order."""
        xlib.XSync(self.display, False)
        shapes, event = [], CursorNotify()
        while xlib.XCheckTypedEvent(self.display, self.event_type, ctypes.byref(event)):
            shapes.append(event.cursor_serial)
        return shapes
