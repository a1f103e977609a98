"""Recognises the board in a screenshot."""

from dataclasses import dataclass

COLUMNS = 28
ROWS = 22

FRUIT = (255, 133, 99)
TAIL = (59, 148, 102)
# Only the snake's gradient has this much green and this little red.
SNAKE_MINIMUM_GREEN = 140
SNAKE_MAXIMUM_RED = 200
# The eyes are painted on the bright head in black at 75 % opacity.
EYE_MAXIMUM_GREEN = 100

# The frame is searched for at these distances outwards from the edge; pixels.
FRAME_STEPS = range(-3, 4)
# Inside the frame; pixels from the edge.
INSIDE = 8
# How much greener the frame is than the ground; at a fractional scale it is blurred.
FRAME_CONTRAST = 5

# An eye is three pixels wide on a small board, whose place is known to a pixel.
NEARBY = [(dx, dy) for dx in (0, -1, 1) for dy in (0, -1, 1)]

# The eyes' offsets from the centre of the head, in cells, by direction.
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
    """The board at `geometry`: left, top, width and height in screen pixels."""

    def __init__(self, geometry):
        self._left, self._top, self._width, self._height = geometry
        self._cell = min(self._width / COLUMNS, self._height / ROWS)

    def snake(self, picture):
        """The snake, or None unless exactly one head is recognised."""
        cells = {(x, y) for y in range(ROWS) for x in range(COLUMNS)
                 if self._is_snake(self._colour(picture, x, y))}
        heads = [(cell, direction) for cell in cells for direction in EYES
                 if self._has_eyes(picture, cell, direction)]
        if len(heads) != 1:
            return None
        (head, direction), = heads
        return Snake(head, direction, cells)

    @staticmethod
    def is_moving(picture):
        """Whether a run is in progress: otherwise the board is blurred and dimmed."""
        # Check for both colours, as the glow of the snake may tint the fruit.
        return picture.shows(TAIL) or picture.shows(FRUIT)

    def has_frame(self, picture):
        """Whether the frame's thin bright line is drawn at all four sides."""
        right = self._left + self._width
        bottom = self._top + self._height
        x = self._left + self._width / 3
        y = self._top + self._height / 3
        return all(max(picture.colour(a + dx * step, b + dy * step)[1] for step in FRAME_STEPS)
                   >= picture.colour(a - dx * INSIDE, b - dy * INSIDE)[1] + FRAME_CONTRAST
                   for a, b, dx, dy in ((self._left, y, -1, 0), (right, y, 1, 0),
                                        (x, self._top, 0, -1), (x, bottom, 0, 1)))

    def _has_eyes(self, picture, cell, direction):
        return all(any(self._colour(picture, *cell, *eye, by)[1] <= EYE_MAXIMUM_GREEN
                       for by in NEARBY)
                   for eye in EYES[direction])

    def _colour(self, picture, x, y, dx=0, dy=0, by=(0, 0)):
        return picture.colour(self._left + (x + 0.5 + dx) * self._cell + by[0],
                              self._top + (y + 0.5 + dy) * self._cell + by[1])

    @staticmethod
    def _is_snake(colour):
        red, green, blue = colour
        return green >= SNAKE_MINIMUM_GREEN and red <= SNAKE_MAXIMUM_RED and green > blue
