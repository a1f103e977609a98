"""The end of the session, asked for by a session manager."""

import os
import pathlib
import time

import pytest
from game import OVER, PAUSED
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
    manager.order("join")
    return game


def test_logout_in_the_middle_of_a_run_ends_it_with_status_0_and_the_best_stored(
        game, home, manager):
    game.start_run()
    eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    manager.order("logout")
    assert game.exit_status() == 0
    assert list(home.preferences()) == ["best-Classic"]


def test_logout_while_a_name_is_awaited_ends_it_with_status_0(game, home, manager):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    manager.order("logout")
    assert game.exit_status() == 0
    assert home.high_scores() == []


def test_logout_under_the_sheet_ends_it_with_status_0(game, manager):
    game.press("ctrl+l")
    game.wait_for("The high scores.")
    manager.order("logout")
    assert game.exit_status() == 0


def test_everything_saved_before_a_logout_is_there_after_it(game, home, manager):
    game.save_a_run("Pip")
    manager.order("logout")
    assert game.exit_status() == 0
    assert [entry["name"] for entry in home.high_scores()] == ["Pip"]
    assert home.preferences()["player-name"] == "Pip"


def test_a_logout_called_off_leaves_it_as_it_was(game, manager):
    game.start_run()
    game.press("Up")
    game.wait_for(OVER, "Game over.")
    game.type("Pi")
    manager.order("cancel")
    game.type("p")
    eventually(lambda: game.find("Player name").text == "Pip", "the name is typed on")
    assert game.shows(OVER)


def processor_time(game):
    """Seconds of the processor's time that the game has taken."""
    fields = pathlib.Path(f"/proc/{game.process.pid}/stat").read_text().rpartition(")")[2].split()
    return sum(map(int, fields[11:13])) / os.sysconf("SC_CLK_TCK")


def test_it_plays_on_quietly_when_the_session_manager_crashes(game, home, manager):
    game.press("space", "space")
    game.wait_for(PAUSED)
    manager.stop()
    before = processor_time(game)
    time.sleep(2)
    # At rest it takes none; asking about a lost connection again and again would take it all.
    assert processor_time(game) - before < 0.5
    game.press("space", "Up")
    game.wait_for("Game over.")
    game.type("Pip")
    game.press("Return")
    eventually(home.high_scores, "the run is saved")
    game.press("ctrl+q")
    assert game.exit_status() == 0
