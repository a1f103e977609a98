"""Every way out ends well: status 0, nothing printed, everything stored."""

import signal

import pytest
from waiting import eventually


def close_by_window_manager(game):
    # The window manager takes this key for itself and asks the window to close.
    game.press("alt+F4")


def press_ctrl_q(game):
    game.press("ctrl+q")


def send(number):
    return lambda game: game.process.send_signal(number)


WAYS_OUT = {
    "its window manager": close_by_window_manager,
    "Ctrl Q": press_ctrl_q,
    "SIGTERM": send(signal.SIGTERM),
    "SIGINT": send(signal.SIGINT),
    "SIGHUP": send(signal.SIGHUP),
}
# A signal asks the program, whatever its window shows; these two ask the window.
asking_the_window = pytest.mark.parametrize("leave", [close_by_window_manager, press_ctrl_q])
ways_out = pytest.mark.parametrize("leave", WAYS_OUT.values(), ids=WAYS_OUT.keys())


@ways_out
def test_in_the_middle_of_a_run_it_ends_with_status_0_and_the_best_stored(game, home, leave):
    game.start_run()
    eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    leave(game)
    assert game.exit_status() == 0
    assert list(home.preferences()) == ["best-Classic"]
    assert home.preferences()["best-Classic"] >= 10


def test_signals_one_after_another_to_its_very_end_end_it_with_status_0(game):
    """Terminals and service managers send more than one."""
    while game.process.poll() is None:
        for number in (signal.SIGHUP, signal.SIGTERM, signal.SIGINT):
            game.process.send_signal(number)
    assert game.exit_status() == 0


@asking_the_window
def test_while_a_name_is_awaited_it_ends_with_status_0(game, leave):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    leave(game)
    assert game.exit_status() == 0


@asking_the_window
def test_under_the_sheet_it_ends_with_status_0(game, leave):
    game.press("ctrl+l")
    game.wait_for("The high scores.")
    leave(game)
    assert game.exit_status() == 0


def test_a_saved_run_and_a_switched_sound_outlive_it(game, home):
    game.click(game.find("Toggle sound effects"))
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    game.type("Pip")
    game.press("Return", "ctrl+q")
    assert game.exit_status() == 0
    assert [entry["name"] for entry in home.high_scores()] == ["Pip"]
    assert home.preferences()["player-name"] == "Pip"
    assert home.preferences()["sound"] is False
