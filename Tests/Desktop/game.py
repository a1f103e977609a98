"""Starts, drives and inspects the program on the private desktop."""

import os
import pathlib
import signal
import subprocess

from gi.repository import GLib

from accessibility import application
from board import Board
from waiting import TIMEOUT, eventually

PROGRAM = os.environ.get(
    "FERNWICK", str(pathlib.Path(__file__).resolve().parents[2] / "build/release/fernwick"))

# X11 key codes, which do not depend on the keyboard layout.
W, A, S, D = "25", "38", "39", "40"

# Makes Qt connect to the accessibility bus.
ACCESSIBLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

FRESH = "THE CLASSIC, REPLANTED"
MOVING = "IN THE FLOW"
PAUSED = "TAKE A BREATH"
OVER = "ANOTHER CHANCE TO GROW"


class Game:
    def __init__(self, desktop, folder, environment, command=(PROGRAM,)):
        self.desktop = desktop
        self._printed = folder / "printed"
        with open(self._printed, "ab") as printed:
            self.process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                                            stdout=printed, stderr=printed)
        self.window = None
        self._top = None

    # Input.

    def press(self, *keys):
        self.desktop.press(*keys)

    def type(self, text):
        self.desktop.run("xdotool", "type", "--delay", "5", text)

    def start_run(self):
        self.press("space")
        self.wait_for(MOVING)

    def save_a_run(self, name):
        """Steers into the wall above and saves the score under a name."""
        self.start_run()
        self.press("Up")
        self.wait_for("Game over.")
        self.type(name)
        self.press("Return")
        self.wait_for("Score saved · Top 10")

    def click(self, element):
        """Clicks in the middle of a control."""
        eventually(self._geometry_is_current, "AT-SPI reports the geometry of the window")
        left, top, width, height = element.extents_on_screen()
        self.point_at(left + width // 2, top + height // 2)
        self.desktop.click()

    def point_at(self, x, y):
        self.desktop.point_at(x, y)

    # Texts on the screen.

    def wait_for(self, *texts):
        """Waits until all these texts are shown at the same time."""
        eventually(lambda: self.shows(*texts), f"{texts} are shown")

    def shows(self, *texts):
        try:
            return set(texts) <= set(self.texts())
        except GLib.Error:
            # An element was removed during the query.
            return False

    def texts(self):
        """The names of all visible elements."""
        return [element.name for element in self.top().everything_showing()]

    def find(self, name):
        """The element with this name, visible or not."""
        return next(element for element in self.top().everything() if element.name == name)

    def find_showing(self, name):
        """All visible elements with this name; those in front come last."""
        return [each for each in self.top().everything_showing() if each.name == name]

    def top(self):
        if self._top is None:
            self._top = eventually(
                lambda: application(self.desktop.accessibility, self.process.pid),
                "the program is on the accessibility bus")
        return self._top

    def board(self):
        named = next(element for element in self.top().everything_showing()
                     if element.name.startswith("Snake board."))
        return Board(named.extents_on_screen())

    # The window.

    def wait_until_shown(self):
        """Waits until the window is shown, active and in full screen."""
        eventually(self._has_window, "the window is shown")
        eventually(self.is_full_screen, "the window is in full screen")
        eventually(self.is_active, "the window is active")

    def state(self):
        """The _NET_WM_STATE of the window."""
        return self.desktop.property(self.window, "_NET_WM_STATE")

    def is_full_screen(self):
        return "_NET_WM_STATE_FULLSCREEN" in self.state()

    def is_maximised(self):
        return "_NET_WM_STATE_MAXIMIZED_VERT" in self.state()

    def is_minimised(self):
        return "_NET_WM_STATE_HIDDEN" in self.state()

    def is_active(self):
        return self.desktop.active_window() == self.window

    def geometry(self):
        """Left, top, width and height of the window."""
        lines = self.desktop.run("xdotool", "getwindowgeometry", "--shell", str(self.window))
        values = dict(line.split("=") for line in lines.split())
        return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))

    def _geometry_is_current(self):
        window = self.top().children()[0]
        return tuple(window.extents_on_screen()) == self.geometry()

    def _has_window(self):
        assert self.process.poll() is None, f"exited: {self.printed()}"
        self.find_window()
        return self.window is not None

    def find_window(self):
        """Sets `window` to its X11 window, if it has one yet."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Fernwick$"],
                               env=self.desktop.environment, text=True, stdout=subprocess.PIPE)
        for number in found.stdout.split():
            if self.desktop.property(number, "_NET_WM_PID") == str(self.process.pid):
                self.window = int(number)

    # Exit.

    def exit_status(self):
        """Waits for the program to exit."""
        return self.process.wait(TIMEOUT)

    def quit(self):
        self.process.send_signal(signal.SIGTERM)
        assert self.exit_status() == 0

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def printed(self):
        """What the program has written to stdout and stderr."""
        return self._printed.read_text()
