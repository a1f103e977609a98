"""How often an idle program wakes up."""

import time

from program import STARTUP_SECONDS, Program
from xtest import SPACE

# By then every animation has ended.
ANIMATION_SECONDS = 3
# By then the hint about full screen has gone, too.
HINT_SECONDS = 6
# From the start of a run until the snake hits the wall ahead.
RUN_SECONDS = 4
SECONDS = 10


def wakeups_per_second(program):
    before = program.wakeups()
    time.sleep(SECONDS)
    program.assert_running()
    return (program.wakeups() - before) / SECONDS


def measure(testbed):
    """Wakeups per second of the hello program, and of the game while no run is in progress."""
    measured = {}
    with Program(testbed.desktop, testbed.hello) as program:
        time.sleep(STARTUP_SECONDS + ANIMATION_SECONDS)
        measured["wakeups_hello"] = wakeups_per_second(program)
    with Program(testbed.desktop, testbed.game) as program:
        time.sleep(STARTUP_SECONDS + HINT_SECONDS)
        measured["wakeups_unstarted"] = wakeups_per_second(program)
        testbed.input.press(SPACE)
        time.sleep(1)
        assert testbed.shows_play(), "Space did not start a run"
        testbed.input.press(SPACE)
        time.sleep(ANIMATION_SECONDS)
        assert not testbed.shows_play(), "Space did not pause the run"
        measured["wakeups_paused"] = wakeups_per_second(program)
        testbed.input.press(SPACE)
        time.sleep(RUN_SECONDS + ANIMATION_SECONDS)
        assert not testbed.shows_play(), "the run has not ended"
        measured["wakeups_ended"] = wakeups_per_second(program)
    return measured
