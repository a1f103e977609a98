"""The game on one of the desktops."""

import contextlib
import subprocess
import time

from board import Board
from game import ACCESSIBLE, FRESH, MOVING, PAUSED, Game
from gi.repository import GLib
from home import Home
from screen import Screen
from waiting import eventually

# Below all controls.
# Not in the middle column, which is searched for the edges of the window.
POINTER_AWAY = Screen.WIDTH * 3 // 4, Screen.HEIGHT - 2
# Something that appears only for a moment is gone after this time.
SETTLED_SECONDS = 0.5
END_SECONDS = 3


class Trial:
    """Starts the game when a step first needs it, and anew after `end`."""

    def __init__(self, desktop, folder, results):
        self.desktop = desktop
        self._results = results
        self._home = Home(folder)
        self._folder = folder
        self._game = None

    @property
    def game(self):
        return self._game or self.launch()

    def launch(self, **environment):
        """Starts the game and waits until it is in full screen and active."""
        self.point_away()
        (self._folder / "printed").write_text("")
        self._game = Game(self.desktop, self._folder, self.environment() | environment)
        self.wait_for_full_screen()
        self._game.wait_for(FRESH)
        eventually(lambda: self.desktop.is_active(self._game), "the game has the focus")
        # The slowest pace leaves the most time until the snake reaches a wall.
        self._game.find("Gentle").use()
        return self._game

    def environment(self):
        return self.desktop.environment | self._home.environment | ACCESSIBLE

    def end(self):
        """Ends the game, whatever state it is in."""
        if self._game is not None:
            # Asked first: if a program with an open menu is killed, weston and GNOME Shell pass no
            # events on to later ones.
            self._game.process.terminate()
            with contextlib.suppress(subprocess.TimeoutExpired):
                self._game.process.wait(END_SECONDS)
            self._game.kill()
            self._game = None

    def forget(self):
        """For a game that has quit."""
        self._game = None

    # The window.

    def is_full_screen(self):
        game = self._game
        assert game.process.poll() is None, f"exited: {game.printed()}"
        if game.window is None:
            game.find_window()
        try:
            return self.desktop.is_full_screen(game)
        except (GLib.Error, StopIteration):
            # The program is not on the accessibility bus yet, or an element was removed.
            return False

    def wait_for_full_screen(self):
        eventually(self.is_full_screen, "the window is in full screen")

    def wait_for_bounds(self, is_expected, what):
        """Waits until the window has the expected place, and the game has the same size."""
        def is_there():
            bounds = self.desktop.bounds(self.game)
            return (bounds is not None and not self.is_full_screen() and is_expected(bounds)
                    and self.size() == bounds[2:])

        try:
            eventually(is_there, what)
        except AssertionError as error:
            raise AssertionError(f"{error}; it is at {self.desktop.bounds(self.game)}, the game's "
                                 f"size is {self.size()}") from None

    def size(self):
        """The window's width and height as the game reports them, without its shadow."""
        window, = self.game.top().children()
        _, _, width, height = window.extents_on_screen()
        left, right, top, bottom = self.desktop.margins(self.game)
        scale = self.desktop.scale
        return (width - round((left + right) / scale), height - round((top + bottom) / scale))

    def place_of(self, element):
        """Left, top, width and height of an element on the X server's screen."""
        left, top, _, _ = self.desktop.bounds(self.game)
        margin_left, _, margin_top, _ = self.desktop.margins(self.game)
        x, y, _, _ = element.extents_in_window()
        # Qt 6.4 reports a wrong size with that place.
        _, _, width, height = element.extents_on_screen()
        scale = self.desktop.scale
        return (left - margin_left + x * scale, top - margin_top + y * scale,
                width * scale, height * scale)

    # Pointer and keys.

    def point_away(self):
        self.desktop.point_at(*POINTER_AWAY)

    def click(self, name):
        left, top, width, height = self.place_of(self.game.find(name))
        self.desktop.point_at(left + width // 2, top + height // 2)
        self.desktop.click()

    def begin_run(self):
        """Starts a new run, whether or not another is paused."""
        self.game.press("space" if self.game.shows(FRESH) else "r")
        self.game.wait_for(MOVING)

    def pause(self):
        self.game.press("space")
        self.game.wait_for(PAUSED)

    # The picture.

    def save_screenshot(self, name):
        self.desktop.save_screenshot(self._results / f"{self.desktop.NAME} {name}.png")

    def board(self):
        named = next(each for each in self.game.top().everything_showing()
                     if each.name.startswith("Snake board."))
        return Board(self.place_of(named))

    def wait_for_the_whole_board(self):
        eventually(lambda: self.board().has_frame(self.desktop.screen.picture()),
                   "the whole frame of the board is drawn")

    def wait_for_snake(self, is_expected, what):
        def snake():
            found = self.board().snake(self.desktop.screen.picture())
            return found if found is not None and is_expected(found) else None

        return eventually(snake, what)


def settles(condition):
    """Whether a condition still holds after a moment."""
    time.sleep(SETTLED_SECONDS)
    return condition()
