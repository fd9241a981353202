"""Starts the real program and the bare window that it is compared with."""

import os

import desktop

# The program chooses the software scene graph where OpenGL is not accelerated; the bare window is
# told to.
SOFTWARE_BACKEND = {"QT_QUICK_BACKEND": "software", "QSG_RENDER_LOOP": "basic"}
DEFAULT_BACKEND = {}


def start_palette(place, stages):
    """The program, and a function that waits for its palette."""
    program = place.start_program(
        desktop.install(stages.program, os.path.join(place.folder, "app")))
    return program, lambda: desktop.Palette(place, program).window


def start_bare_window(place, stages, backend):
    """The bare window's program, and a function that waits for its window."""
    program = place.start_program(stages.tool("bare_window"), env=backend)
    return program, lambda: program.window(title="Bare window")
