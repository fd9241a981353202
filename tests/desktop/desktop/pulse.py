"""Keeps the window manager awake.

Openbox may read an event while it handles the one before, and then sleeps until the next comes. On
a desktop in use one always comes soon; on ours, where nothing moves while a test waits, a window
could stay unmapped or covered for ever. So something changes all the time here, too."""

import threading

from Xlib import Xatom, error
from Xlib.display import Display

INTERVAL_S = 0.05


class Pulse:
    """Changes a property of the root window, which nobody reads, until it is stopped."""

    def __init__(self, display_name):
        self._display = Display(display_name)
        self._stopped = threading.Event()
        self._thread = threading.Thread(target=self._beat, daemon=True)
        self._thread.start()

    def stop(self):
        self._stopped.set()
        self._thread.join()
        self._display.close()

    def _beat(self):
        root = self._display.screen().root
        atom = self._display.get_atom("_DRAVELIN_TEST_PULSE")
        count = 0
        while not self._stopped.wait(INTERVAL_S):
            count += 1
            try:
                root.change_property(atom, Xatom.CARDINAL, 32, [count])
                self._display.flush()
            except (error.ConnectionClosedError, OSError):
                return  # the server went first
