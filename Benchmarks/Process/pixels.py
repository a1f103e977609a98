"""The places of the screen that the benchmarks look at, read without a copy of the screen."""

from board import COLUMNS, EYE_GREEN_UP_TO, EYES, ROWS
from screen import BYTES_PER_PIXEL, Screen

# What the main screen of 1920 x 1080 points leaves to the board.
LEFT, TOP, WIDTH, HEIGHT = 38, 195, 1844, 810
CELL = min(WIDTH / COLUMNS, HEIGHT / ROWS)
FIRST_X = LEFT + (WIDTH - COLUMNS * CELL) / 2
FIRST_Y = TOP + (HEIGHT - ROWS * CELL) / 2

VECTORS = {"up": (0, -1), "left": (-1, 0), "right": (1, 0), "down": (0, 1)}


class Pixels(Screen):
    """The screen's memory, asked for single pixels."""

    GRID = [(x, y) for y in range(30, Screen.HEIGHT, 60) for x in range(30, Screen.WIDTH, 60)]

    def colour(self, x, y):
        """Red, green and blue at a place, 0 to 255 each."""
        at = self._begin + int(y) * self._stride + int(x) * BYTES_PER_PIXEL
        blue, green, red = self._memory[at:at + 3]
        return red, green, blue

    def shows_nowhere(self, colour):
        """Whether none of the pixels of a grid over the whole screen has this colour."""
        return all(self.colour(*place) != colour for place in self.GRID)

    def shows_everywhere(self, colour):
        """Whether all the pixels of that grid have this colour."""
        return all(self.colour(*place) == colour for place in self.GRID)

    def shows_head(self, cell, direction):
        """Whether a snake at play has its two eyes in this cell and looks that way."""
        return all(self._in_cell(cell, eye)[1] <= EYE_GREEN_UP_TO for eye in EYES[direction]) and \
            self._in_cell(cell, (0, 0))[1] > EYE_GREEN_UP_TO

    def _in_cell(self, cell, offset):
        return self.colour(FIRST_X + (cell[0] + 0.5 + offset[0]) * CELL,
                           FIRST_Y + (cell[1] + 0.5 + offset[1]) * CELL)


def beside(cell, direction):
    """The next cell in a direction."""
    return cell[0] + VECTORS[direction][0], cell[1] + VECTORS[direction][1]
