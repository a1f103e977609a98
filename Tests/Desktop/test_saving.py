"""Saving a score under a name."""

import resource

from game import FRESH, MOVING, OVER, PAUSED
from waiting import eventually


def end_run(game):
    """Steers into the nearest wall. The first fruit is in another row."""
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.", "0 POINTS  ·  Classic")


def end_run_over_fruit(game):
    """Plays over the first fruit into the wall. Returns the score, as there may be more fruit."""
    game.start_run()
    game.wait_for("Game over.")
    line, = (text for text in game.texts() if text.endswith(" POINTS  ·  Classic"))
    score = int(line.split()[0])
    assert score >= 10 and score % 10 == 0
    return score


def save(game, name):
    game.type(name)
    game.press("Return")
    game.wait_for("Score saved · Top 10")


def test_return_saves_the_table_the_name_and_the_best(game, home):
    score = end_run_over_fruit(game)
    save(game, "  Pip   of the Garden ")
    preferences = home.saved()
    assert preferences["player-name"] == "Pip of the Garden"
    assert preferences["best-Classic"] == score
    assert isinstance(preferences["high-scores-v1"], bytes)
    entry, = home.high_scores()
    assert list(entry) == ["id", "name", "score", "pace", "date"]
    assert (entry["name"], entry["score"], entry["pace"]) == ("Pip of the Garden", score, "Classic")


def test_the_saved_row_is_shown_at_once(game):
    end_run(game)
    save(game, "Pip")
    game.wait_for("01 Pip 0", "Play again", "SPACE TO PLAY AGAIN")


def test_the_next_start_finds_the_best_the_name_and_the_score(launch):
    first = launch()
    score = end_run_over_fruit(first)
    save(first, "Pip")
    first.quit()

    second = launch()
    second.wait_for(FRESH, f"PERSONAL BEST: {score}")
    second.press("ctrl+l")
    second.wait_for("The high scores.", f"01 Pip {score}")
    second.press("Escape")
    eventually(lambda: not second.shows("The high scores."), "the sheet is closed")
    end_run(second)
    assert second.find("Player name").text == "Pip"


def test_a_score_saved_on_a_full_disk_is_stored_once_there_is_room(game, home):
    end_run(game)
    resource.prlimit(game.process.pid, resource.RLIMIT_FSIZE, (0, resource.RLIM_INFINITY))
    save(game, "Pip")
    assert home.preferences() == {}
    resource.prlimit(game.process.pid, resource.RLIMIT_FSIZE,
                     (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
    home.saved()
    game.kill()
    assert [entry["name"] for entry in home.high_scores()] == ["Pip"]


def test_a_run_that_ends_without_fruit_stores_no_best(game, home):
    end_run(game)
    save(game, "Pip")
    assert "best-Classic" not in home.saved()


def test_space_and_letters_are_typed_into_the_name(game):
    end_run(game)
    game.type("w a s d r")
    eventually(lambda: game.find("Player name").text == "w a s d r", "the name is typed")
    assert game.shows("Game over.", "Leave your name in the garden.")


def test_a_name_of_blanks_is_not_saved(game, home):
    end_run(game)
    game.type("   ")
    game.press("Return")
    game.type("x")
    eventually(lambda: game.find("Player name").text == "   x", "the name is typed")
    assert game.shows("Leave your name in the garden.")
    assert home.high_scores() == []


def test_a_name_is_cut_at_24_characters(game):
    end_run(game)
    save(game, "abcdefghijklmnopqrstuvwxyz")
    game.wait_for("01 abcdefghijklmnopqrstuvwx 0")


def test_skipping_saves_nothing_and_space_plays_again(game, home):
    end_run(game)
    game.click(game.find("Skip saving"))
    game.wait_for("Top 10", "A fresh start. Be the first on the board.")
    assert home.high_scores() == []
    game.press("space")
    game.wait_for(MOVING)


def test_new_game_is_disabled_during_name_entry(game):
    new_game = game.find("New Game")
    assert new_game.can_be_used()
    end_run(game)
    eventually(lambda: not new_game.can_be_used(), "New Game is disabled")
    game.press("ctrl+n")
    # Keys are handled in order: once this one is shown, Ctrl+N has been handled.
    game.type("x")
    eventually(lambda: game.find("Player name").text == "x", "the name is typed")
    assert game.shows(OVER, "Leave your name in the garden.")
    game.press("Return")
    eventually(new_game.can_be_used, "New Game is enabled again")
    game.press("ctrl+n")
    game.wait_for(MOVING)


def test_ctrl_n_starts_a_run_and_ctrl_p_pauses_it(game):
    game.press("ctrl+n")
    game.wait_for(MOVING)
    game.press("ctrl+p")
    game.wait_for(PAUSED)
    game.press("ctrl+p")
    game.wait_for(MOVING)
