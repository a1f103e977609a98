"""The high scores sheet."""

import pytest
from game import MOVING, PAUSED
from waiting import eventually

SHEET = "The high scores.", "Top 10 for each speed · saved on this computer", "Done"


def wait_until_closed(game):
    eventually(lambda: not game.shows("The high scores."), "the sheet is closed")


def test_opens_by_key_and_by_button(game):
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.press("Escape")
    wait_until_closed(game)
    game.click(game.find("High scores"))
    game.wait_for(*SHEET)


def test_opening_pauses_the_run(game):
    game.start_run()
    game.press("ctrl+l")
    game.wait_for(PAUSED, *SHEET)


def test_escape_closes_it_without_resuming(game):
    game.start_run()
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.press("Escape")
    wait_until_closed(game)
    assert game.shows(PAUSED)
    game.press("Escape")
    # If the second Escape had resumed, this would pause.
    game.press("space")
    game.wait_for(MOVING)


def test_done_closes_it(game):
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.click(game.find("Done"))
    wait_until_closed(game)


@pytest.mark.parametrize("keys", ["space", "r", "ctrl+n", "ctrl+p"])
def test_no_key_starts_or_resumes_a_run_while_it_is_open(game, keys):
    game.start_run()
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    game.press(keys, "Escape")
    wait_until_closed(game)
    assert game.shows(PAUSED)


def test_new_game_is_disabled_while_it_is_open(game):
    new_game = game.find("New Game")
    game.press("ctrl+l")
    eventually(lambda: not new_game.can_be_used(), "New Game is disabled")
    game.press("Escape")
    eventually(new_game.can_be_used, "New Game is enabled again")


def test_viewing_another_speed_does_not_select_it(game):
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    behind, on_sheet = game.find_showing("Swift")
    game.click(on_sheet)
    eventually(on_sheet.is_checked, "Swift is shown")
    assert not behind.is_checked()
    assert game.find("Classic").is_checked()
