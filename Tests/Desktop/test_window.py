"""The window outside full screen, moved and sized by the pointer though it has no frame."""

import pytest
from waiting import eventually

SMALLEST = 820, 760
TOP_BAND = 20
GRIP = 2
STEPS = 10
# A drag may begin only after the pointer has gone some way.
SLACK = 16


@pytest.fixture
def window(game):
    """The program, out of full screen and at rest at its own size."""
    game.press("F11")
    eventually(lambda: game.geometry()[2:] == (940, 860), "the window has its own size")
    game.wait_for("Minimise")
    return game


def drag(game, begin, by):
    """Holds the left button down over a way, as a hand does; the result lets it go."""
    x, y = begin
    dx, dy = by
    game.point_at(x, y)
    game.desktop.run("xdotool", "mousedown", "1")
    for step in range(1, STEPS + 1):
        game.point_at(x + dx * step // STEPS, y + dy * step // STEPS)
    return lambda: game.desktop.run("xdotool", "mouseup", "1")


def is_near(geometry, expected):
    return all(abs(a - b) <= SLACK for a, b in zip(geometry, expected))


def test_the_top_band_drags_it(window):
    left, top, width, height = window.geometry()
    let_go = drag(window, (left + width // 2, top + TOP_BAND), by=(80, 60))
    eventually(lambda: is_near(window.geometry(), (left + 80, top + 60, width, height)),
               "the window has moved")
    let_go()


def test_its_edge_resizes_it(window):
    left, top, width, height = window.geometry()
    let_go = drag(window, (left + width - GRIP, top + height // 2), by=(100, 0))
    eventually(lambda: is_near(window.geometry(), (left, top, width + 100, height)),
               "the window is wider")
    let_go()


def test_it_refuses_to_become_smaller_than_820_by_760(window):
    left, top, width, height = window.geometry()
    let_go = drag(window, (left + width - GRIP, top + height - GRIP), by=(-400, -400))
    eventually(lambda: window.geometry()[2:] == SMALLEST, "the window is at its smallest")
    let_go()
    assert window.geometry()[2:] == SMALLEST


def test_its_marks_maximise_and_close_it(window):
    window.click(window.find("Maximise"))
    eventually(window.is_maximised, "the window is maximised")
    window.click(window.find("Close"))
    assert window.exit_status() == 0


def test_its_mark_minimises_it(window):
    window.click(window.find("Minimise"))
    eventually(lambda: "_NET_WM_STATE_HIDDEN" in window.state(), "the window is minimised")


def double_click(game):
    game.desktop.run("xdotool", "click", "--repeat", "2", "--delay", "50", "1")


def test_a_click_on_the_top_band_does_not_hold_the_window(window):
    left, top, width, _ = before = window.geometry()
    window.point_at(left + width // 2, top + TOP_BAND)
    window.desktop.run("xdotool", "click", "1")
    window.point_at(left + width // 2 + 80, top + TOP_BAND + 60)
    # A key goes through the same hands as the pointer's move and shows that it has been seen.
    window.start_run()
    assert window.geometry() == before


def test_a_double_click_on_the_top_band_maximises_it(window):
    left, top, width, _ = window.geometry()
    window.point_at(left + width // 2, top + TOP_BAND)
    double_click(window)
    eventually(window.is_maximised, "the window is maximised")
