"""The resolution of the screen changes while the game runs."""

import pytest
from game import MOVING
from waiting import eventually

OUTPUT = "screen"
LARGE = "1920x1080"
SMALL = "1024x600"
SMALL_SCREEN = 0, 0, 1024, 600
# Timings do not matter on a virtual screen.
SMALL_TIMINGS = "48.96 1024 1064 1168 1312 600 601 604 622".split()


@pytest.fixture(scope="module")
def resolution(desktop):
    """Changes the resolution of the screen."""
    desktop.run("xrandr", "--newmode", SMALL, *SMALL_TIMINGS)
    desktop.run("xrandr", "--addmode", OUTPUT, SMALL)

    def change(mode):
        desktop.run("xrandr", "--output", OUTPUT, "--mode", mode)

    yield change
    change(LARGE)
    desktop.run("xrandr", "--delmode", OUTPUT, SMALL)
    desktop.run("xrandr", "--rmmode", SMALL)


@pytest.fixture
def small_screen(resolution):
    yield lambda: resolution(SMALL)
    resolution(LARGE)


def is_whole_on_the_small_screen(game):
    left, top, width, height = game.geometry()
    return left >= 0 and top >= 0 and left + width <= 1024 and top + height <= 600


def test_full_screen_follows_the_resolution_without_pausing(game, small_screen):
    game.start_run()
    small_screen()
    eventually(lambda: game.geometry() == SMALL_SCREEN, "the window covers the smaller screen")
    game.wait_for(MOVING)


def test_the_window_is_whole_after_leaving_full_screen_on_a_smaller_screen(game, small_screen):
    small_screen()
    eventually(lambda: game.geometry() == SMALL_SCREEN, "the window covers the smaller screen")
    game.press("F11")
    game.wait_for("Minimise")
    eventually(lambda: is_whole_on_the_small_screen(game), "the window is whole")


def test_a_window_is_whole_after_the_screen_has_become_smaller(game, small_screen):
    game.press("F11")
    eventually(lambda: game.geometry()[2:] == (940, 860), "the window has its default size")
    small_screen()
    eventually(lambda: is_whole_on_the_small_screen(game), "the window is whole")
