"""Losing the focus to another window, and regaining it."""

from game import FRESH, MOVING, OVER, PAUSED
from waiting import eventually


def test_losing_the_focus_pauses_and_regaining_it_does_not_resume(game, other_window):
    game.start_run()
    other_window.take_focus_from(game)
    game.wait_for(PAUSED, "No rush.")
    other_window.give_focus_back_to(game)
    assert game.shows(PAUSED)
    # If it had resumed, this would pause.
    game.press("space")
    game.wait_for(MOVING)


def test_losing_the_focus_changes_nothing_before_the_first_run(game, other_window):
    other_window.take_focus_from(game)
    other_window.give_focus_back_to(game)
    assert game.shows(FRESH, "Find your flow.")


def test_losing_the_focus_keeps_a_partly_typed_name(game, other_window):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    game.type("Pi")
    other_window.take_focus_from(game)
    other_window.give_focus_back_to(game)
    game.type("p")
    eventually(lambda: game.find("Player name").text == "Pip", "typing continues")
    assert game.shows(OVER)


def test_minimising_pauses(game):
    game.press("F11")
    game.wait_for("Minimise")
    game.start_run()
    pause = game.find("Pause")
    game.click(game.find("Minimise"))
    eventually(lambda: pause.name == "Resume", "the menu offers to resume")
