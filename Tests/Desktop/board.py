"""The board, read from the pixels of the screen."""

from dataclasses import dataclass

COLUMNS = 28
ROWS = 22

FRUIT = (255, 133, 99)
TAIL = (59, 148, 102)
# Every colour of the band lies above this, everything else on the board below it.
BAND_GREEN_FROM = 140
BAND_RED_UP_TO = 200
# The eyes are black at an opacity of 0.75 on the bright head.
EYE_GREEN_UP_TO = 100

EYES = {
    "up": ((-0.16, -0.15), (0.16, -0.15)),
    "down": ((-0.16, 0.15), (0.16, 0.15)),
    "left": ((-0.15, -0.16), (-0.15, 0.16)),
    "right": ((0.15, -0.16), (0.15, 0.16)),
}


@dataclass
class Snake:
    head: tuple
    direction: str
    cells: set


class Board:
    """Knows where the cells lie; `place` is left, top, width and height on the screen."""

    def __init__(self, place):
        self._left, self._top, width, height = place
        self._cell = min(width / COLUMNS, height / ROWS)

    def snake(self, picture):
        """The snake, or None when none is to be seen clearly."""
        cells = {(x, y) for y in range(ROWS) for x in range(COLUMNS)
                 if self._is_band(self._colour(picture, x, y))}
        heads = [(cell, direction) for cell in cells for direction in EYES
                 if self._looks(picture, cell, direction)]
        if len(heads) != 1:
            return None
        (head, direction), = heads
        return Snake(head, direction, cells)

    @staticmethod
    def is_moving(picture):
        """Whether a run is moving: at rest the board is blurred and dimmed, its colours gone."""
        # Either is enough: the snake's glow may tint the fruit.
        return picture.shows(TAIL) or picture.shows(FRUIT)

    def _looks(self, picture, cell, direction):
        return all(self._colour(picture, *cell, *eye)[1] <= EYE_GREEN_UP_TO
                   for eye in EYES[direction])

    def _colour(self, picture, x, y, dx=0, dy=0):
        return picture.colour(self._left + (x + 0.5 + dx) * self._cell,
                              self._top + (y + 0.5 + dy) * self._cell)

    @staticmethod
    def _is_band(colour):
        red, green, blue = colour
        return green >= BAND_GREEN_FROM and red <= BAND_RED_UP_TO and green > blue
