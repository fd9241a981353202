#!/usr/bin/python3
"""Measures the program, on desktops of its own, and prints all goals in one table."""

import argparse
import os
import sys

from rows import REPOSITORY, canvas, idle, latency, machine, memory, samples, start
from rows.row import print_table
from rows.stages import Stages

# In this order: programs that run for another kind of row would share the pages of their libraries
# with those whose memory is measured.
KINDS = {"canvas": canvas, "start": start, "memory": memory, "latency": latency,
         "samples": samples, "idle": idle}


def arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    tools = os.path.join(REPOSITORY, "build", "bench", "bin")
    parser.add_argument("--program", default=os.path.join(tools, "dravelin"),
                        help="the program to measure (default: the bench build's)")
    parser.add_argument("--tools", default=tools, help="folder of the benchmark's own programs")
    parser.add_argument("--only", default=list(KINDS), type=lambda text: text.split(","),
                        help="kinds of rows, such as latency,idle (default: all)")
    options = parser.parse_args()
    unknown = set(options.only) - set(KINDS)
    if unknown:
        parser.error(f"no such rows: {', '.join(unknown)}; there are {', '.join(KINDS)}")
    return options


def main():
    options = arguments()
    about, table, notes = machine.description(), [], []
    with Stages(options.program, options.tools) as stages:
        for kind in (kind for kind in KINDS if kind in options.only):
            print(f"measuring: {kind}", file=sys.stderr)
            table += KINDS[kind].rows(stages, notes)
    about.append(machine.load("after"))
    print_table(table, sys.stdout)
    for heading, lines in (("Details", notes), ("Measured on", about)):
        print(f"\n{heading}", *lines, sep="\n  ")
    sys.exit(not all(row.met for row in table))


if __name__ == "__main__":
    main()
