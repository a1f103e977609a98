"""A private desktop with an accessibility bus."""

import contextlib
import pathlib
import tempfile

from accessibility import accessibility_bus
from desktop import Desktop


@contextlib.contextmanager
def accessible_desktop(kind=Desktop):
    """Starts a private desktop. `accessibility` is its connection to the accessibility bus."""
    # Not under tmp_path: the paths of sockets are limited to 107 bytes.
    desktop = kind(pathlib.Path(tempfile.mkdtemp(prefix="fernwick-")))
    try:
        desktop.start()
        desktop.accessibility = accessibility_bus(
            desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        yield desktop
    finally:
        desktop.stop()
