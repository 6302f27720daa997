"""Observes through the X server what a program draws, and when. The measured programs run unchanged, without a plugin."""

import contextlib
import ctypes
import os
import select
import signal
import subprocess
import tempfile
import time

BOUND = 30.0  # Every wait ends after this many seconds.
WITHOUT_OPENGL = {"QT_XCB_GL_INTEGRATION": "none"}  # With this environment, a Qt program does not load OpenGL.
xlib, xdamage, xtest = (ctypes.CDLL(f"lib{name}") for name in ("X11.so.6", "Xdamage.so.1", "Xtst.so.6"))
ulong, pointer = ctypes.c_ulong, ctypes.c_void_p
xlib.XOpenDisplay.restype = pointer
xlib.XDefaultRootWindow.restype = xdamage.XDamageCreate.restype = ulong
CREATE_NOTIFY, SUBSTRUCTURE_NOTIFY = 16, 1 << 19
RAW_RECTANGLES, ALL_PLANES, Z_PIXMAP = 0, ulong(-1), 2


class Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", pointer)]  # The rest of the structure is not used.


class CreateEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ulong), ("send_event", ctypes.c_int), ("display", pointer),
                ("parent", ulong), ("window", ulong), ("x", ctypes.c_int), ("y", ctypes.c_int),
                ("width", ctypes.c_int), ("height", ctypes.c_int), ("border", ctypes.c_int),
                ("override_redirect", ctypes.c_int)]


class DamageEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ulong), ("send_event", ctypes.c_int), ("display", pointer),
                ("drawable", ulong), ("damage", ulong), ("level", ctypes.c_int), ("more", ctypes.c_int),
                ("timestamp", ulong), ("x", ctypes.c_short), ("y", ctypes.c_short), ("width", ctypes.c_ushort),
                ("height", ctypes.c_ushort)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("create", CreateEvent), ("damage", DamageEvent), ("size", ctypes.c_long * 24)]


xlib.XGetImage.restype = ctypes.POINTER(Image)
# Errors are ignored, because a window may close at any time.
error_handler = ctypes.CFUNCTYPE(ctypes.c_int, pointer, pointer)(lambda *_: 0)


class Screen:
    """Observes the newest window that is about as large as the launcher's. Use this class in a with statement."""

    def __enter__(self):
        xlib.XSetErrorHandler(error_handler)
        self.display = pointer(xlib.XOpenDisplay(None))
        base, unused = ctypes.c_int(), ctypes.c_int()
        assert xdamage.XDamageQueryExtension(self.display, ctypes.byref(base), ctypes.byref(unused))
        self.damage_notify = base.value
        self.socket = xlib.XConnectionNumber(self.display)
        root = ulong(xlib.XDefaultRootWindow(self.display))
        xlib.XSelectInput(self.display, root, ctypes.c_long(SUBSTRUCTURE_NOTIFY))
        xlib.XSync(self.display, 1)
        self.window = None
        return self

    def __exit__(self, *_):
        xlib.XCloseDisplay(self.display)

    def drawn(self, bound=BOUND):
        """Returns the next rectangle that is drawn, in window coordinates, or None after `bound` seconds."""
        end = time.monotonic() + bound
        while True:
            while xlib.XPending(self.display):
                event = Event()
                xlib.XNextEvent(self.display, ctypes.byref(event))
                if event.type == CREATE_NOTIFY:
                    self.note_window(event.create)
                elif event.type == self.damage_notify and event.damage.drawable == self.window:
                    return event.damage.x, event.damage.y, event.damage.width, event.damage.height
            left = end - time.monotonic()
            if left <= 0 or not select.select([self.socket], [], [], left)[0]:
                return None

    def note_window(self, event):
        if event.width < 500 or event.height < 500 or event.override_redirect:
            return  # This window is a helper window of Qt or a frame of the window manager.
        self.window, self.size = event.window, (event.width, event.height)
        xdamage.XDamageCreate(self.display, ulong(self.window), RAW_RECTANGLES)
        xlib.XFlush(self.display)

    def await_window(self):
        """Waits until a new window has been drawn completely, and returns the time."""
        self.window = None
        left, top, right, bottom = 1 << 15, 1 << 15, 0, 0
        while True:
            box = self.drawn()
            assert box, "no window is drawn"
            left, top = min(left, box[0]), min(top, box[1])
            right, bottom = max(right, box[0] + box[2]), max(bottom, box[1] + box[3])
            if (left, top) == (0, 0) and right >= self.size[0] and bottom >= self.size[1]:
                return time.monotonic()

    def await_text(self, boxes, wanted=True):
        """Waits until every rectangle contains text or, if `wanted` is false, none does. Returns the time."""
        end = time.monotonic() + BOUND
        while not all(self.has_text(box) == wanted for box in boxes):
            assert time.monotonic() < end and self.drawn(), "the expected text is not drawn"
        return time.monotonic()

    def await_quiet(self, seconds=0.3):
        """Waits until nothing has been drawn for this many seconds."""
        end = time.monotonic() + BOUND
        while self.drawn(seconds):
            assert time.monotonic() < end, "the window is drawn again and again"

    def has_text(self, box):
        """Returns whether a rectangle contains text: text has many shades, an empty rectangle has few."""
        image = xlib.XGetImage(self.display, ulong(self.window), *box, ALL_PLANES, Z_PIXMAP)
        if not image:
            return False  # The window is not on the screen yet.
        pixels = ctypes.string_at(image.contents.data, 4 * box[2] * box[3])
        xlib.XFree(pointer(image.contents.data))
        xlib.XFree(image)
        return len({pixels[start:start + 4] for start in range(0, len(pixels), 4)}) > 8

    def press(self, place):
        """Moves the pointer, waits until drawing ends, and clicks. Returns the time just before the click."""
        xlib.XWarpPointer(self.display, ulong(0), ulong(self.window), 0, 0, 0, 0, *place)
        xlib.XSync(self.display, 0)
        self.await_quiet()
        pressed = time.monotonic()
        xtest.XTestFakeButtonEvent(self.display, 1, 1, ulong(0))
        xtest.XTestFakeButtonEvent(self.display, 1, 0, ulong(0))
        xlib.XFlush(self.display)
        return pressed


@contextlib.contextmanager
def running(*command, environment=None):
    """Runs a program, and yields the process and the time just before its start. Kills the process at the end."""
    with tempfile.TemporaryFile() as errors:
        started = time.monotonic()
        process = subprocess.Popen(command, cwd="/", env={**os.environ, "LC_ALL": "C.UTF-8", **(environment or {})},
                                   stdout=subprocess.DEVNULL, stderr=errors, close_fds=False)
        try:
            yield process, started
        except AssertionError as failure:
            errors.seek(0)
            raise AssertionError(f"{failure}; {command} printed: {errors.read().decode()}") from None
        finally:
            process.send_signal(signal.SIGKILL)
            process.wait(BOUND)
