"""What the program does while nobody does anything."""

import time

from Xlib.ext import damage

from .processinfo import processor_ticks, wait_until_quiet, wake_ups
from .row import Row
from .stages import FULL_HD, MARKS

# Longer than the half minute after which Qt looks whether its cached pictures are still needed. It
# does so a few times after the last change, and then no more.
WATCHED_S = 35
WATCHES = 5


def rows(stages, notes):
    stage = stages.with_marks(FULL_HD, MARKS)
    place, program = stage.desktop, stage.program
    place.pointer.move(place.size[0] // 2, place.size[1] // 2)
    wait_until_quiet(program.pid, window_s=2.0)
    place.display.damage_query_version()
    windows = program.windows()
    for window in windows:
        window.handle.damage_create(damage.DamageReportRawRectangles)
    seen = []
    with place.stillness():
        while len(seen) < WATCHES and not (len(seen) > 1 and clean(seen[-1]) and clean(seen[-2])):
            seen.append(watch(place.display, program.pid))
    notes.append(f"idle: {len(windows)} windows and all threads watched for {WATCHED_S} s at a "
                 f"time until two were clean; ticks, wake-ups, repaints: {seen}")
    ticks, wakes, repaints = (max(figures) for figures in zip(*seen[-2:]))
    yield Row("idle with 1,000 marks: processor time", 0, ticks / WATCHED_S, "%")
    yield Row("... timers and other wake-ups", 0, wakes)
    yield Row("... repaints", 0, repaints)


def clean(figures):
    return not any(figures)


def watch(display, pid):
    """Processor ticks, wake-ups and repaints within the time."""
    time.sleep(1)  # what the desktop's own last doings set off
    damages(display)
    ticks, before = processor_ticks(pid), wake_ups(pid)
    time.sleep(WATCHED_S)
    wakes = sum(count - before.get(thread, 0) for thread, count in wake_ups(pid).items())
    return processor_ticks(pid) - ticks, wakes, damages(display)


def damages(display):
    """How many changes of watched windows have been told since it was last asked."""
    display.sync()
    events = [display.next_event() for _ in range(display.pending_events())]
    return sum(isinstance(event, damage.DamageNotify) for event in events)
