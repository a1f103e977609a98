"""Full screen: entered once at launch, left for good when the player leaves it."""

import pytest
from game import MOVING, PAUSED
from screen import Screen
from waiting import eventually

WHOLE_SCREEN = 0, 0, Screen.WIDTH, Screen.HEIGHT


def leave_by_key(game, keys):
    game.press(keys)
    eventually(lambda: not game.is_full_screen(), "full screen is left")


def choose(game, steps, item):
    """Opens the menu, goes to an item key by key and takes it."""
    game.press("F10")
    eventually(game.find("New Game").is_showing, "the first menu is open")
    game.press(*steps)
    eventually(game.find(item).is_focused, f"{item} is reached")
    game.press("Return")


def menu_bar_shown(game):
    return game.find("File").is_showing()


def test_full_screen_is_reached_on_launch(game):
    assert game.is_full_screen()
    eventually(lambda: game.geometry() == WHOLE_SCREEN, "the window covers the screen")
    assert game.is_active()


@pytest.mark.parametrize("keys", ["F11", "ctrl+super+f"])
def test_left_by_its_keys_it_stays_left_through_a_restart_of_the_run(game, keys):
    leave_by_key(game, keys)
    game.start_run()
    game.press("r")
    game.press("space")
    game.wait_for(PAUSED)
    assert not game.is_full_screen()


def test_left_by_the_menu_it_stays_left_through_a_restart_of_the_run(game):
    choose(game, ["Down", "Right"], "Toggle Full Screen")
    eventually(lambda: not game.is_full_screen(), "full screen is left")
    game.press("ctrl+n")
    game.wait_for(MOVING)
    game.press("ctrl+n", "space")
    game.wait_for(PAUSED)
    assert not game.is_full_screen()


def test_outside_full_screen_the_window_is_940_by_860(game):
    leave_by_key(game, "F11")
    eventually(lambda: game.geometry()[2:] == (940, 860), "the window has its own size")


def test_the_same_key_enters_it_again(game):
    leave_by_key(game, "F11")
    game.press("F11")
    eventually(game.is_full_screen, "full screen is reached again")


def test_leaving_it_leaves_a_moving_snake_moving(game):
    game.start_run()
    leave_by_key(game, "F11")
    game.wait_for(MOVING)


def test_the_menu_bar_hides_until_the_pointer_touches_the_top_edge(game):
    assert not menu_bar_shown(game)
    game.point_at(Screen.WIDTH // 2, 0)
    eventually(lambda: menu_bar_shown(game), "the menu bar is there")
    game.point_at(Screen.WIDTH // 2, Screen.HEIGHT // 2)
    eventually(lambda: not menu_bar_shown(game), "the menu bar hides again")


@pytest.mark.parametrize("key", ["F10", "alt"])
def test_a_key_opens_the_menu_and_escape_hides_it(game, key):
    game.press(key)
    eventually(lambda: menu_bar_shown(game), "the menu bar is there")
    eventually(game.find("New Game").is_showing, "the first menu is open")
    game.press("Escape")
    eventually(lambda: not menu_bar_shown(game), "the menu bar hides again")


def test_an_open_menu_keeps_its_keys_from_the_game(game):
    choose(game, ["Down", "Down"], "Quit")
    assert game.exit_status() == 0


def test_outside_full_screen_the_menu_bar_and_the_window_marks_are_there(game):
    marks = ["Minimise", "Maximise", "Close"]
    assert not game.shows(*marks)
    leave_by_key(game, "F11")
    game.wait_for("File", "Game", *marks)
