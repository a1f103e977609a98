"""Waiting for what is to happen, by looking again and again."""

import time

PATIENCE = 15
PAUSE_BETWEEN_LOOKS = 0.02


def eventually(condition, what, patience=PATIENCE):
    """What `condition()` returns as soon as it is true; fails with `what` when it stays untrue."""
    deadline = time.monotonic() + patience
    while True:
        seen = condition()
        if seen:
            return seen
        assert time.monotonic() < deadline, f"{what}: not within {patience} s"
        time.sleep(PAUSE_BETWEEN_LOOKS)
