"""One run of the program on the private desktop, seen and driven from outside."""

import os
import pathlib
import signal
import subprocess

from gi.repository import GLib

from accessibility import application
from board import Board
from waiting import PATIENCE, eventually

PROGRAM = os.environ.get(
    "FERNWICK", str(pathlib.Path(__file__).resolve().parents[2] / "build/release/fernwick"))

# Places of keys on the keyboard, whatever the layout writes there.
W, A, S, D = "25", "38", "39", "40"

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

    # What a player does.

    def press(self, *keys):
        self.desktop.run("xdotool", "key", *keys)

    def type(self, text):
        self.desktop.run("xdotool", "type", "--delay", "5", text)

    def start_run(self):
        self.press("space")
        self.wait_for(MOVING)

    def save_a_run(self, name):
        """Plays into the wall above and leaves a name."""
        self.start_run()
        self.press("Up")
        self.wait_for("Game over.")
        self.type(name)
        self.press("Return")
        self.wait_for("Score saved · Top 10")

    def click(self, element):
        """Presses the left button of the mouse in the middle of a control."""
        eventually(self._knows_its_place, "the window has settled")
        left, top, width, height = element.place_on_screen()
        self.point_at(left + width // 2, top + height // 2)
        self.desktop.run("xdotool", "click", "1")

    def point_at(self, x, y):
        self.desktop.run("xdotool", "mousemove", str(x), str(y))

    # What a player sees.

    def wait_for(self, *texts):
        """Until all these texts are to be seen at once."""
        eventually(lambda: self.shows(*texts), f"{texts} to be seen")

    def shows(self, *texts):
        try:
            return set(texts) <= set(self.texts())
        except GLib.Error:
            # A control was taken away while it was asked.
            return False

    def texts(self):
        """The names of all that is to be seen."""
        return [element.name for element in self.top().everything_showing()]

    def find(self, name):
        """The control or text of that name, to be seen or not."""
        return next(element for element in self.top().everything() if element.name == name)

    def find_showing(self, name):
        """All of that name that are to be seen, those in front last."""
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
        return Board(named.place_on_screen())

    # The window as the desktop sees it.

    def wait_until_shown(self):
        """Until the window is up, in front and in full screen."""
        eventually(self._has_window, "the window is up")
        eventually(self.is_full_screen, "full screen is reached")
        eventually(self.is_active, "the window is in front")

    def state(self):
        """What the window manager says of the window, such as that it is minimised."""
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

    def _knows_its_place(self):
        window = self.top().children()[0]
        return tuple(window.place_on_screen()) == self.geometry()

    def _has_window(self):
        assert self.process.poll() is None, f"ended at once: {self.printed()}"
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Fernwick$"],
                               env=self.desktop.environment, text=True, stdout=subprocess.PIPE)
        for number in found.stdout.split():
            if self.desktop.property(number, "_NET_WM_PID") == str(self.process.pid):
                self.window = int(number)
        return self.window is not None

    # Its end.

    def exit_status(self):
        """Waits for the end of the program, which someone has asked for."""
        return self.process.wait(PATIENCE)

    def quit(self):
        self.process.send_signal(signal.SIGTERM)
        assert self.exit_status() == 0

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def printed(self):
        """All that the program wrote to its output and its error output."""
        return self._printed.read_text()
