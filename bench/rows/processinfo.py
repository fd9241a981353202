"""What the system knows of a process."""

import os
import time



def processor_ticks(pid):
    """Processor time used so far, in clock ticks."""
    with open(f"/proc/{pid}/stat", encoding="utf-8") as stat:
        fields = stat.read().rpartition(")")[2].split()
    return int(fields[11]) + int(fields[12])


def wake_ups(pid):
    """How often any thread of the process has gone to sleep and come back."""
    total = 0
    for thread in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{thread}/status", encoding="utf-8") as status:
            total += sum(int(line.split()[1]) for line in status
                         if line.startswith("voluntary_ctxt_switches"))
    return total


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
