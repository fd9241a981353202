"""The canvas by itself, without a window: what canvas_bench measures."""

import subprocess
import sys

from .row import Row


def rows(stages, notes):
    bench = stages.tool("canvas_bench")
    # Its log of single benchmarks goes by while it works; the goals come last.
    with subprocess.Popen([bench], text=True, stdout=subprocess.PIPE) as popen:
        for line in popen.stdout:
            fields = line.rstrip("\n").split("\t")
            if len(fields) == 5:
                what, direction, bound, measured, unit = fields
                yield Row(what, float(bound), float(measured), unit, direction == ">=")
            else:
                sys.stderr.write(line)
    if popen.returncode:
        raise RuntimeError(f"canvas_bench ended with {popen.returncode}")
