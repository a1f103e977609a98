"""What is to be seen of the game where no accessibility bus tells it: read from the pixels."""

from board import Board
from screen import Screen

MINT = (166, 240, 163)
INSIDE_THE_BUTTON = Screen.WIDTH // 2 - 60, 650


def shows_card(game):
    """Whether the start card's button is to be seen in full screen."""
    return game.desktop.screen.picture().colour(*INSIDE_THE_BUTTON) == MINT


def moves(game):
    """Whether the snake moves, or has just ended its run."""
    return Board.is_moving(game.desktop.screen.picture())
