"""Full screen: entered at launch, and not again once the player has left it."""

import pytest
from accessible_desktop import accessible_desktop
from desktop import Desktop
from game import MOVING, PAUSED, Game
from screen import Screen
from waiting import eventually

WHOLE_SCREEN = 0, 0, Screen.WIDTH, Screen.HEIGHT
# A colour that the game does not draw.
BACKGROUND = (255, 0, 255)
BUTTON_COLOUR = (166, 240, 163)
INSIDE_THE_BUTTON = Screen.WIDTH // 2 - 60, 650
# The same place in a window of 940 x 860 in the middle of the screen.
INSIDE_THE_BUTTON_IN_A_WINDOW = 905, 653
# All over the screen.
SAMPLES = [(x, y) for y in range(30, Screen.HEIGHT, 60) for x in range(30, Screen.WIDTH, 60)]


def leave_by_key(game, keys):
    game.press(keys)
    eventually(lambda: not game.is_full_screen(), "full screen is left")


def choose(game, steps, item):
    """Opens the menu, navigates to an item and activates it."""
    game.press("F10")
    eventually(game.find("New Game").is_showing, "the first menu is open")
    game.press(*steps)
    eventually(game.find(item).is_focused, f"{item} has the focus")
    game.press("Return")


def menu_bar_shown(game):
    return game.find("File").is_showing()


def test_starts_in_full_screen(game):
    assert game.is_full_screen()
    eventually(lambda: game.geometry() == WHOLE_SCREEN, "the window covers the screen")
    assert game.is_active()


@pytest.fixture
def background(desktop):
    desktop.run("xsetroot", "-solid", "#ff00ff")
    yield BACKGROUND
    desktop.run("xsetroot", "-solid", "black")


def sampled_colours(desktop):
    picture = desktop.screen.picture()
    return [picture.colour(*point) for point in SAMPLES]


def test_the_first_picture_is_complete(desktop, start, background):
    eventually(lambda: set(sampled_colours(desktop)) == {background}, "the screen is empty")

    start()
    seen = [sampled_colours(desktop)]
    while background in seen[-1]:
        seen.append(sampled_colours(desktop))
    eventually(lambda: desktop.screen.picture().colour(*INSIDE_THE_BUTTON) == BUTTON_COLOUR,
               "the start card is shown")
    complete = sampled_colours(desktop)

    for colours in seen:
        assert all(colour in (background, expected) for colour, expected in zip(colours, complete))


class WithoutWindowManager(Desktop):
    X_SERVER_OPTIONS = ("--no-window-manager",)


# Nobody gives the window the size that its content is made for.
def test_the_content_fits_the_window_without_a_window_manager(home, tmp_path):
    with accessible_desktop(WithoutWindowManager) as desktop:
        game = Game(desktop, tmp_path, desktop.environment | home.environment)
        try:
            eventually(lambda: desktop.screen.picture().colour(*INSIDE_THE_BUTTON_IN_A_WINDOW)
                       == BUTTON_COLOUR, "the start card is in the middle of the window")
        finally:
            game.kill()


@pytest.mark.parametrize("keys", ["F11", "ctrl+super+f"])
def test_a_new_run_does_not_enter_full_screen_after_leaving_by_key(game, keys):
    leave_by_key(game, keys)
    game.start_run()
    game.press("r")
    game.press("space")
    game.wait_for(PAUSED)
    assert not game.is_full_screen()


def test_a_new_run_does_not_enter_full_screen_after_leaving_by_menu(game):
    choose(game, ["Down", "Right"], "Toggle Full Screen")
    eventually(lambda: not game.is_full_screen(), "full screen is left")
    game.press("ctrl+n")
    game.wait_for(MOVING)
    game.press("ctrl+n", "space")
    game.wait_for(PAUSED)
    assert not game.is_full_screen()


def test_the_window_is_940_by_860_outside_full_screen(game):
    leave_by_key(game, "F11")
    eventually(lambda: game.geometry()[2:] == (940, 860), "the window has its default size")


def test_f11_enters_full_screen_again(game):
    leave_by_key(game, "F11")
    game.press("F11")
    eventually(game.is_full_screen, "full screen is reached again")


def test_leaving_full_screen_does_not_pause(game):
    game.start_run()
    leave_by_key(game, "F11")
    game.wait_for(MOVING)


def test_the_menu_bar_is_shown_when_the_pointer_touches_the_top_edge(game):
    assert not menu_bar_shown(game)
    game.point_at(Screen.WIDTH // 2, 0)
    eventually(lambda: menu_bar_shown(game), "the menu bar is shown")
    game.point_at(Screen.WIDTH // 2, Screen.HEIGHT // 2)
    eventually(lambda: not menu_bar_shown(game), "the menu bar is hidden again")


@pytest.mark.parametrize("key", ["F10", "alt"])
def test_a_key_opens_the_menu_and_escape_hides_the_menu_bar(game, key):
    game.press(key)
    eventually(lambda: menu_bar_shown(game), "the menu bar is shown")
    eventually(game.find("New Game").is_showing, "the first menu is open")
    game.press("Escape")
    eventually(lambda: not menu_bar_shown(game), "the menu bar is hidden again")


def test_an_open_menu_handles_the_arrow_keys(game):
    choose(game, ["Down", "Down"], "Quit")
    assert game.exit_status() == 0


def test_the_menu_bar_and_window_buttons_are_shown_outside_full_screen(game):
    buttons = ["Minimise", "Maximise", "Close"]
    assert not game.shows(*buttons)
    leave_by_key(game, "F11")
    game.wait_for("File", "Game", *buttons)
