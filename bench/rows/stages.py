"""The pens that are measured, each on a desktop of its own, so that they can take turns."""

import contextlib
import os

import desktop

from . import board
from .processinfo import wait_until_quiet

FULL_HD, ULTRA_HD = (1920, 1080), (3840, 2160)
MARKS = 1000
PEN_WIDTH_PX = 3


class ProgramStage:
    """The real program, with a pen in hand whose colour no mark on the board has."""

    def __init__(self, place, executable, marks):
        self.desktop = place
        self.program = place.start_program(
            desktop.install(executable, os.path.join(place.folder, "app")))
        self.palette = desktop.Palette(place, self.program)
        self.palette.start_drawing()
        board.fill(self, marks)
        self.ink = self.palette.dye(lambda seen: seen[1] > max(seen[0], seen[2]) + 60)
        wait_until_quiet(self.program.pid)

    def undo(self):
        self.palette.click("history")
        wait_until_quiet(self.program.pid, window_s=0.1)


class BareStage:
    """The least that a pen can be."""

    def __init__(self, place, executable, ink):
        self.desktop = place
        self.ink = ink
        self.program = place.start_program(executable, hex_colour(ink), str(PEN_WIDTH_PX))
        self.program.wait_for_log("ready")

    def undo(self):
        """What was drawn stays: nobody draws there again."""


class Stages(contextlib.ExitStack):
    """Sets each stage up when it is first asked for, and keeps it."""

    def __init__(self, program, tools):
        super().__init__()
        self._program = program
        self.tools = tools
        self._stages = {}

    def with_marks(self, size, marks):
        return self._stage(("program", size, marks),
                           lambda place: ProgramStage(place, self._program, marks))

    def bare(self, size, ink):
        return self._stage(("bare", size, ink),
                           lambda place: BareStage(place, self.tool("bare_pen"), ink))

    def desktop(self, size):
        """A desktop without anything on it."""
        return self._stage(("nothing", size), lambda place: place)

    def tool(self, name):
        path = os.path.join(self.tools, name)
        if not os.path.exists(path):
            raise FileNotFoundError(f"{path} is not built; scripts/bench builds it")
        return path

    @property
    def program(self):
        return self._program

    def _stage(self, key, set_up):
        if key not in self._stages:
            place = self.enter_context(desktop.Desktop(size=key[1]))
            self._stages[key] = set_up(place)
        return self._stages[key]


def hex_colour(colour):
    return "".join(f"{channel:02x}" for channel in colour)
