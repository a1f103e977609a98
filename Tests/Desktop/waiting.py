"""Waiting for a condition by polling."""

import time

PATIENCE = 15  # seconds
POLL_INTERVAL = 0.02  # seconds


def eventually(condition, what, patience=PATIENCE):
    """Polls `condition` until it is true and returns its value; fails with `what` on a timeout."""
    deadline = time.monotonic() + patience
    while True:
        value = condition()
        if value:
            return value
        assert time.monotonic() < deadline, f"{what}: not within {patience} s"
        time.sleep(POLL_INTERVAL)
