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


def wait_for_background(testbed):
    # The X server removes the previous program's window shortly after the process has exited.
    eventually(lambda: shows_background(testbed), "only the root window is visible")


def first_frame(testbed, path):
    """Seconds until the first frame, and the CPU time that the program has used by then."""
    with Program(testbed.desktop, path) as program:
        while not testbed.pixels.shows_nowhere(BACKGROUND):
            assert time.monotonic() - program.began < TIMEOUT, f"{path} does not fill the screen"
            time.sleep(POLL_SECONDS)
        return time.monotonic() - program.began, program.cpu_time()


def measure(testbed):
    """Returns medians in seconds. The programs alternate. The first run of each is discarded: its
    caches are cold."""
    runs = {"hello": [], "game": []}
    for run in range(RUNS + 1):
        for name, measured in runs.items():
            wait_for_background(testbed)
            seen = first_frame(testbed, getattr(testbed, name))
            if run > 0:
                measured.append(seen)
    medians = {name: [statistics.median(each) for each in zip(*seen)]
               for name, seen in runs.items()}
    return {f"{figure}_{name}": value for name, values in medians.items()
            for figure, value in zip(("start", "start_cpu"), values)}
