"""The private screen and the programs that are measured on it."""

import contextlib
import pathlib
import tempfile
import time

from hands import Hands
from pixels import Pixels
from program import UNTIL_SHOWN, Program

from board import Board
from desktop import Desktop

# A window manager looks at a click before the window gets it, but not at a key: one that is pressed
# at once overtakes the click.
UNTIL_CLICKED = 0.5
# Where the buttons of the paces lie, in pixels.
PACE_BUTTONS = {"Gentle": (78, 152), "Classic": (152, 152), "Swift": (222, 152)}


class Stage:
    """A desktop of its own from its making to `close`."""

    def __init__(self, build):
        self.hello = build / "Benchmarks/Process/Hello"
        self.play = build / "Benchmarks/Process/Play"
        self.game = build / "fernwick"
        # A short path: sockets live in it.
        self.desktop = Desktop(pathlib.Path(tempfile.mkdtemp(prefix="fernwick-")))
        self.desktop.start()
        self.hands = Hands(self.desktop.environment["DISPLAY"])
        self.pixels = Pixels(self.desktop.folder / "Xvfb_screen0")

    def close(self):
        self.desktop.stop()

    @contextlib.contextmanager
    def game_at(self, pace):
        """The game, shown and not started, at a pace."""
        with Program(self.desktop, self.game) as program:
            time.sleep(UNTIL_SHOWN)
            self.hands.click(*PACE_BUTTONS[pace])
            time.sleep(UNTIL_CLICKED)
            yield program

    def shows_play(self):
        """Whether a run is moving: at rest the board is blurred and dimmed, its colours gone."""
        return Board.is_moving(self.pixels.picture())
