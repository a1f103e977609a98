"""The frame that the window draws itself: rounded corners and a shadow under a compositor."""

import itertools
import pathlib
import re
import subprocess
import sys

import pytest
from accessible_desktop import accessible_desktop
from desktop import Desktop
from game import ACCESSIBLE, Game
from screen import Screen
from waiting import eventually

WHITE = 255, 255, 255
WHOLE_SCREEN = 0, 0, Screen.WIDTH, Screen.HEIGHT
DEFAULT_SIZE = 940, 860
# Neither in the game's window nor in the text or the button of the other one.
POINT_OF_WALL = 1600, 900


class LightDesktop(Desktop):
    """Has a white window of another program behind the game's."""

    X_SERVER_OPTIONS = ("--no-window-manager",)
    WINDOW_MANAGER = ()

    def start(self):
        super().start()
        self._window_manager = self._spawn("setpriv", "--pdeathsig", "KILL", *self.WINDOW_MANAGER)
        eventually(lambda: "# 0x" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                   "the window manager has started")
        self._spawn("xmessage", "-bg", "white", "-fg", "white", "-geometry",
                    f"{Screen.WIDTH}x{Screen.HEIGHT}", "")
        eventually(lambda: self.screen.picture().colour(*POINT_OF_WALL) == WHITE,
                   "the white window is shown")

    def stop(self):
        # xfwm4 sometimes hangs in its handler of SIGTERM.
        self._window_manager.kill()
        super().stop()


class Composited(LightDesktop):
    WINDOW_MANAGER = "xfwm4", "--compositor=on"


class NotComposited(LightDesktop):
    WINDOW_MANAGER = "xfwm4", "--compositor=off"


def launched_on(desktop, home, folder, **environment):
    game = Game(desktop, folder,
                desktop.environment | home.environment | ACCESSIBLE | environment)
    game.wait_until_shown()
    # xfwm4 marks the window as active before it gets the keys.
    eventually(lambda: game.top().children()[0].is_active(), "the game has the focus")
    return game


@pytest.fixture(scope="module")
def composited():
    with accessible_desktop(Composited) as desktop:
        yield desktop


@pytest.fixture
def launch(composited, home, tmp_path):
    """Starts the game on the composited desktop, in full screen.

    Keyword arguments are environment variables."""
    games = []

    def launch(**environment):
        games.append(launched_on(composited, home, tmp_path, **environment))
        return games[-1]

    yield launch
    for game in games:
        game.kill()
        assert game.printed() == ""


@pytest.fixture
def game(launch):
    return launch()


def margins(game):
    """Left, right, top and bottom."""
    numbers = re.findall(r"\d+", game.desktop.property(game.window, "_GTK_FRAME_EXTENTS"))
    return tuple(map(int, numbers)) or (0, 0, 0, 0)


def visible(game):
    """Left, top, width and height of the window without its shadow."""
    x, y, width, height = game.geometry()
    left, right, top, bottom = margins(game)
    return x + left, y + top, width - left - right, height - top - bottom


def leave_full_screen(game):
    game.press("F11")
    eventually(lambda: not game.is_full_screen() and visible(game)[2:] == DEFAULT_SIZE,
               "the visible window has its default size")
    game.wait_for("Minimise")
    eventually(lambda: is_dark(game, 100, 3), "the window is drawn")


def colour(game, x, y):
    """The colour on the screen at a point of the visible window."""
    left, top, _, _ = visible(game)
    return game.desktop.screen.picture().colour(left + x, top + y)


def is_dark(game, x, y):
    return max(colour(game, x, y)) < 80


def test_the_corners_are_round_and_show_what_is_behind(game):
    leave_full_screen(game)
    for x in (0, DEFAULT_SIZE[0] - 1):
        for y in (0, DEFAULT_SIZE[1] - 1):
            eventually(lambda: min(colour(game, x, y)) > 110, f"the corner at {x}, {y} is light")
    assert is_dark(game, 5, 5)
    assert is_dark(game, 30, 0)


def test_the_shadow_is_soft_and_grey(game):
    leave_full_screen(game)
    middle = DEFAULT_SIZE[1] // 2
    row = [colour(game, -distance, middle) for distance in (1, 6, 12, 20, 35)]
    assert row == sorted(row), "it fades outwards"
    assert 120 < row[0][0] < 215
    assert row[-1][0] >= 250
    assert all(red == green == blue for red, green, blue in row)


