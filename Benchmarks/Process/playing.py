"""The game at play: its processor time, its memory, and how soon a key is to be seen."""

import itertools
import json
import random
import statistics
import subprocess
import time

from hands import DIRECTION_KEYS, SPACE
from paces import TICKS
from pixels import beside
from program import UNTIL_SHOWN, Program

PLAY_SECONDS = 20
MEMORY_SECONDS = 10
PRESSES = 100
LOOK_EVERY = 0.0002
# A turn that is not to be seen by then was lost.
TICKS_TO_WAIT = 4
STEPS_BETWEEN_LOOKS = 3
CIRCLE = "down", "left", "up", "right"


def processor_share(stage, pace):
    """Of one core, while a snake of 60 cells tours the board."""
    done = subprocess.run([stage.play, pace, str(PLAY_SECONDS)], env=stage.desktop.environment,
                          check=True, text=True, stdout=subprocess.PIPE)
    seen = json.loads(done.stdout)
    expected = PLAY_SECONDS / TICKS[pace]
    assert seen["running"] and 0.9 * expected < seen["steps"] < 1.1 * expected, seen
    assert 60 <= seen["cells"] < 70, seen
    return seen["used"] / seen["passed"]


class Player:
    """Goes round in small circles, from the start of a run on."""

    def __init__(self, stage):
        self._stage = stage
        self._head, self._direction = (14, 11), "right"
        stage.hands.press(SPACE)
        self._wait_for_step(time.monotonic() + 5, None)

    def turn(self, direction, timeout):
        """Presses a direction; the seconds until it is to be seen, None when it never is."""
        pressed = time.monotonic()
        self._stage.hands.press(DIRECTION_KEYS[direction])
        while self._direction != direction:
            if not self._wait_for_step(pressed + timeout, direction):
                return None
        return time.monotonic() - pressed

    def _wait_for_step(self, deadline, turned):
        """Until the snake has moved on; whether it has done so in time."""
        while time.monotonic() < deadline:
            for head, direction in self._places(turned):
                if self._stage.pixels.shows_head(head, direction):
                    self._head, self._direction = head, direction
                    return True
            time.sleep(LOOK_EVERY)
        return False

    def _places(self, turned):
        """Where the head may be next; later ones when we have been kept from looking."""
        corner = self._head
        for _ in range(STEPS_BETWEEN_LOOKS):
            if turned:
                head = corner
                for _ in range(STEPS_BETWEEN_LOOKS):
                    head = beside(head, turned)
                    yield head, turned
            corner = beside(corner, self._direction)
            yield corner, self._direction


def key_presses(stage, pace):
    """Seconds from each press to the pixels that show the turn, None for a lost press."""
    chance = random.Random(1)
    tick = TICKS[pace]
    with stage.game_at(pace):
        player = Player(stage)
        seen = []
        for direction in itertools.islice(itertools.cycle(CIRCLE), PRESSES):
            # Any moment of a tick is as likely as any other.
            time.sleep(chance.uniform(0, tick))
            seen.append(player.turn(direction, TICKS_TO_WAIT * tick))
            if seen[-1] is None:
                break
    return seen + [None] * (PRESSES - len(seen))


def memory(stage, path, plays):
    """Resident bytes and the program's share of them, ten seconds after the window has come up."""
    with Program(stage.desktop, path) as program:
        time.sleep(UNTIL_SHOWN)
        if plays:
            player = Player(stage)
            deadline = time.monotonic() + MEMORY_SECONDS
            for direction in itertools.cycle(CIRCLE):
                assert player.turn(direction, 1) is not None, "the snake turns"
                if time.monotonic() > deadline:
                    break
        else:
            time.sleep(MEMORY_SECONDS)
        program.assert_running()
        return program.memory()


def measure(stage):
    measured = {}
    for name, path, plays in (("hello", stage.hello, False), ("game", stage.game, True)):
        runs = [memory(stage, path, plays) for _ in range(3)]
        measured[f"resident_{name}"] = statistics.median(run[0] for run in runs)
        measured[f"share_{name}"] = statistics.median(run[1] for run in runs)
    for pace, tick in TICKS.items():
        measured[f"processor_{pace}"] = processor_share(stage, pace)
        presses = key_presses(stage, pace)
        seen = [each for each in presses if each is not None]
        measured[f"presses_{pace}"] = len(presses)
        measured[f"lost_{pace}"] = presses.count(None)
        measured[f"key_median_{pace}"] = statistics.median(seen)
        measured[f"key_worst_{pace}"] = max(seen)
    return measured
