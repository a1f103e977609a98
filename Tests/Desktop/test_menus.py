"""The menus: opened by Alt alone, and a run that stands still while they are in use."""

import time

import pytest
from game import MOVING, PAUSED
from key_grab import ALT, CONTROL, F5, KeyGrab, L
from test_playing import snake_heading
from waiting import POLL_INTERVAL, eventually

# Several ticks at Swift.
STILL_SECONDS = 1


@pytest.fixture(params=["full screen", "window"])
def either(request, game):
    """The game in full screen and in a window."""
    if request.param == "window":
        leave_full_screen(game)
    return game


@pytest.fixture
def desktop_shortcuts(desktop):
    grab = KeyGrab(desktop.environment["DISPLAY"], {F5: ALT, L: CONTROL | ALT})
    yield grab
    grab.close()


def leave_full_screen(game):
    game.press("F11")
    game.wait_for("Minimise")


def is_open(game, item):
    return game.find(item).is_showing()


def leave_menus(game):
    game.press("Escape")
    # In a window, the bar has the focus now.
    if not game.is_full_screen():
        game.press("Escape")


def start_at_swift(game):
    game.click(game.find("Swift"))
    board = game.board()
    game.start_run()
    return board


def expect_still(game, board):
    """Checks that the snake stays where it is, and returns its head."""
    head = eventually(lambda: board.snake(game.desktop.screen.picture()), "a snake is shown").head
    end = time.monotonic() + STILL_SECONDS
    while time.monotonic() < end:
        assert board.snake(game.desktop.screen.picture()).head == head
        time.sleep(POLL_INTERVAL)
    return head


def test_after_alt_the_arrows_and_return_choose_from_the_menus(either):
    either.press("alt", "Down")
    eventually(lambda: is_open(either, "New Game"), "the first menu is open")
    either.press("Right")
    eventually(lambda: is_open(either, "High Scores"), "the second menu is open")
    either.press("Left")
    eventually(lambda: is_open(either, "New Game"), "the first menu is open again")
    eventually(either.find("New Game").is_focused, "the first item is active")
    either.press("Return")
    either.wait_for(MOVING)


def test_space_after_alt_starts_no_run(either):
    either.press("alt", "space")
    eventually(lambda: is_open(either, "New Game"), "the first menu is open")
    leave_menus(either)
    either.press("space")
    either.wait_for(MOVING)


@pytest.mark.parametrize("keys", [
    "keydown ctrl keydown alt keyup alt keyup ctrl",
    "keydown alt keydown ctrl keyup ctrl keyup alt",
    "keydown alt keydown ctrl keyup alt keyup ctrl",
    "keydown shift keydown alt keyup shift keyup alt",
    "keydown alt key F6 keyup alt",
    # The X server keeps this one to itself.
    "key ctrl+alt+F5",
])
def test_alt_with_another_key_does_not_open_the_menus(either, keys):
    either.desktop.run("xdotool", *keys.split())
    # In a menu, Space would not start a run.
    either.press("space")
    either.wait_for(MOVING)


@pytest.mark.parametrize("keys", [
    "keydown alt key F5 keyup alt",
    "keydown ctrl keydown alt key l keyup alt keyup ctrl",
])
def test_a_shortcut_of_the_desktop_with_alt_does_not_open_the_menus(
        either, desktop_shortcuts, keys):
    either.desktop.run("xdotool", *keys.split())
    assert desktop_shortcuts.was_used()
    either.press("space")
    either.wait_for(MOVING)


def test_alt_and_tab_does_not_open_the_menus(either, other_window):
    other_window.take_focus_from(either)
    for active in True, False, True:
        either.desktop.run("xdotool", "keydown", "alt", "key", "Tab", "keyup", "alt")
        eventually(lambda: either.is_active() == active, "the focus has changed")
    either.press("space")
    either.wait_for(MOVING)


def test_alt_held_while_the_focus_goes_away_and_back_does_not_open_the_menus(
        either, other_window):
    either.desktop.run("xdotool", "keydown", "alt")
    other_window.take_focus_from(either)
    other_window.give_focus_back_to(either)
    either.desktop.run("xdotool", "keyup", "alt")
    either.press("space")
    either.wait_for(MOVING)


def test_an_open_menu_holds_the_run_still(either):
    board = start_at_swift(either)
    either.press("F10")
    eventually(lambda: is_open(either, "New Game"), "the first menu is open")
    expect_still(either, board)
    assert either.shows(MOVING)
    leave_menus(either)
    either.press("Up")
    snake_heading(either, board, "up")
    assert not either.shows(PAUSED)


def test_the_menu_bar_holds_the_run_still_while_it_has_the_focus(game):
    leave_full_screen(game)
    board = start_at_swift(game)
    game.press("alt")
    column, row = expect_still(game, board)
    game.press("Up")
    eventually(lambda: is_open(game, "New Game"), "the first menu is open")
    leave_menus(game)
    eventually(lambda: snake_heading(game, board, "right").head > (column, row),
               "the snake moves on")
    assert game.shows(MOVING)
