"""Presses keys through XTEST, tens of thousands per second. xdotool waits after each key."""

import ctypes

BATCH = 1000
NO_DELAY = 0


def press_fast(display, key_code, times):
    """Presses and releases a key many times; returns when the X server has processed it all."""
    x11 = ctypes.CDLL("libX11.so.6")
    xtst = ctypes.CDLL("libXtst.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    connection = ctypes.c_void_p(x11.XOpenDisplay(display.encode()))
    assert connection.value, f"cannot open display {display}"
    for number in range(times):
        for is_down in (True, False):
            xtst.XTestFakeKeyEvent(connection, key_code, is_down, NO_DELAY)
        if number % BATCH == 0:
            x11.XSync(connection, False)
    x11.XSync(connection, False)
    x11.XCloseDisplay(connection)
