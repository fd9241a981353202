"""Proportional memory, beside a bare window."""

import os

import desktop

from .bareprograms import DEFAULT_BACKEND, SOFTWARE_BACKEND, start_bare_window, start_palette
from .processinfo import proportional_memory_mb, wait_until_quiet
from .row import Row, medians
from .stages import FULL_HD

ROUNDS = 3


def rows(stages, notes):
    place = stages.desktop(FULL_HD)
    found = {"bare window": [], "bare window on OpenGL": [], "palette alone": [],
             "palette and overlay": []}
    others = qt_programs()
    if others:
        notes.append(f"memory: {others} other Qt programs run here and share their libraries' pages; "
                     "alone, every figure would be higher")
    for _ in range(ROUNDS):
        # One at a time: two would share the pages of their libraries.
        for name, backend in (("bare window", SOFTWARE_BACKEND),
                              ("bare window on OpenGL", DEFAULT_BACKEND)):
            program, window = start_bare_window(place, stages, backend)
            window()
            found[name].append(settled_memory(program))
            program.stop()
        program, window = start_palette(place, stages)
        window()
        found["palette alone"].append(settled_memory(program))
        desktop.Palette(place, program).start_drawing()
        found["palette and overlay"].append(settled_memory(program))
        program.stop()
    middle = medians(found, "memory of", "MB", notes)
    yield Row("proportional memory, palette alone, against a bare window", 1.5,
              middle["palette alone"] / middle["bare window"], "x")
    yield Row("... more with the overlay at 1920x1080", 50,
              middle["palette and overlay"] - middle["palette alone"], "MB")


def settled_memory(program):
    wait_until_quiet(program.pid, window_s=1.0)
    return proportional_memory_mb(program.pid)


def qt_programs():
    """How many programs on this machine have loaded Qt."""
    count = 0
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{pid}/maps", encoding="utf-8", errors="replace") as maps:
                count += "libQt6Core" in maps.read()
        except OSError:
            continue  # ended, or not ours to look into
    return count
