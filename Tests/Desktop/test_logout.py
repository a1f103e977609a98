"""Logout through an XSMP session manager."""

import json

import pytest
from game import OVER, PROGRAM
from session_manager import SessionManagerProcess
from waiting import eventually


@pytest.fixture
def manager(desktop):
    manager = SessionManagerProcess(desktop.environment)
    yield manager
    manager.stop()


@pytest.fixture
def game(manager, launch):
    game = launch(SESSION_MANAGER=manager.address)
    manager.run("join")
    return game


def test_logout_during_a_run_quits_with_status_0_and_keeps_the_best(
        game, home, manager):
    game.start_run()
    eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    manager.run("logout")
    assert game.exit_status() == 0
    assert list(home.preferences()) == ["best-Classic"]


def test_logout_during_name_entry_quits_with_status_0(game, home, manager):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    manager.run("logout")
    assert game.exit_status() == 0
    assert home.high_scores() == []


def test_logout_with_the_sheet_open_quits_with_status_0(game, manager):
    game.press("ctrl+l")
    game.wait_for("The high scores.")
    manager.run("logout")
    assert game.exit_status() == 0


def test_logout_keeps_what_was_saved(game, home, manager):
    game.save_a_run("Pip")
    manager.run("logout")
    assert game.exit_status() == 0
    assert [entry["name"] for entry in home.high_scores()] == ["Pip"]
    assert home.preferences()["player-name"] == "Pip"


def test_a_cancelled_logout_changes_nothing(game, manager):
    game.start_run()
    game.press("Up")
    game.wait_for(OVER, "Game over.")
    game.type("Pi")
    manager.run("cancel")
    game.type("p")
    eventually(lambda: game.find("Player name").text == "Pip", "typing continues")
    assert game.shows(OVER)


def test_the_session_manager_starts_the_program_again_without_arguments(manager, game):
    assert json.loads(manager.run("save")) == [PROGRAM]
