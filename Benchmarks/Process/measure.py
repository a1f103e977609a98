"""measure.py BUILD: measures the whole program on a private X server of 1920 x 1080 pixels.

Prints one JSON object of named figures in seconds, bytes, shares of one core, or counts.
"""

import json
import pathlib
import sys

import gameplay
import idle
import startup
from testbed import Testbed


def main():
    testbed = Testbed(pathlib.Path(sys.argv[1]).resolve())
    try:
        measured = {}
        for part in (startup, gameplay, idle):
            measured |= part.measure(testbed)
    finally:
        testbed.close()
    print(json.dumps(measured))


if __name__ == "__main__":
    main()
