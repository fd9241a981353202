"""What the program does while nobody does anything."""

import time

from Xlib.ext import damage

from .processinfo import processor_ticks, wait_until_quiet, wake_ups
from .row import Row
from .stages import FULL_HD, MARKS

WATCHED_S = 10


def rows(stages, notes):
    stage = stages.with_marks(FULL_HD, MARKS)
    place, pid = stage.desktop, stage.program.pid
    place.pointer.move(place.size[0] // 2, place.size[1] // 2)
    wait_until_quiet(pid, window_s=2.0)
    display = place.display
    display.damage_query_version()
    windows = stage.program.windows()
    watches = [window.handle.damage_create(damage.DamageReportRawRectangles) for window in windows]
    with place.stillness():
        time.sleep(1)  # what the last of the desktop's own doings set off
        damages(display)
        ticks, wakes = processor_ticks(pid), wake_ups(pid)
        time.sleep(WATCHED_S)
        ticks, wakes = processor_ticks(pid) - ticks, wake_ups(pid) - wakes
        repaints = damages(display)
    for watch in watches:
        display.damage_destroy(watch)
    notes.append(f"idle: watched {len(windows)} windows and all threads for {WATCHED_S} s")
    yield Row("idle with 1,000 marks: processor time", 0, ticks / WATCHED_S, "%")
    yield Row("... timers and other wake-ups", 0, wakes)
    yield Row("... repaints", 0, repaints)


def damages(display):
    """How many changes of watched windows have been told since it was last asked."""
    display.sync()
    events = [display.next_event() for _ in range(display.pending_events())]
    return sum(isinstance(event, damage.DamageNotify) for event in events)
