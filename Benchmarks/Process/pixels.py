"""Single pixels of the screen, read from the X server's framebuffer file."""

from board import COLUMNS, EYE_MAXIMUM_GREEN, EYES, FRUIT, ROWS
from screen import BYTES_PER_PIXEL, Screen

# The area of the board on the main screen of 1920 x 1080 points.
LEFT, TOP, WIDTH, HEIGHT = 38, 190, 1844, 815
CELL = min(WIDTH / COLUMNS, HEIGHT / ROWS)
CELLS = [(x, y) for y in range(ROWS) for x in range(COLUMNS)]
FIRST_X = LEFT + (WIDTH - COLUMNS * CELL) / 2
FIRST_Y = TOP + (HEIGHT - ROWS * CELL) / 2

# The glow of the snake may tint the fruit by so much.
FRUIT_TOLERANCE = 40

VECTORS = {"up": (0, -1), "left": (-1, 0), "right": (1, 0), "down": (0, 1)}


# Sample positions all over the screen.
GRID_COLUMNS, GRID_ROWS = 32, 18


class Pixels(Screen):
    def __init__(self, path, width, height):
        super().__init__(path)
        self._grid = [((column + 0.5) * width / GRID_COLUMNS, (row + 0.5) * height / GRID_ROWS)
                      for row in range(GRID_ROWS) for column in range(GRID_COLUMNS)]

    def colour(self, x, y):
        """Red, green and blue of a pixel, 0 to 255 each."""
        at = self._begin + int(y) * self._stride + int(x) * BYTES_PER_PIXEL
        blue, green, red = self._memory[at:at + 3]
        return red, green, blue

    def shows_nowhere(self, colour):
        """Whether no sampled pixel has this colour."""
        return all(self.colour(*point) != colour for point in self._grid)

    def shows_everywhere(self, colour):
        """Whether every sampled pixel has this colour."""
        return all(self.colour(*point) == colour for point in self._grid)

    def shows_head(self, cell, direction):
        """Whether the snake's head is in this cell and looks in this direction."""
        return all(self._in_cell(cell, eye)[1] <= EYE_MAXIMUM_GREEN for eye in EYES[direction]) and \
            self._in_cell(cell, (0, 0))[1] > EYE_MAXIMUM_GREEN

    def fruit(self):
        """The cell of the fruit; None if it is not to be seen."""
        return next((cell for cell in CELLS if all(
            abs(seen - expected) <= FRUIT_TOLERANCE
            for seen, expected in zip(self._in_cell(cell, (0, 0)), FRUIT))), None)

    def _in_cell(self, cell, offset):
        return self.colour(FIRST_X + (cell[0] + 0.5 + offset[0]) * CELL,
                           FIRST_Y + (cell[1] + 0.5 + offset[1]) * CELL)


def neighbour(cell, direction):
    """The neighbour of a cell in a direction."""
    return cell[0] + VECTORS[direction][0], cell[1] + VECTORS[direction][1]
