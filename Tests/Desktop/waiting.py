"""Waiting for a condition by polling."""

import time

TIMEOUT = 15  # seconds
POLL_INTERVAL = 0.02  # seconds


def eventually(condition, what, timeout=TIMEOUT, interval=POLL_INTERVAL):
    """Polls `condition` until it is true and returns its value; fails with `what` on a timeout."""
    deadline = time.monotonic() + timeout
    while True:
        value = condition()
        if value:
            return value
        assert time.monotonic() < deadline, f"{what}: not within {timeout} s"
        time.sleep(interval)
