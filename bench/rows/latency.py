"""From the pointer's motion to the pixel on the composited screen, beside a bare X client."""

import math
import statistics
import subprocess

from .row import Row
from .stages import FULL_HD, MARKS, ULTRA_HD, hex_colour

ROUNDS = 10
MOTIONS = 104  # of each round; the probe leaves the first four out
STEP_PX = 16
PACE_US = 8000


class Latency:
    """What one pen took for each motion of all rounds, in milliseconds."""

    def __init__(self, name):
        self.name = name
        self.ms = []
        self.poll_ms = []

    @property
    def median(self):
        return statistics.median(self.ms)

    @property
    def percentile_99(self):
        return statistics.quantiles(self.ms, n=100)[-1]

    def __str__(self):
        return (f"{self.name}: median {self.median:.2f} ms, 99th percentile "
                f"{self.percentile_99:.2f} ms, {min(self.ms):.2f} to {max(self.ms):.2f} ms, "
                f"{len(self.ms)} motions, looked every {statistics.median(self.poll_ms):.2f} ms")


def rows(stages, notes):
    empty, full, bare = measure(stages, FULL_HD, notes, (0, MARKS))
    yield Row("motion to pixel, 1920x1080, 1,000 marks: median", 2, full.median, "ms")
    yield Row("... 99th percentile", 5, full.percentile_99, "ms")
    yield Row("... against a bare X client", 5, full.median / bare.median, "x")
    yield Row("... against an empty board", 1.2, full.median / empty.median, "x")
    full, _ = measure(stages, ULTRA_HD, notes, (MARKS,))
    yield Row("motion to pixel, 3840x2160, 1,000 marks: median", 3, full.median, "ms")


def measure(stages, size, notes, boards):
    """The latencies of the program on each board, and last that of the bare client. They take
    turns, so that what else the machine does meets all of them."""
    pens = [stages.with_marks(size, marks) for marks in boards]
    pens.append(stages.bare(size, pens[0].ink))
    names = [*(f"{marks} marks" for marks in boards), "bare X client"]
    found = [Latency(f"{size[0]}x{size[1]}, {name}") for name in names]
    probe = stages.tool("latency_probe")
    for number in range(ROUNDS):
        for stage, latency in zip(pens, found):
            draw_round(probe, stage, latency, number)
    notes.extend(str(latency) for latency in found)
    return found


def draw_round(probe, stage, latency, number):
    done = subprocess.run(
        [probe, hex_colour(stage.ink), str(PACE_US)], env=stage.desktop.env(), text=True,
        input=" ".join(f"{x} {y}" for x, y in wave(number, stage.desktop.size)),
        stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    if done.returncode:
        raise RuntimeError(f"{latency.name}: {done.stderr.strip()}")
    poll, *motions = (float(line) / 1000 for line in done.stdout.split())
    latency.poll_ms.append(poll)
    latency.ms += motions
    stage.undo()


def wave(number, size):
    """A stroke to the left, across the screen, that meets no other one's."""
    pitch = (size[1] - 200) / ROUNDS
    middle = 100 + pitch * (number + 0.5)
    return [(size[0] - 100 - STEP_PX * i, round(middle + pitch / 4 * math.sin(i / 5)))
            for i in range(MOTIONS + 1)]
