"""The programs that make up a desktop: X server, session bus, window manager, compositor, tray."""

import itertools
import os
import select
import shutil

from Xlib import X

from .waiting import wait_for

START_TIMEOUT_S = 30.0

_started = itertools.count()


class MissingTool(RuntimeError):
    """A program that the desktop needs is not installed."""


class NotStarted(RuntimeError):
    """A server ended, or hung, before it was ready."""


def tool(name):
    path = shutil.which(name)
    if not path:
        raise MissingTool(f"'{name}' is not installed; scripts/setup installs what the virtual "
                          "desktop needs")
    return path


def read_announcement(popen, pipe, what):
    """The first line that a server writes to a pipe once it is ready for clients."""
    text = ""
    while not text.endswith("\n"):
        ready, _, _ = select.select([pipe], [], [], START_TIMEOUT_S)
        part = os.read(pipe, 256).decode() if ready else ""
        text += part
        if not part:
            break
    os.close(pipe)
    if not text.endswith("\n"):
        raise NotStarted(f"{what} did not start (exit code {popen.poll()})")
    return text.strip()


def start_announcing(guard, command, what, **options):
    """Starts a server that announces itself on a pipe; "{fd}" in the command is its number."""
    reading, writing = os.pipe()
    popen = guard.start([part.format(fd=writing) for part in command], pass_fds=[writing],
                        **options)
    os.close(writing)
    return read_announcement(popen, reading, what)


def start_x_server(guard, size, log):
    """Starts an X server on a free display number; returns the name of its display.

    Let the server choose and it takes the lowest free number, without a lock file: one that
    another server may be giving up at this moment, and whose socket that one then removes. So we
    name a number far from everybody else's, and the lock file decides."""
    for number in _display_numbers():
        command = [tool("Xvfb"), f":{number}", "-displayfd", "{fd}", "-screen", "0",
                   f"{size[0]}x{size[1]}x24", "-nolisten", "tcp", "-noreset", "-dpi", "96",
                   "+extension", "RANDR"]
        try:
            return ":" + start_announcing(guard, command, "the X server", stdout=log, stderr=log)
        except NotStarted as error:
            failure = error
    raise failure


def _display_numbers():
    for _ in range(20):
        yield 1000 + (os.getpid() * 64 + next(_started)) % 50000


def start_session_bus(guard, env, folder, log):
    """Starts a session bus; returns its address."""
    command = [tool("dbus-daemon"), "--session", "--nofork", "--nopidfile",
               "--print-address={fd}", f"--address=unix:path={folder}/bus"]
    return start_announcing(guard, command, "the session bus", env=env, stdout=log, stderr=log)


class Companions:
    """Starts the programs around the tested one and waits until each has taken its office."""

    def __init__(self, guard, display, env, log):
        self._guard = guard
        self._display = display
        self._env = env
        self._log = log

    def start_window_manager(self):
        root = self._display.screen().root
        atom = self._display.get_atom("_NET_SUPPORTING_WM_CHECK")
        return self._start([tool("openbox"), "--sm-disable"], "the window manager",
                           lambda: root.get_full_property(atom, X.AnyPropertyType))

    def start_compositor(self):
        return self._start([tool("picom"), "--backend", "xrender", "--config", "/dev/null"],
                           "the compositor", self._owner("_NET_WM_CM_S0"))

    def start_tray(self):
        return self._start(
            [tool("trayer"), "--edge", "top", "--align", "right", "--widthtype", "request",
             "--height", "28", "--SetDockType", "true", "--SetPartialStrut", "true",
             "--distance", "6", "--tint", "0xffffff", "--transparent", "true", "--alpha", "40"],
            "the tray", self._owner("_NET_SYSTEM_TRAY_S0"))

    def _start(self, command, what, in_office):
        popen = self._guard.start(command, env=self._env, stdout=self._log, stderr=self._log)

        def settled():
            if popen.poll() is not None:
                raise NotStarted(f"{what} ended at once with {popen.returncode}")
            return in_office()

        wait_for(settled, f"{what} to start", START_TIMEOUT_S)
        return popen

    def _owner(self, selection):
        atom = self._display.get_atom(selection)
        return lambda: self._display.get_selection_owner(atom) != X.NONE


