"""A player that looks for the fruit, for benchmarks that need a run in which the snake eats."""

import heapq
import time
from collections import deque

from board import COLUMNS, ROWS
from gameplay import POLL_SECONDS
from pixels import VECTORS, neighbour
from xtest import DIRECTION_KEYS, SPACE

OPPOSITE = {"up": "down", "down": "up", "left": "right", "right": "left"}
# What it costs, in steps, to enter a cell from which the next step must turn: a turn that comes
# late would end the run.
FORCED_TURN_COST = 20
# Several times what the slowest disk measured delays a step by.
TIMEOUT_SECONDS = 10

class RunEnded(Exception):
    """The snake does not move any more."""


def ways_to_turn(direction):
    return [each for each in VECTORS if each != OPPOSITE[direction]]


def distance(cell, other):
    return abs(cell[0] - other[0]) + abs(cell[1] - other[1])


def is_free(cell, taken):
    return 0 <= cell[0] < COLUMNS and 0 <= cell[1] < ROWS and cell not in taken


class Forager:
    """Starts a run. Each `step` waits for the snake to move and presses the next key."""

    def __init__(self, testbed):
        self._testbed = testbed
        self._direction = "right"
        # Head first.
        self._snake = deque((x, 11) for x in (14, 13, 12, 11))
        self._fruit = None
        self._pressed = None
        self.eaten = 0
        testbed.input.press(SPACE)

    def step(self):
        """Returns when the next step was seen (time.monotonic())."""
        seen = self._wait_for_move()
        if self._snake[0] == self._fruit:
            self.eaten += 1
        else:
            self._snake.pop()
        self._fruit = self._testbed.pixels.fruit()
        self._steer()
        return seen

    def _wait_for_move(self):
        deadline = time.monotonic() + TIMEOUT_SECONDS
        while time.monotonic() < deadline:
            for direction in ways_to_turn(self._direction):
                head = neighbour(self._snake[0], direction)
                if self._testbed.pixels.shows_head(head, direction):
                    self._snake.appendleft(head)
                    self._direction = direction
                    return time.monotonic()
            time.sleep(POLL_SECONDS)
        raise RunEnded

    def _steer(self):
        # A key that came too late for this step turns the snake at the next one.
        is_late = self._pressed not in (None, self._direction)
        self._pressed = None
        if is_late:
            return
        direction = self._first_direction()
        if direction != self._direction:
            self._pressed = direction
            self._testbed.input.press(DIRECTION_KEYS[direction])

    def _first_direction(self):
        """The first step of the cheapest way to the fruit, found by A*; straight ahead if there is
        none."""
        taken = set(self._snake)
        reached = set()
        waiting = [(0, 0, self._snake[0], self._direction, None)] if self._fruit else []
        while waiting:
            _, cost, cell, direction, first = heapq.heappop(waiting)
            if cell == self._fruit:
                return first
            if (cell, direction) in reached:
                continue
            reached.add((cell, direction))
            for turned in ways_to_turn(direction):
                following = neighbour(cell, turned)
                if not is_free(following, taken):
                    continue
                forced = not is_free(neighbour(following, turned), taken)
                total = cost + 1 + forced * FORCED_TURN_COST
                heapq.heappush(waiting, (total + distance(following, self._fruit), total, following,
                                         turned, first or turned))
        return self._direction
