"""The X side of storm: one connection that touches, presses keys, asks the shell for an answer and takes pictures."""
import ctypes
import os
import select
import time

X = ctypes.CDLL("libX11.so.6")
XTEST = ctypes.CDLL("libXtst.so.6")

# What is the same on the home screen in every language, x, y, width, height: the place of Home and Close has the colour
# of the top bar; the tool box below its closed headers and the working area are empty.
BUTTONS, TOP_BAR = (690, 2, 108, 56), bytes((239, 199, 181))  # blue, green, red
EMPTY = ((2, 204, 156, 250), (164, 64, 632, 390))

CLIENT_MESSAGE, STRUCTURE_NOTIFY, XA_INTEGER, ALL_PLANES, Z_PIXMAP = 33, 1 << 17, 19, ctypes.c_ulong(-1), 2
Handle = ctypes.c_ulong


class Event(ctypes.Union):
    """XEvent, with its client message."""
    class ClientMessage(ctypes.Structure):
        _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                    ("display", ctypes.c_void_p), ("window", Handle), ("message", Handle), ("format", ctypes.c_int),
                    ("data", ctypes.c_long * 5)]
    _fields_ = [("client", ClientMessage), ("pad", ctypes.c_long * 24)]


class Image(ctypes.Structure):
    """The beginning of XImage."""
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("offset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.c_void_p), ("order", ctypes.c_int * 5), ("line", ctypes.c_int), ("bits", ctypes.c_int)]


X.XOpenDisplay.restype = ctypes.c_void_p
X.XGetImage.restype = ctypes.POINTER(Image)
for _name in ("XDefaultRootWindow", "XInternAtom", "XCreateSimpleWindow", "XStringToKeysym"):
    getattr(X, _name).restype = Handle
# Windows of the shell go away while something is asked about them.
_IGNORE = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda display, error: 0)


class Screen:
    """The instrument's screen, a finger and a keyboard."""

    def __init__(self):
        self._display = ctypes.c_void_p(X.XOpenDisplay(None))
        if not self._display:
            raise OSError("no display")
        X.XSetErrorHandler(_IGNORE)
        self._root = Handle(X.XDefaultRootWindow(self._display))
        X.XSelectInput(self._display, self._root, ctypes.c_long(STRUCTURE_NOTIFY))
        self._ping, self._protocols, self._delete, self._index = (
            X.XInternAtom(self._display, name, 0)
            for name in (b"_NET_WM_PING", b"WM_PROTOCOLS", b"WM_DELETE_WINDOW", b"_TAVOPROP_APPINDEX"))
        self._window, self._cover, self._number, self._is_down = 0, None, 0, False

    # ---- hands

    def move(self, point):
        x, y = map(int, point.split(","))
        XTEST.XTestFakeMotionEvent(self._display, 0, x, y, Handle(0))
        X.XFlush(self._display)

    def button(self, down):
        if down != self._is_down:
            self._is_down = down
            XTEST.XTestFakeButtonEvent(self._display, 1, int(down), Handle(0))
            X.XFlush(self._display)

    def finger_up(self):
        self.button(False)

    def key(self, name, down):
        code = X.XKeysymToKeycode(self._display, Handle(X.XStringToKeysym(name.encode()))) & 0xff
        XTEST.XTestFakeKeyEvent(self._display, code, int(down), Handle(0))
        X.XFlush(self._display)

    def cover(self):
        """A window of somebody else comes over the shell's."""
        if self._cover:
            return
        self._cover = Handle(X.XCreateSimpleWindow(self._display, self._root, 0, 0, 800, 460, 0, Handle(0), Handle(0x336633)))
        X.XMapRaised(self._display, self._cover)
        X.XSync(self._display, 0)

    def uncover(self):
        if self._cover:
            X.XDestroyWindow(self._display, self._cover)
            X.XSync(self._display, 0)
            self._cover = None

    # ---- the shell's window

    def find_window(self):
        """The window with the application index, wherever the window manager has put it; 0 when there is none."""
        self._window = self._search(self._root)
        return self._window

    def _search(self, window):
        one, two, children, count = Handle(), Handle(), ctypes.POINTER(Handle)(), ctypes.c_uint()
        if not X.XQueryTree(self._display, window, *map(ctypes.byref, (one, two, children, count))):
            return 0
        found = 0
        for child in children[:count.value]:
            found = found or (child if self._is_marked(Handle(child)) else self._search(Handle(child)))
        if children:
            X.XFree(children)
        return found

    def _is_marked(self, window):
        kind, form, items, rest, data = Handle(), ctypes.c_int(), Handle(), Handle(), ctypes.c_void_p()
        X.XGetWindowProperty(self._display, window, Handle(self._index), ctypes.c_long(0), ctypes.c_long(1), 0,
                             Handle(XA_INTEGER), *map(ctypes.byref, (kind, form, items, rest, data)))
        if data:
            X.XFree(data)
        return kind.value == XA_INTEGER

    def _send(self, protocol, *data):
        event = Event()
        event.client.type, event.client.window, event.client.format = CLIENT_MESSAGE, self._window, 32
        event.client.message = self._protocols
        event.client.data[:] = ((protocol,) + data + (0,) * 4)[:5]
        X.XSendEvent(self._display, Handle(self._window), 0, ctypes.c_long(0), ctypes.byref(event))
        X.XFlush(self._display)

    def ask_to_close(self):
        self._send(self._delete)

    def ask(self):
        """Asks the shell's event loop for an answer. Returns the number of the question."""
        self._number += 1
        self._send(self._ping, self._number, self._window)
        return self._number

    def is_answered(self, number, seconds):
        """Whether that question, or a later one, is answered within that time."""
        end = time.monotonic() + seconds
        event = Event()
        while True:
            while X.XPending(self._display):
                X.XNextEvent(self._display, ctypes.byref(event))
                data = event.client.data
                if event.client.type == CLIENT_MESSAGE and data[0] == self._ping and data[1] >= number:
                    return True
            left = end - time.monotonic()
            if left <= 0:
                return False
            select.select([X.XConnectionNumber(self._display)], [], [], left)

    # ---- pictures

    def _pixels(self):
        image = X.XGetImage(self._display, self._root, 0, 0, 800, 480, ALL_PLANES, Z_PIXMAP)
        if not image:
            raise OSError("no picture of the screen")
        data, line = ctypes.string_at(image.contents.data, image.contents.line * 480), image.contents.line
        X.XDestroyImage(image)
        return data, line

    def is_home(self):
        data, line = self._pixels()

        def is_plain(area, colour=None):
            x, y, width, height = area
            colour = colour or data[y * line + x * 4:y * line + x * 4 + 3]
            return all(data[at + channel:at + width * 4:4] == colour[channel:channel + 1] * width  # the fourth byte is any
                       for at in range(y * line + x * 4, (y + height) * line, line) for channel in range(3))
        return is_plain(BUTTONS, TOP_BAR) and all(map(is_plain, EMPTY))

    def save(self, path):
        data, _ = self._pixels()
        pixels = bytearray(800 * 480 * 3)
        for channel in range(3):
            pixels[channel::3] = data[2 - channel::4]
        with open(path + ".new", "wb") as stream:
            stream.write(b"P6\n800 480\n255\n" + pixels)
        os.rename(path + ".new", path)
