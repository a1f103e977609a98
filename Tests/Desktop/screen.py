"""Reads the pixels of the private X server from its memory-mapped framebuffer."""

import mmap
import struct

# The file is an X window dump (xwd), which begins with a header of big-endian words.
WORDS = 25
HEADER_SIZE = 0
BYTES_PER_LINE = 12
COLOURS = 19
BYTES_PER_COLOUR = 12
BYTES_PER_PIXEL = 4


class Screen:
    """The screen of Xvfb, started with -fbdir and depth 24."""

    WIDTH = 1920
    HEIGHT = 1080

    def __init__(self, path):
        with open(path, "rb") as file:
            self._memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack_from(f">{WORDS}I", self._memory)
        self._begin = header[HEADER_SIZE] + header[COLOURS] * BYTES_PER_COLOUR
        self._stride = header[BYTES_PER_LINE]

    def picture(self):
        """A copy of the current pixels."""
        return Picture(self._memory[self._begin:], self._stride)


class Picture:
    """A copy of the whole screen."""

    def __init__(self, pixels, stride):
        self._pixels = pixels
        self._stride = stride

    def colour(self, x, y):
        """Red, green and blue of a pixel, 0 to 255."""
        at = int(y) * self._stride + int(x) * BYTES_PER_PIXEL
        blue, green, red = self._pixels[at:at + 3]
        return red, green, blue

    def shows(self, colour):
        """Whether any pixel has exactly this colour."""
        red, green, blue = colour
        return bytes((blue, green, red)) in self._pixels

    def bounds_without(self, background):
        """Left, top, width and height of the foreground in the middle row and column.

        None when there is only background. Ignores small things elsewhere, such as the pointer."""
        columns = [x for x in range(Screen.WIDTH)
                   if self.colour(x, Screen.HEIGHT // 2) != background]
        if not columns:
            return None
        rows = [y for y in range(Screen.HEIGHT)
                if self.colour(columns[len(columns) // 2], y) != background]
        return (columns[0], rows[0], columns[-1] - columns[0] + 1, rows[-1] - rows[0] + 1)
