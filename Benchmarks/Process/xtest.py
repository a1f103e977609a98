"""Simulated key presses and clicks (XTEST), and the colour of the root window, through Xlib."""

import ctypes

SPACE = 65
DIRECTION_KEYS = {"up": 111, "left": 113, "right": 114, "down": 116}

NO_DELAY = 0
CURRENT_SCREEN = -1
LEFT_BUTTON = 1


class XTest:
    def __init__(self, display):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._test = ctypes.CDLL("libXtst.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display.encode()))
        assert self._display.value, f"cannot open display {display}"

    def press(self, keycode):
        """Presses and releases a key; returns when the X server has processed both events."""
        for is_down in (True, False):
            self._test.XTestFakeKeyEvent(self._display, keycode, is_down, NO_DELAY)
        self._x11.XSync(self._display, False)

    def click(self, x, y):
        """Clicks the left mouse button at a position on the screen, in pixels."""
        self._test.XTestFakeMotionEvent(self._display, CURRENT_SCREEN, x, y, NO_DELAY)
        for is_down in (True, False):
            self._test.XTestFakeButtonEvent(self._display, LEFT_BUTTON, is_down, NO_DELAY)
        self._x11.XSync(self._display, False)

    def fill_root_window(self, colour):
        """Fills the root window with a colour: red, green and blue, 0 to 255 each."""
        red, green, blue = colour
        root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        pixel = ctypes.c_ulong(red << 16 | green << 8 | blue)
        self._x11.XSetWindowBackground(self._display, root, pixel)
        self._x11.XClearWindow(self._display, root)
        self._x11.XSync(self._display, False)
