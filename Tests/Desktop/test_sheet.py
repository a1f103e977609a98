"""The sheet of high scores over the game."""

import pytest
from game import MOVING, PAUSED
from waiting import eventually

SHEET = "The high scores.", "Top 10 for each speed · saved on this Mac", "Done"


def wait_until_closed(game):
    eventually(lambda: not game.shows("The high scores."), "the sheet is closed")


def test_it_opens_from_the_keyboard_and_from_its_icon(game):
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.press("Escape")
    wait_until_closed(game)
    game.click(game.find("High scores"))
    game.wait_for(*SHEET)


def test_opening_it_pauses_the_run(game):
    game.start_run()
    game.press("ctrl+l")
    game.wait_for(PAUSED, *SHEET)


def test_escape_closes_it_and_never_resumes(game):
    game.start_run()
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.press("Escape")
    wait_until_closed(game)
    assert game.shows(PAUSED)
    game.press("Escape")
    # Had the second Escape resumed, this would pause.
    game.press("space")
    game.wait_for(MOVING)


def test_done_closes_it(game):
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.click(game.find("Done"))
    wait_until_closed(game)


@pytest.mark.parametrize("keys", ["space", "r", "ctrl+n", "ctrl+p"])
def test_no_key_starts_or_resumes_a_run_under_it(game, keys):
    game.start_run()
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.press(keys, "Escape")
    wait_until_closed(game)
    assert game.shows(PAUSED)


def test_new_game_is_greyed_under_it(game):
    new_game = game.find("New Game")
    game.press("ctrl+l")
    eventually(lambda: not new_game.can_be_used(), "New Game is greyed")
    game.press("Escape")
    eventually(new_game.can_be_used, "New Game is back")


def test_another_speed_is_looked_at_without_being_chosen(game):
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    behind, on_sheet = game.find_showing("Swift")
    game.click(on_sheet)
    eventually(on_sheet.is_checked, "Swift is looked at")
    assert not behind.is_checked()
    assert game.find("Classic").is_checked()
