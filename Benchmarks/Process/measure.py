"""Measures the whole program on a private screen of 1920 x 1080 pixels.

measure.py BUILD: prints one JSON object of named figures, in seconds, bytes, or as they are.
"""

import json
import pathlib
import sys

import playing
import resting
import starting
from stage import Stage


def main():
    stage = Stage(pathlib.Path(sys.argv[1]).resolve())
    try:
        measured = {}
        for part in (starting, playing, resting):
            measured |= part.measure(stage)
    finally:
        stage.close()
    print(json.dumps(measured))


if __name__ == "__main__":
    main()
