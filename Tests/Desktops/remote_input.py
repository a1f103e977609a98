"""A virtual keyboard and pointer of GNOME Shell, through mutter's remote desktop service."""

import time

from accessibility import call
from screen import Screen

NAME = "org.gnome.Mutter.RemoteDesktop"
SESSION = NAME + ".Session"
# Linux input event codes.
KEYS = {"Escape": 1, "q": 16, "r": 19, "ctrl": 29, "alt": 56, "space": 57, "F2": 60, "F10": 68,
        "F11": 87, "Up": 103, "Left": 105, "Right": 106, "Down": 108, "super": 125, "shift": 42}
LEFT_BUTTON = 0x110
# More than the size of the screen.
FAR = 10_000
# The shell combines what happens within one frame.
FRAME_SECONDS = 0.03


class RemoteInput:
    """A session, which lasts as long as the connection `bus`."""

    def __init__(self, bus):
        self._bus = bus
        path, = call(bus, (NAME, "/org/gnome/Mutter/RemoteDesktop"), NAME, "CreateSession")
        self._session = NAME, path
        self._call("Start")
        # Programs learn that there is a keyboard and a pointer when these are first used.
        self.press("shift")
        # The corner at the bottom right: there is nothing in it.
        self._move(FAR, FAR)
        self._position = Screen.WIDTH - 1, Screen.HEIGHT - 1

    def press(self, *keys):
        for combination in keys:
            codes = [KEYS[name] for name in combination.split("+")]
            for code in codes:
                self._call("NotifyKeyboardKeycode", "(ub)", code, True)
            for code in reversed(codes):
                self._call("NotifyKeyboardKeycode", "(ub)", code, False)

    def point_at(self, x, y):
        left, top = self._position
        self._move(x - left, y - top)
        self._position = x, y

    def click(self):
        for is_down in True, False:
            self._call("NotifyPointerButton", "(ib)", LEFT_BUTTON, is_down)
            time.sleep(FRAME_SECONDS)

    def _move(self, x, y):
        self._call("NotifyPointerMotionRelative", "(dd)", x, y)
        time.sleep(FRAME_SECONDS)

    def _call(self, method, signature="()", *arguments):
        call(self._bus, self._session, SESSION, method, signature, *arguments)
