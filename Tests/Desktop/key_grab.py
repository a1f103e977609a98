"""Another program that has grabbed some keys on the X server, or the whole keyboard."""

import ctypes

# X11 key codes.
F5 = 71
L = 46
CONTROL = 1 << 2
ALT = 1 << 3
GRAB_MODE_ASYNC = 1
CURRENT_TIME = 0


class _Grab:
    """Lasts until `close`, which may be called twice."""

    def __init__(self, display):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display.encode()))
        assert self._display.value, f"cannot open display {display}"
        self._root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))

    def close(self):
        if self._display:
            self._x11.XCloseDisplay(self._display)
            self._display = None


class KeyboardGrab(_Grab):
    """Gets every key press, as a lock screen does."""

    def __init__(self, display):
        super().__init__(display)
        failure = self._x11.XGrabKeyboard(self._display, self._root, False, GRAB_MODE_ASYNC,
                                          GRAB_MODE_ASYNC, ctypes.c_ulong(CURRENT_TIME))
        assert failure == 0


class KeyGrab(_Grab):
    """Shortcuts of the desktop: keys, each with the modifiers that have to be held.

    The program has the whole keyboard from the press of such a key to its release."""

    def __init__(self, display, keys):
        super().__init__(display)
        for keycode, modifiers in keys.items():
            self._x11.XGrabKey(self._display, keycode, modifiers, self._root, False,
                               GRAB_MODE_ASYNC, GRAB_MODE_ASYNC)
        self._x11.XSync(self._display, False)

    def was_used(self):
        """Whether a grabbed key has been pressed since the last call."""
        pending = self._x11.XPending(self._display)
        self._x11.XSync(self._display, True)
        return pending > 0
