"""Keys that are held down while the game moves on, and auto-repeat."""

import time

import pytest
from game import MOVING, OVER, D
from waiting import eventually

SPACE, R = "65", "27"
# The X server repeats a key after 0.66 s, 25 times per second.
SEVERAL_REPEATS = 1.5  # seconds


def hold(game, key):
    game.desktop.run("xdotool", "keydown", key)


@pytest.fixture
def release(desktop):
    """Releases a key; all of them at the end, as the X server is shared."""
    def release(key):
        desktop.run("xdotool", "keyup", key)

    yield release
    for key in (D, "Return", SPACE, R):
        release(key)


def name(game):
    return game.find("Player name").text


def test_a_direction_held_over_the_end_of_a_run_types_nothing(game, release):
    game.start_run()
    hold(game, D)
    game.wait_for("Game over.")
    time.sleep(SEVERAL_REPEATS)
    assert name(game) == ""
    release(D)
    hold(game, D)
    eventually(lambda: len(name(game)) > 3, "a key that was pressed in the field repeats")


def test_return_held_over_the_end_of_a_run_saves_nothing(game, home, release):
    game.save_a_run("Pip")
    game.start_run()
    hold(game, "Return")
    game.wait_for("Game over.")
    time.sleep(SEVERAL_REPEATS)
    game.wait_for("Leave your name in the garden.")
    assert len(home.high_scores()) == 1
    release("Return")
    game.press("Return")
    game.wait_for("Score saved · Top 10")


@pytest.mark.parametrize("key", [SPACE, R])
def test_a_key_held_over_the_saved_card_starts_one_run(game, release, key):
    game.save_a_run("Pip")
    hold(game, key)
    game.wait_for(MOVING)
    # A run that is paused or started again every 40 ms never gets to the wall.
    game.wait_for(OVER, "Game over.")
    release(key)


def test_the_offered_name_is_replaced_by_typing(game, home):
    game.save_a_run("Pip")
    game.save_a_run("Pip")
    assert [entry["name"] for entry in home.high_scores()] == ["Pip", "Pip"]
