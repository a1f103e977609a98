"""A private desktop that can be read as assistive programs read it."""

import contextlib
import pathlib
import tempfile

from accessibility import accessibility_bus
from desktop import Desktop


@contextlib.contextmanager
def accessible_desktop():
    """Until the end of the block; `accessibility` is its bus."""
    # A short path: sockets live in it.
    desktop = Desktop(pathlib.Path(tempfile.mkdtemp(prefix="fernwick-")))
    try:
        desktop.start()
        desktop.accessibility = accessibility_bus(
            desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        yield desktop
    finally:
        desktop.stop()
