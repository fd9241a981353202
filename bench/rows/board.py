"""Fills the board of the real program with ordinary marks, drawn with the real pointer."""

import math
import random
import re

from .processinfo import wait_until_quiet

SAMPLES = 100
STEP_PX = 5.0
TURN = 0.35  # radians at most, from one sample to the next
# Marks keep away from the edges, where the tray and the palette stand.
LEFT, TOP, RIGHT, BOTTOM = 10, 60, 150, 10
# A press on a mark would take hold of it. So marks begin on a lattice, column after column, and go
# to the left, where all columns are full; what is right of the last one stays free.
ROWS = 25
CLEARANCE_PX = 12
# The log of the program names each mark that it takes back or brings back.
UNDONE = re.compile(r'撤销添加操作，移除元素 ID: "(\{[^}]*\})"')
REDONE = re.compile(r'重做添加操作，添加元素 ID: "(\{[^}]*\})"')
TAPS = 100  # between two looks at the log


def stroke(number, marks, size):
    """About 100 samples, some hundred pixels long; another number gives another stroke."""
    chance = random.Random(number)
    start, bottom = _start(number, marks, size), size[1] - BOTTOM
    x, y = start
    direction, turn = chance.uniform(0.6, 1.4) * math.pi, 0.0
    points = [start]
    while len(points) < SAMPLES:
        turn = max(-TURN, min(TURN, turn + chance.uniform(-TURN, TURN) / 4))
        direction += turn
        x = max(LEFT, min(start[0] - CLEARANCE_PX, x + STEP_PX * math.cos(direction)))
        y = max(TOP, min(bottom, y + STEP_PX * math.sin(direction)))
        points.append((round(x), round(y)))
    return points


def _start(number, marks, size):
    column, row = divmod(number, ROWS)
    columns = math.ceil(marks / ROWS)
    return (LEFT + round((column + 1) * (size[0] - LEFT - RIGHT) / columns),
            TOP + round((row + 0.5) * (size[1] - TOP - BOTTOM) / ROWS))


def fill(stage, marks):
    """Draws so many marks, the last quarter of them translucent, and sees that all are there."""
    for number in range(marks):
        if number == marks * 3 // 4:
            stage.palette.choose("pen", "highlighter")
        _draw(stage.desktop.pointer, stroke(number, marks, stage.desktop.size))
    if marks:
        stage.palette.choose("pen", "pen")
        _expect(stage, marks, "Ctrl+Z", UNDONE)
        _expect(stage, marks, "Ctrl+Y", REDONE)


def _expect(stage, marks, keys, told):
    """Presses keys until the log tells of no more marks, and counts those it has told of."""
    before, found = -1, 0
    while found > before:
        stage.desktop.keyboard.tap(*[keys] * TAPS)
        wait_until_quiet(stage.program.pid, window_s=0.2)
        before, found = found, len(set(told.findall(stage.program.log())))
    if found != marks:
        raise RuntimeError(f"{marks} marks were drawn, but {keys} found {found} on the board")


def _draw(pointer, points):
    pointer.move(*points[0])
    pointer.press()
    pointer.sweep(points[1:])
    pointer.release()
