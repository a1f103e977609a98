"""What is to be seen on the private screen, read from the X server's own picture memory."""

import mmap
import struct

# The file begins with a header of big-endian words, as X window dumps do.
WORDS = 25
HEADER_SIZE = 0
BYTES_PER_LINE = 12
COLOURS = 19
BYTES_PER_COLOUR = 12
BYTES_PER_PIXEL = 4


class Screen:
    """An X server's screen of depth 24, mapped into memory by its file."""

    WIDTH = 1920
    HEIGHT = 1080

    def __init__(self, path):
        with open(path, "rb") as file:
            self._memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack_from(f">{WORDS}I", self._memory)
        self._begin = header[HEADER_SIZE] + header[COLOURS] * BYTES_PER_COLOUR
        self._stride = header[BYTES_PER_LINE]

    def picture(self):
        """What is shown now."""
        return Picture(self._memory[self._begin:], self._stride)


class Picture:
    """The whole screen as it was at one moment."""

    def __init__(self, pixels, stride):
        self._pixels = pixels
        self._stride = stride

    def colour(self, x, y):
        """Red, green and blue at a place, 0 to 255 each."""
        at = int(y) * self._stride + int(x) * BYTES_PER_PIXEL
        blue, green, red = self._pixels[at:at + 3]
        return red, green, blue

    def shows(self, colour):
        """Whether a pixel anywhere has exactly this colour."""
        red, green, blue = colour
        return bytes((blue, green, red)) in self._pixels

    def place_of_all_but(self, ground):
        """Left, top, width and height of what covers the middle line, on a ground of this colour.

        None when nothing does. Small things elsewhere, such as a pointer, do not count."""
        columns = [x for x in range(Screen.WIDTH)
                   if self.colour(x, Screen.HEIGHT // 2) != ground]
        if not columns:
            return None
        rows = [y for y in range(Screen.HEIGHT)
                if self.colour(columns[len(columns) // 2], y) != ground]
        return (columns[0], rows[0], columns[-1] - columns[0] + 1, rows[-1] - rows[0] + 1)
