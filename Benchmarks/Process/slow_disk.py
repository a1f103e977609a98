"""The longest interval between two pictures of a run, on disks that take long to flush."""

import pathlib
import sys
import tempfile

from forager import Forager, RunEnded
from paces import FLUSH_DELAYS

from home import Home

PACE = "Swift"
STEPS = 200
# Starting with empty settings, each is a personal best, which is stored at once.
FRUITS = 10
FRUIT_POINTS = 10
ATTEMPTS = 10


def longest_interval(testbed, delay):
    """Seconds between two steps of the snake; None if the run has ended too early."""
    with tempfile.TemporaryDirectory() as folder:
        home = Home(pathlib.Path(folder))
        with testbed.game_at(PACE, LD_PRELOAD=testbed.delayed_flush, FERNWICK_FLUSH_DELAY=delay,
                             **home.environment):
            forager = Forager(testbed)
            try:
                seen = [forager.step()]
                while len(seen) <= STEPS or forager.eaten < FRUITS:
                    seen.append(forager.step())
            except RunEnded:
                print(f"{delay} ms: the run ended with {forager.eaten} fruits", file=sys.stderr)
                return None
        best = home.preferences()[f"best-{PACE}"]
        assert best >= forager.eaten * FRUIT_POINTS, f"{forager.eaten} fruits, best {best}"
        return max(later - earlier for earlier, later in zip(seen, seen[1:]))


def measure(testbed):
    measured = {}
    for delay in FLUSH_DELAYS:
        attempts = (longest_interval(testbed, delay) for _ in range(ATTEMPTS))
        seconds = next(filter(None, attempts), None)
        assert seconds, f"{delay} ms: every run ended too early"
        measured[f"interval_{delay}"] = seconds
    return measured
