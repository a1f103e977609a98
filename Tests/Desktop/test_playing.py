"""A run, from the first key to the wall."""

import pytest
from game import FRESH, MOVING, OVER, PAUSED, A, D, S, W
from waiting import eventually

ARROWS = {"up": "Up", "down": "Down", "left": "Left", "right": "Right"}
LETTERS = {"up": W, "down": S, "left": A, "right": D}
# A square: every turn is legal, and no wall is near.
ROUND = ["up", "left", "down", "right"]


def snake_heading(game, board, direction):
    """The snake, as soon as it is seen moving that way."""

    def look():
        snake = board.snake(game.desktop.screen.picture())
        return snake if snake is not None and snake.direction == direction else None

    return eventually(look, f"the snake heads {direction}")


def steer_round(game, keys):
    board = game.board()
    game.start_run()
    snake_heading(game, board, "right")
    for direction in ROUND:
        game.press(keys[direction])
        snake_heading(game, board, direction)


@pytest.fixture
def french_keyboard(desktop):
    desktop.run("setxkbmap", "fr")
    yield
    desktop.run("setxkbmap", "us")


def test_space_starts_the_first_run(game):
    game.wait_for(FRESH, "Find your flow.")
    game.press("space")
    game.wait_for(MOVING)


def test_arrows_steer_the_snake(game):
    steer_round(game, ARROWS)


def test_the_letters_w_a_s_d_steer_the_snake(game):
    steer_round(game, LETTERS)


def test_the_same_places_steer_on_a_french_keyboard(game, french_keyboard):
    steer_round(game, LETTERS)


def test_two_quick_turns_are_both_taken(game):
    board = game.board()
    game.start_run()
    row = snake_heading(game, board, "right").head[1]
    game.press("Up", "Left")
    snake = snake_heading(game, board, "left")
    assert snake.head[1] == row - 1


def test_space_pauses_and_resumes_while_escape_only_pauses(game):
    game.start_run()
    game.press("space")
    game.wait_for(PAUSED, "No rush.", "Your garden will be here when you're ready.")
    game.press("Escape", "space")
    game.wait_for(MOVING)
    game.press("Escape")
    game.wait_for(PAUSED)


def test_a_paused_snake_stays_where_it_is(game):
    board = game.board()
    game.start_run()
    game.press("Up", "space")
    game.wait_for(PAUSED)
    game.press("Left", "space")
    row = snake_heading(game, board, "up").head[1]
    # Had the pressed arrow counted, the snake would leave its column.
    eventually(lambda: snake_heading(game, board, "up").head[1] < row, "the snake moves up")


def test_r_starts_afresh_in_the_middle_of_a_run(game):
    board = game.board()
    game.start_run()
    game.press("Up")
    snake_heading(game, board, "up")
    game.press("r")
    assert snake_heading(game, board, "right").head[1] == 11


def test_running_into_a_wall_ends_the_run(game):
    game.start_run()
    game.press("Up")
    game.wait_for(OVER, "Game over.", "0 POINTS  ·  Classic", "Leave your name in the garden.")


def test_a_fruit_counts_ten_points_and_lifts_the_stored_best_at_once(game, home):
    game.start_run()
    eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    game.press("space")
    game.wait_for(PAUSED)
    # Seldom, chance lays the next fruit right before the snake.
    score = home.preferences()["best-Classic"]
    assert score in (10, 20)
    game.wait_for(f"SCORE: {score}", f"PERSONAL BEST: {score}",
                  f"Snake board. Score {score}. Use arrow keys or W A S D to move.")
