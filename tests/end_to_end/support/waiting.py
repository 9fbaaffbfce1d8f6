"""Waiting for something to become so, with a deadline instead of a guess."""

import time

PATIENCE = 60  # seconds; only a failure takes that long
_PAUSE = 0.05


def wait_until(probe, what, patience=PATIENCE):
    """Asks until the probe's answer is true, and returns that answer. A text of the same meaning, or a
    function that gives it, says what was waited for."""
    deadline = time.monotonic() + patience
    while True:
        answer = probe()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {patience} seconds for {what() if callable(what) else what}")
        time.sleep(_PAUSE)
