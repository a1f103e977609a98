"""Playing a run."""

import pytest
from game import FRESH, MOVING, OVER, PAUSED, A, D, S, W
from waiting import eventually

ARROWS = {"up": "Up", "down": "Down", "left": "Left", "right": "Right"}
LETTERS = {"up": W, "down": S, "left": A, "right": D}
# X11 key codes, with Num Lock off.
KEYPAD_ARROWS = {"up": "80", "down": "88", "left": "83", "right": "85"}
CAPS_LOCK = "66"
# A square, away from the walls.
SQUARE = ["up", "left", "down", "right"]


def snake_heading(game, board, direction):
    """Waits until the snake moves in this direction and returns it."""

    def snake_or_none():
        snake = board.snake(game.desktop.screen.picture())
        return snake if snake is not None and snake.direction == direction else None

    return eventually(snake_or_none, f"the snake heads {direction}")


def steer_in_a_square(game, keys):
    board = game.board()
    game.start_run()
    snake_heading(game, board, "right")
    for direction in SQUARE:
        game.press(keys[direction])
        snake_heading(game, board, direction)


def press_with_alt_gr(game):
    """Presses Space and R with AltGr held; returns when the game has handled them."""
    game.wait_for(FRESH)
    game.press("ISO_Level3_Shift+space", "ISO_Level3_Shift+r")
    # Keys are handled in order.
    game.press("ctrl+l")
    game.wait_for("The high scores.")
    game.press("Escape")
    eventually(lambda: not game.shows("The high scores."), "the sheet is closed")


@pytest.fixture
def caps_lock_is_escape(desktop):
    desktop.run("setxkbmap", "-option", "caps:escape")
    yield
    # An empty option removes all of them.
    desktop.run("setxkbmap", "-option", "")


@pytest.fixture
def french_layout(desktop):
    desktop.run("setxkbmap", "fr")
    yield
    desktop.run("setxkbmap", "us")


def test_space_starts_the_first_run(game):
    game.wait_for(FRESH, "Find your flow.")
    game.press("space")
    game.wait_for(MOVING)


def test_arrows_steer_the_snake(game):
    steer_in_a_square(game, ARROWS)


def test_w_a_s_d_steer_the_snake(game):
    steer_in_a_square(game, LETTERS)


def test_the_same_physical_keys_steer_with_a_french_layout(game, french_layout):
    steer_in_a_square(game, LETTERS)


def test_the_arrows_of_the_keypad_steer_the_snake(game):
    steer_in_a_square(game, KEYPAD_ARROWS)


def test_escape_in_the_place_of_caps_lock_pauses(game, caps_lock_is_escape):
    game.start_run()
    game.press(CAPS_LOCK)
    game.wait_for(PAUSED)


def test_keys_pressed_with_alt_gr_do_nothing(game):
    press_with_alt_gr(game)
    assert game.shows(FRESH, "Find your flow.")


def test_two_quick_turns_both_count(game):
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


def test_turns_do_not_count_while_paused(game):
    board = game.board()
    game.start_run()
    game.press("Up", "space")
    game.wait_for(PAUSED)
    game.press("Left", "space")
    row = snake_heading(game, board, "up").head[1]
    # If the arrow key had counted, the snake would move left.
    eventually(lambda: snake_heading(game, board, "up").head[1] < row, "the snake moves up")


def test_r_restarts_during_a_run(game):
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


def test_a_fruit_gives_ten_points_and_stores_the_best_at_once(game, home):
    game.start_run()
    eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    game.press("space")
    game.wait_for(PAUSED)
    # The next fruit may happen to be right in front of the snake.
    score = home.preferences()["best-Classic"]
    assert score in (10, 20)
    game.wait_for(f"SCORE: {score}", f"PERSONAL BEST: {score}",
                  f"Snake board. Score {score}. Use arrow keys or W A S D to move.")
