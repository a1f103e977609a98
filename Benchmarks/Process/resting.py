"""How often a program wakes the processor while nothing happens in it."""

import time

from hands import SPACE
from program import UNTIL_SHOWN, Program

# Every animation is over after this time.
UNTIL_STILL = 3
# From the start of a run to the wall ahead.
UNTIL_ENDED = 4
SECONDS = 10


def wakeups_per_second(program):
    before = program.wakeups()
    time.sleep(SECONDS)
    program.assert_running()
    return (program.wakeups() - before) / SECONDS


def measure(stage):
    """Wakeups a second of the hello window and of the game in its three states of rest."""
    measured = {}
    with Program(stage.desktop, stage.hello) as program:
        time.sleep(UNTIL_SHOWN + UNTIL_STILL)
        measured["wakeups_hello"] = wakeups_per_second(program)
    with Program(stage.desktop, stage.game) as program:
        time.sleep(UNTIL_SHOWN + UNTIL_STILL)
        measured["wakeups_unstarted"] = wakeups_per_second(program)
        stage.hands.press(SPACE)
        time.sleep(1)
        assert stage.shows_play(), "the run moves"
        stage.hands.press(SPACE)
        time.sleep(UNTIL_STILL)
        assert not stage.shows_play(), "the run is paused"
        measured["wakeups_paused"] = wakeups_per_second(program)
        stage.hands.press(SPACE)
        time.sleep(UNTIL_ENDED + UNTIL_STILL)
        assert not stage.shows_play(), "the run is over"
        measured["wakeups_ended"] = wakeups_per_second(program)
    return measured
