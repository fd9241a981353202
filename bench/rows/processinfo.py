"""What the system knows of a process."""

import os
import time


def processor_ticks(pid):
    """Processor time used so far, in clock ticks."""
    with open(f"/proc/{pid}/stat", encoding="utf-8") as stat:
        fields = stat.read().rpartition(")")[2].split()
    return int(fields[11]) + int(fields[12])


def wake_ups(pid):
    """Thread -> how often it has gone to sleep so far, which it does after each wake-up."""
    found = {}
    for thread in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{thread}/status", encoding="utf-8") as status:
            found[thread] = next(int(line.split()[1]) for line in status
                                 if line.startswith("voluntary_ctxt_switches"))
    return found


def proportional_memory_mb(pid):
    with open(f"/proc/{pid}/smaps_rollup", encoding="utf-8") as rollup:
        return next(int(line.split()[1]) for line in rollup if line.startswith("Pss:")) / 1024


def wait_until_quiet(pid, window_s=0.5, timeout_s=120.0):
    """Waits until the process has used no processor time for a while."""
    deadline = time.monotonic() + timeout_s
    before = processor_ticks(pid)
    while time.monotonic() < deadline:
        time.sleep(window_s)
        now = processor_ticks(pid)
        if now == before:
            return
        before = now
    raise TimeoutError(f"process {pid} is still busy after {timeout_s:g} s")
