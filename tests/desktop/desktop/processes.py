"""Child processes that never outlive their test, however the test ends."""

import ctypes
import os
import signal
import subprocess
import sys
import time

PR_SET_CHILD_SUBREAPER = 36
GUARD_SCRIPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "guard.py")


def adopt_orphans():
    """Makes this process the parent of every orphaned descendant, so that detached children
    (a program that restarts itself) can be found, waited for and ended."""
    ctypes.CDLL(None, use_errno=True).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def parents():
    """Process id -> parent process id, for every process but zombies."""
    found = {}
    for name in os.listdir("/proc"):
        if not name.isdigit():
            continue
        try:
            with open(f"/proc/{name}/stat", encoding="utf-8", errors="replace") as stat:
                state, parent = stat.read().rpartition(")")[2].split()[:2]
        except OSError:
            continue
        if state != "Z":
            found[int(name)] = int(parent)
    return found


def descendants(root):
    """Ids of all living descendants of process `root`."""
    table = parents()
    found, queue = [], [root]
    while queue:
        parent = queue.pop()
        children = [pid for pid, its_parent in table.items() if its_parent == parent]
        found += children
        queue += children
    return found


def end(pids, grace_s=3.0):
    """Asks the processes to end, then kills those that did not."""
    for number in (signal.SIGTERM, signal.SIGKILL):
        for pid in pids:
            try:
                os.kill(pid, number)
            except ProcessLookupError:
                pass
        deadline = time.monotonic() + grace_s
        while pids and time.monotonic() < deadline:
            reap()
            pids = [pid for pid in pids if pid in parents()]
            time.sleep(0.005)


def reap():
    """Collects ended children that nobody waits for through a Popen object."""
    for popen in list(Guard.started):
        popen.poll()
    known = {popen.pid for popen in Guard.started}
    for pid in [p for p in _zombies() if p not in known]:
        try:
            os.waitpid(pid, os.WNOHANG)
        except ChildProcessError:
            pass


def _zombies():
    me = str(os.getpid())
    for name in os.listdir("/proc"):
        if name.isdigit():
            try:
                with open(f"/proc/{name}/stat", encoding="utf-8", errors="replace") as stat:
                    state, parent = stat.read().rpartition(")")[2].split()[:2]
            except OSError:
                continue
            if state == "Z" and parent == me:
                yield int(name)


class Guard:
    """Ends everything and removes the folder, even when the test runner is killed.

    A watcher process holds the reading end of a pipe. When the runner goes, in whatever way, the
    pipe closes and the watcher ends the process groups it was told about."""

    started = []
    standing = []

    def __init__(self, folder):
        self._watcher = subprocess.Popen(
            [sys.executable, "-I", GUARD_SCRIPT, folder],
            stdin=subprocess.PIPE, start_new_session=True, text=True)
        self._own = [self._watcher.pid]
        Guard.standing.append(self)

    @property
    def pid(self):
        return self._watcher.pid

    def start(self, command, **options):
        """Starts a process in a group of its own and returns its Popen object."""
        popen = subprocess.Popen(command, stdin=subprocess.DEVNULL, start_new_session=True,
                                 **options)
        Guard.started.append(popen)
        self._own.append(popen.pid)
        self._watcher.stdin.write(f"{popen.pid}\n")
        self._watcher.stdin.flush()
        return popen

    def close(self):
        """Ends all that is still alive, but for what desktops beside this one have started; the
        watcher then removes the folder."""
        Guard.standing.remove(self)
        spared = {self._watcher.pid}
        for pid in [pid for guard in Guard.standing for pid in guard._own]:
            spared.update([pid, *descendants(pid)])
        end([pid for pid in descendants(os.getpid()) if pid not in spared])
        Guard.started[:] = [popen for popen in Guard.started if popen.poll() is None]
        self._watcher.stdin.close()
        self._watcher.wait()
