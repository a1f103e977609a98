"""A private desktop and the programs to measure on it."""

import contextlib
import pathlib
import tempfile
import time

from pixels import Pixels
from program import STARTUP_SECONDS, Program
from xtest import XTest

from board import Board
from desktop import Desktop

# The window manager handles a click before it passes it on, but not a key press: a key pressed
# right after a click could reach the window first.
CLICK_SECONDS = 0.5
# Screen positions of the pace buttons, in pixels.
PACE_BUTTONS = {"Gentle": (78, 147), "Classic": (152, 147), "Swift": (222, 147)}


class Testbed:
    """Starts a private desktop, which runs until `close`."""

    def __init__(self, build, width=1920, height=1080):
        self.build = build
        self.hello = build / "Benchmarks/Process/Hello"
        self.play = build / "Benchmarks/Process/Play"
        self.game = build / "fernwick"
        self.delayed_flush = build / "Benchmarks/Process/DelayedFlush.so"
        # Directly below /tmp, because the path of a Unix socket is limited to 107 bytes.
        self.desktop = Desktop(pathlib.Path(tempfile.mkdtemp(prefix="fernwick-")))
        self.desktop.X_SERVER_OPTIONS = ("--size", f"{width}x{height}")
        self.desktop.start()
        self.input = XTest(self.desktop.environment["DISPLAY"])
        self.pixels = Pixels(self.desktop.folder / "Xvfb_screen0", width, height)

    def close(self):
        self.desktop.stop()

    @contextlib.contextmanager
    def game_at(self, pace, **environment):
        """Starts the game and selects a pace, without starting a run.

        Keyword arguments are environment variables."""
        variables = [f"{name}={value}" for name, value in environment.items()]
        with Program(self.desktop, "env", *variables, str(self.game)) as program:
            time.sleep(STARTUP_SECONDS)
            self.input.click(*PACE_BUTTONS[pace])
            time.sleep(CLICK_SECONDS)
            yield program

    def shows_play(self):
        """Whether a run is in progress; otherwise the board is blurred and dimmed."""
        return Board.is_moving(self.pixels.picture())
