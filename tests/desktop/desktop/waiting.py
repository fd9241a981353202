"""Waiting on conditions: the only way a desktop test lets time pass."""

import time

DEFAULT_TIMEOUT_S = 30.0
POLL_INTERVAL_S = 0.01


class WaitTimeout(AssertionError):
    """A condition did not come true in time; the message says which."""


def wait_for(condition, what, timeout=DEFAULT_TIMEOUT_S, interval=POLL_INTERVAL_S):
    """Polls `condition` until it is truthy and returns its value.

    `what` completes the sentence "waited for ...". A condition may raise AssertionError or
    LookupError while it is not true yet; the last such error becomes part of the message.
    """
    deadline = time.monotonic() + timeout
    while True:
        last = None
        try:
            value = condition()
            if value:
                return value
        except (AssertionError, LookupError) as error:
            last = error
        if time.monotonic() > deadline:
            detail = f" (last: {last})" if last else ""
            raise WaitTimeout(f"waited {timeout:g} s for {what}{detail}")
        time.sleep(interval)
