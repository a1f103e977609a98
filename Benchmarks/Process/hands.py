"""The X server as the benchmarks touch it: keys are pressed and the bare screen is coloured."""

import ctypes

SPACE = 65
DIRECTION_KEYS = {"up": 111, "left": 113, "right": 114, "down": 116}

AT_ONCE = 0
THE_SCREEN = -1
LEFT_BUTTON = 1


class Hands:
    def __init__(self, display):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._test = ctypes.CDLL("libXtst.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display.encode()))
        assert self._display.value, f"no display {display}"

    def press(self, keycode):
        """Presses a key and lets go of it; the server has it when this returns."""
        for is_down in (True, False):
            self._test.XTestFakeKeyEvent(self._display, keycode, is_down, AT_ONCE)
        self._x11.XSync(self._display, False)

    def click(self, x, y):
        """Presses the left button of the mouse at a place of the screen."""
        self._test.XTestFakeMotionEvent(self._display, THE_SCREEN, x, y, AT_ONCE)
        for is_down in (True, False):
            self._test.XTestFakeButtonEvent(self._display, LEFT_BUTTON, is_down, AT_ONCE)
        self._x11.XSync(self._display, False)

    def colour_screen(self, colour):
        """Gives the screen behind all windows a colour: red, green and blue, 0 to 255 each."""
        red, green, blue = colour
        root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        pixel = ctypes.c_ulong(red << 16 | green << 8 | blue)
        self._x11.XSetWindowBackground(self._display, root, pixel)
        self._x11.XClearWindow(self._display, root)
        self._x11.XSync(self._display, False)
