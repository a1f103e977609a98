"""The corners of the menus, with and without a compositing manager."""

import pytest
from game import ACCESSIBLE, Game
from waiting import eventually

# From the corner of a menu to its first item.
MENU_MARGIN = 6
BLACK = 0, 0, 0
LONGER_THAN_A_FRAME = 0.05  # seconds


@pytest.fixture
def game(short_lived_desktop, home, tmp_path):
    game = Game(short_lived_desktop, tmp_path,
                short_lived_desktop.environment | home.environment | ACCESSIBLE)
    game.wait_until_shown()
    # The menu bar stays visible.
    game.press("F11")
    game.wait_for("Minimise")
    yield game
    game.kill()
    assert game.printed() == ""


def stable_colour(game, position):
    """The colour of a pixel once it no longer changes."""
    colours = [None]

    def is_stable():
        colours.append(game.desktop.screen.picture().colour(*position))
        return colours[-1] == colours[-2]

    eventually(is_stable, "the pixel no longer changes", interval=LONGER_THAN_A_FRAME)
    return colours[-1]


def corner_of_menu(game):
    """The colour of the top left pixel of the first menu, and the colour there without it."""
    game.press("F10")
    item = game.find("New Game")
    eventually(item.is_showing, "the first menu is open")
    left, top, _, _ = item.extents_on_screen()
    corner = left - MENU_MARGIN, top - MENU_MARGIN
    open_colour = stable_colour(game, corner)
    game.press("Escape", "Escape")
    eventually(lambda: not item.is_showing(), "the first menu is closed")
    return open_colour, stable_colour(game, corner)


def has_round_corner(game):
    inside, outside = corner_of_menu(game)
    assert inside != BLACK
    return inside == outside


def test_menus_have_square_corners_without_a_compositing_manager(game):
    assert not has_round_corner(game)


def test_menus_get_round_corners_when_a_compositing_manager_starts(game):
    assert not has_round_corner(game)
    manager = game.desktop.spawn("xfwm4", "--replace", "--compositor=on", "--vblank=off")
    try:
        eventually(lambda: has_round_corner(game), "the menu has a round corner")
    finally:
        manager.terminate()
        manager.wait()
