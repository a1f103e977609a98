"""Moving and resizing the frameless window outside full screen."""

import pytest
from waiting import eventually

MINIMUM_SIZE = 820, 760
TITLE_BAND_Y = 20
GRIP = 2
STEPS = 10
# A drag may start only after the pointer has moved some pixels.
TOLERANCE = 16


@pytest.fixture
def window(game):
    """The game outside full screen, at its default size."""
    game.press("F11")
    eventually(lambda: game.geometry()[2:] == (940, 860), "the window has its default size")
    game.wait_for("Minimise")
    return game


def drag(game, start, by):
    """Presses the left button and moves in small steps. Returns a function that releases it."""
    x, y = start
    dx, dy = by
    game.point_at(x, y)
    game.desktop.run("xdotool", "mousedown", "1")
    for step in range(1, STEPS + 1):
        game.point_at(x + dx * step // STEPS, y + dy * step // STEPS)
    return lambda: game.desktop.run("xdotool", "mouseup", "1")


def is_near(geometry, expected):
    return all(abs(a - b) <= TOLERANCE for a, b in zip(geometry, expected))


def test_dragging_the_title_band_moves_the_window(window):
    left, top, width, height = window.geometry()
    release = drag(window, (left + width // 2, top + TITLE_BAND_Y), by=(80, 60))
    eventually(lambda: is_near(window.geometry(), (left + 80, top + 60, width, height)),
               "the window has moved")
    release()


def test_dragging_an_edge_resizes_the_window(window):
    left, top, width, height = window.geometry()
    release = drag(window, (left + width - GRIP, top + height // 2), by=(100, 0))
    eventually(lambda: is_near(window.geometry(), (left, top, width + 100, height)),
               "the window is wider")
    release()


def test_the_minimum_size_is_820_by_760(window):
    left, top, width, height = window.geometry()
    release = drag(window, (left + width - GRIP, top + height - GRIP), by=(-400, -400))
    eventually(lambda: window.geometry()[2:] == MINIMUM_SIZE, "the window has its minimum size")
    release()
    assert window.geometry()[2:] == MINIMUM_SIZE


def test_the_maximise_and_close_buttons_work(window):
    window.click(window.find("Maximise"))
    eventually(window.is_maximised, "the window is maximised")
    window.click(window.find("Close"))
    assert window.exit_status() == 0


def test_the_minimise_button_works(window):
    window.click(window.find("Minimise"))
    eventually(lambda: "_NET_WM_STATE_HIDDEN" in window.state(), "the window is minimised")


def double_click(game):
    game.desktop.run("xdotool", "click", "--repeat", "2", "--delay", "50", "1")


def test_a_click_on_the_title_band_does_not_start_a_drag(window):
    left, top, width, _ = before = window.geometry()
    window.point_at(left + width // 2, top + TITLE_BAND_Y)
    window.desktop.run("xdotool", "click", "1")
    window.point_at(left + width // 2 + 80, top + TITLE_BAND_Y + 60)
    # Once the game reacts to a key, it has handled the pointer motion before it.
    window.start_run()
    assert window.geometry() == before


def test_a_double_click_on_the_title_band_maximises_the_window(window):
    left, top, width, _ = window.geometry()
    window.point_at(left + width // 2, top + TITLE_BAND_Y)
    double_click(window)
    eventually(window.is_maximised, "the window is maximised")
