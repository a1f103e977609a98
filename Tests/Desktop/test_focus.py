"""Leaving the game for another window."""

import pytest
from game import FRESH, MOVING, OVER, PAUSED
from waiting import eventually


@pytest.fixture
def other_window(desktop):
    """Opens a window that takes the focus; the value it gives closes it again."""
    opened = []

    def open_window(game):
        opened.append(desktop.spawn("xmessage", "Another window"))
        eventually(lambda: desktop.active_window() not in (0, game.window),
                   "another window has the focus")

    def close_window(game):
        process = opened.pop()
        process.terminate()
        process.wait()
        eventually(game.is_active, "the game has the focus again")

    open_window.close = close_window
    yield open_window
    for process in opened:
        process.terminate()
        process.wait()


def test_losing_the_focus_pauses_and_coming_back_leaves_it_paused(game, other_window):
    game.start_run()
    other_window(game)
    game.wait_for(PAUSED)
    other_window.close(game)
    game.press("Escape")
    assert game.shows(PAUSED, "No rush.")
    # Had coming back resumed it, this would pause.
    game.press("space")
    game.wait_for(MOVING)
