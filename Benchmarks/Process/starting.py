"""From the start of a fresh process until its pixels fill the screen."""

import statistics
import time

from program import Program
from waiting import eventually

RUNS = 20
# No pixel of either program has it.
BARE = (255, 0, 255)
LOOK_EVERY = 0.0005
PATIENCE = 20


def shows_bare_screen(stage):
    stage.hands.colour_screen(BARE)
    return stage.pixels.shows_everywhere(BARE)


def seconds_to_first_frame(stage, path):
    # The window of the program before goes a little later than its process.
    eventually(lambda: shows_bare_screen(stage), "the screen is bare")
    with Program(stage.desktop, path) as program:
        while not stage.pixels.shows_nowhere(BARE):
            assert time.monotonic() - program.began < PATIENCE, f"{path} does not fill the screen"
            time.sleep(LOOK_EVERY)
        return time.monotonic() - program.began


def measure(stage):
    """Medians in seconds; the two programs in turn, after one run of each that fills the caches."""
    times = {stage.hello: [], stage.game: []}
    for run in range(RUNS + 1):
        for path, measured in times.items():
            seconds = seconds_to_first_frame(stage, path)
            if run > 0:
                measured.append(seconds)
    return {"start_hello": statistics.median(times[stage.hello]),
            "start_game": statistics.median(times[stage.game])}