def test_full_screen_has_no_shadow_and_square_corners(game):
    assert game.geometry() == WHOLE_SCREEN
    assert margins(game) == (0, 0, 0, 0)
    eventually(lambda: all(is_dark(game, x, y) for x in (0, Screen.WIDTH - 1)
                           for y in (0, Screen.HEIGHT - 1)), "the corners are dark")
    leave_full_screen(game)
    game.press("F11")
    eventually(lambda: game.geometry() == WHOLE_SCREEN and is_dark(game, 0, 0),
               "the game covers the screen")


def test_a_maximised_window_has_no_shadow_and_square_corners(game):
    leave_full_screen(game)
    before = game.geometry()
    game.click(game.find("Maximise"))
    eventually(lambda: margins(game) == (0, 0, 0, 0) and game.geometry() == WHOLE_SCREEN,
               "the window fills the screen without its shadow")
    eventually(lambda: is_dark(game, 0, 0), "the corner is square")
    game.click(game.find("Maximise"))
    eventually(lambda: game.geometry() == before, "the window has its size and place again")


def test_the_window_stands_in_the_middle(game):
    leave_full_screen(game)
    left, top, width, height = visible(game)
    assert abs(left + width / 2 - Screen.WIDTH / 2) <= 1
    assert abs(top + height / 2 - Screen.HEIGHT / 2) <= 1


def test_without_room_for_the_shadow_the_window_still_has_its_size(launch):
    game = launch(QT_SCALE_FACTOR="2")
    game.press("F11")
    eventually(lambda: visible(game)[2:] == (2 * DEFAULT_SIZE[0], Screen.HEIGHT)
               and margins(game) == (72, 72, 64, 80),
               "the window is as high as the screen, without its shadow")


def test_the_edge_stands_out_with_the_high_contrast_setting(composited, launch):
    portal = subprocess.Popen(
        [sys.executable, pathlib.Path(__file__).parent / "portal.py",
         "org.freedesktop.appearance", "contrast", "uint32 1"],
        env=composited.environment, stdout=subprocess.PIPE, text=True)
    try:
        assert portal.stdout.readline() == "ready\n"
        game = launch()
        leave_full_screen(game)
        eventually(lambda: min(colour(game, 0, DEFAULT_SIZE[1] // 2)) > 150, "the edge is bright")
    finally:
        portal.terminate()
        portal.wait()


def test_the_edge_is_faint_by_default(game):
    leave_full_screen(game)
    assert 30 < max(colour(game, 0, DEFAULT_SIZE[1] // 2)) < 80


def pointed_window(desktop):
    return int(desktop.run("xdotool", "getmouselocation", "--shell")
               .partition("WINDOW=")[2].split()[0])


def test_the_shadow_lets_the_pointer_through_except_beside_the_edge(game):
    leave_full_screen(game)
    left, top, _, height = visible(game)
    game.point_at(left - 4, top + height // 2)
    beside_the_edge = pointed_window(game.desktop)
    game.point_at(left - 20, top + height // 2)
    in_the_shadow = pointed_window(game.desktop)
    game.point_at(left + 20, top + height // 2)
    assert pointed_window(game.desktop) == beside_the_edge != in_the_shadow


def test_the_window_is_resized_by_the_edge_of_its_shadow(game):
    leave_full_screen(game)
    left, top, width, height = visible(game)
    game.point_at(left + width + 4, top + height // 2)
    game.desktop.run("xdotool", "mousedown", "1")
    # The window manager takes over the drag some time after the pointer has begun to move.
    distances = itertools.chain(range(10, 200, 10), itertools.repeat(200))

    def is_wider():
        game.point_at(left + width + 4 + next(distances), top + height // 2)
        return visible(game)[2] >= width + 60

    eventually(is_wider, "the window is wider")
    assert visible(game)[:2] == (left, top)
    game.desktop.run("xdotool", "mouseup", "1")


def test_the_window_is_square_without_a_compositor(home, tmp_path):
    with accessible_desktop(NotComposited) as desktop:
        game = launched_on(desktop, home, tmp_path)
        leave_full_screen(game)
        assert margins(game) == (0, 0, 0, 0)
        assert is_dark(game, 0, 0)
        assert colour(game, -1, 100) == WHITE
        # No X server has to convert pixels with an alpha channel.
        assert "Depth: 24" in desktop.run("xwininfo", "-id", str(game.window))
        game.kill()
        assert game.printed() == ""
