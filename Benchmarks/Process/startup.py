"""The time from the start of a process until its window fills the screen."""

import statistics
import time

from program import Program
from waiting import eventually

RUNS = 20
# A colour that neither program draws.
BACKGROUND = (255, 0, 255)
POLL_SECONDS = 0.0005
TIMEOUT = 20


def shows_background(testbed):
    testbed.input.fill_root_window(BACKGROUND)
    return testbed.pixels.shows_everywhere(BACKGROUND)


def seconds_to_first_frame(testbed, path):
    # The X server removes the previous program's window shortly after the process has exited.
    eventually(lambda: shows_background(testbed), "only the root window is visible")
    with Program(testbed.desktop, path) as program:
        while not testbed.pixels.shows_nowhere(BACKGROUND):
            assert time.monotonic() - program.began < TIMEOUT, f"{path} does not fill the screen"
            time.sleep(POLL_SECONDS)
        return time.monotonic() - program.began


def measure(testbed):
    """Returns medians in seconds. The programs alternate. The first run of each is discarded: its
    caches are cold."""
    times = {testbed.hello: [], testbed.game: []}
    for run in range(RUNS + 1):
        for path, measured in times.items():
            seconds = seconds_to_first_frame(testbed, path)
            if run > 0:
                measured.append(seconds)
    return {"start_hello": statistics.median(times[testbed.hello]),
            "start_game": statistics.median(times[testbed.game])}
