"""CPU time, memory and key-press latency of the game during a run."""

import itertools
import json
import random
import statistics
import subprocess
import time

from paces import TICKS
from pixels import neighbour
from program import STARTUP_SECONDS, Program
from xtest import DIRECTION_KEYS, SPACE

PLAY_SECONDS = 20
MEMORY_SECONDS = 10
PRESSES = 100
POLL_SECONDS = 0.0002
# A turn that is not visible after so many ticks counts as lost.
TIMEOUT_TICKS = 4
# How many steps the snake may make between two polls.
MISSED_STEPS = 3
CIRCLE = "down", "left", "up", "right"


def cpu_share(testbed, pace):
    """CPU time as a share of one core, while a snake of 60 cells circles the board."""
    done = subprocess.run([testbed.play, pace, str(PLAY_SECONDS)], check=True, text=True,
                          env=testbed.desktop.environment, stdout=subprocess.PIPE)
    seen = json.loads(done.stdout)
    expected = PLAY_SECONDS / TICKS[pace]
    assert seen["running"] and 0.9 * expected < seen["steps"] < 1.1 * expected, seen
    assert 60 <= seen["cells"] < 70, seen
    return seen["used"] / seen["passed"]


class Player:
    """Starts a run and steers the snake in small circles."""

    def __init__(self, testbed):
        self._testbed = testbed
        self._head, self._direction = (14, 11), "right"
        testbed.input.press(SPACE)
        self._wait_for_step(time.monotonic() + 5, None)

    def turn(self, direction, timeout):
        """Presses a direction key; returns the seconds until the turn is visible, or None."""
        pressed = time.monotonic()
        self._testbed.input.press(DIRECTION_KEYS[direction])
        while self._direction != direction:
            if not self._wait_for_step(pressed + timeout, direction):
                return None
        return time.monotonic() - pressed

    def _wait_for_step(self, deadline, turned):
        """Polls until the snake has moved; returns whether it did before the deadline."""
        while time.monotonic() < deadline:
            for head, direction in self._possible_heads(turned):
                if self._testbed.pixels.shows_head(head, direction):
                    self._head, self._direction = head, direction
                    return True
            time.sleep(POLL_SECONDS)
        return False

    def _possible_heads(self, turned):
        """Cells and directions that the head may have after one step, or after a few more."""
        corner = self._head
        for _ in range(MISSED_STEPS):
            if turned:
                head = corner
                for _ in range(MISSED_STEPS):
                    head = neighbour(head, turned)
                    yield head, turned
            corner = neighbour(corner, self._direction)
            yield corner, self._direction


def key_presses(testbed, pace):
    """Seconds from each key press until the turn is visible; None for a lost one."""
    generator = random.Random(1)
    tick = TICKS[pace]
    with testbed.game_at(pace):
        player = Player(testbed)
        seen = []
        for direction in itertools.islice(itertools.cycle(CIRCLE), PRESSES):
            # Spread the key presses evenly over the tick.
            time.sleep(generator.uniform(0, tick))
            seen.append(player.turn(direction, TIMEOUT_TICKS * tick))
            if seen[-1] is None:
                break
    return seen + [None] * (PRESSES - len(seen))


def memory(testbed, path, plays):
    """Resident and proportional set size in bytes after ten seconds."""
    with Program(testbed.desktop, path) as program:
        time.sleep(STARTUP_SECONDS)
        if plays:
            player = Player(testbed)
            deadline = time.monotonic() + MEMORY_SECONDS
            for direction in itertools.cycle(CIRCLE):
                assert player.turn(direction, 1) is not None, "the snake does not turn"
                if time.monotonic() > deadline:
                    break
        else:
            time.sleep(MEMORY_SECONDS)
        program.assert_running()
        return program.memory()


def measure(testbed):
    measured = {}
    for name, path, plays in (("hello", testbed.hello, False), ("game", testbed.game, True)):
        runs = [memory(testbed, path, plays) for _ in range(3)]
        measured[f"resident_{name}"] = statistics.median(run[0] for run in runs)
        measured[f"share_{name}"] = statistics.median(run[1] for run in runs)
    for pace in TICKS:
        measured[f"cpu_{pace}"] = cpu_share(testbed, pace)
        presses = key_presses(testbed, pace)
        seen = [each for each in presses if each is not None]
        measured[f"presses_{pace}"] = len(presses)
        measured[f"lost_{pace}"] = presses.count(None)
        measured[f"key_median_{pace}"] = statistics.median(seen)
        measured[f"key_worst_{pace}"] = max(seen)
    return measured
