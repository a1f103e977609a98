"""Asks an X11 window to close, as the close button of a window manager does."""

import ctypes

CLIENT_MESSAGE = 33
FORMAT = 32


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5),
                # XEvent is larger.
                ("padding", ctypes.c_long * 24)]


def close_window(display_name, window):
    library = ctypes.CDLL("libX11.so.6")
    library.XOpenDisplay.restype = ctypes.c_void_p
    library.XInternAtom.restype = ctypes.c_ulong
    display = ctypes.c_void_p(library.XOpenDisplay(display_name.encode()))
    protocols, delete = (library.XInternAtom(display, name, False)
                         for name in (b"WM_PROTOCOLS", b"WM_DELETE_WINDOW"))
    message = ClientMessage(type=CLIENT_MESSAGE, window=window, message_type=protocols,
                            format=FORMAT, data=(delete, 0, 0, 0, 0))
    library.XSendEvent(display, ctypes.c_ulong(window), False, ctypes.c_long(0),
                       ctypes.byref(message))
    library.XCloseDisplay(display)
