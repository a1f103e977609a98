"""Shortcuts of the desktop: keys that another program has grabbed on the X server."""

import ctypes

# X11 key codes.
F5 = 71
L = 46
CONTROL = 1 << 2
ALT = 1 << 3
GRAB_MODE_ASYNC = 1


class KeyGrab:
    """Grabs keys until `close`, each with the modifiers that have to be held."""

    def __init__(self, display, keys):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display.encode()))
        assert self._display.value, f"cannot open display {display}"
        root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        for keycode, modifiers in keys.items():
            self._x11.XGrabKey(self._display, keycode, modifiers, root, False, GRAB_MODE_ASYNC,
                               GRAB_MODE_ASYNC)
        self._x11.XSync(self._display, False)

    def was_used(self):
        """Whether a grabbed key has been pressed since the last call."""
        pending = self._x11.XPending(self._display)
        self._x11.XSync(self._display, True)
        return pending > 0

    def close(self):
        self._x11.XCloseDisplay(self._display)
