"""measure.py BUILD [PART]...: measures the whole program on a private X server.

Its screen has 1920 x 1080 pixels, for the part `large` 3840 x 2160. PART is one of startup, cold,
large, gameplay, idle and slow_disk; all of them by default.
Prints one JSON object of named figures in seconds, bytes, shares of one core, or counts.
"""

import json
import pathlib
import sys

import cold
import gameplay
import idle
import large
import slow_disk
import startup
from testbed import Testbed

PARTS = {"startup": startup, "cold": cold, "large": large, "gameplay": gameplay, "idle": idle,
         "slow_disk": slow_disk}


def main():
    parts = [PARTS[name] for name in sys.argv[2:] or PARTS]
    testbed = Testbed(pathlib.Path(sys.argv[1]).resolve())
    try:
        measured = {}
        for part in parts:
            measured |= part.measure(testbed)
    finally:
        testbed.close()
    print(json.dumps(measured))


if __name__ == "__main__":
    main()
