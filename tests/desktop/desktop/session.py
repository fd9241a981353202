"""A whole desktop of its own: nothing of the real one is seen, nothing is left behind."""

import contextlib
import os
import tempfile

from PIL import Image
from Xlib.display import Display

from .inputs import Keyboard, Pointer
from .monitors import set_monitors
from .plainwindow import PlainWindow
from .processes import Guard, adopt_orphans, descendants, end
from .program import Program
from .pulse import Pulse
from .screen import Screen, set_wallpaper
from .server import Companions, start_session_bus, start_x_server
from .waiting import wait_for
from .windows import Windows

WALLPAPER_COLOUR = (38, 70, 83)


class Desktop:
    """A virtual desktop, to be used in a `with` statement.

    size          pixels of the whole desktop
    monitors      None for one monitor, else a list of (x, y, width, height) that tile the desktop
    tray, compositor, window_manager   whether there is one
    language      the desktop's language, such as "zh_CN"
    wallpaper     a PIL picture; a plain colour without one
    """

    def __init__(self, size=(1280, 800), monitors=None, tray=True, compositor=True,
                 window_manager=True, language="zh_CN", wallpaper=None):
        self.size = size
        self._wanted = {"tray": tray, "compositor": compositor, "window_manager": window_manager}
        self._monitors = monitors
        self._wallpaper = wallpaper or Image.new("RGB", size, WALLPAPER_COLOUR)
        self.language = language
        self.programs = []
        self._opened = []
        self._companions = {}

    def __enter__(self):
        adopt_orphans()
        self.folder = tempfile.mkdtemp(prefix="dravelin-desktop-")
        self.guard = Guard(self.folder)
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def _start(self):
        self.home = os.path.join(self.folder, "home")
        for name in ("home", "tmp", "run"):
            os.makedirs(os.path.join(self.folder, name), mode=0o700)
        with open(os.path.join(self.folder, "desktop.log"), "ab") as log:
            self.name = start_x_server(self.guard, self.size, log)
            self._bus = start_session_bus(self.guard, self.env(), self.folder, log)
        self.display = Display(self.name)
        self.keyboard = Keyboard(self.display)
        self.pointer = Pointer(self.display, self.keyboard)
        self.screen = Screen(self.display)
        self.windows = Windows(self.display)
        set_wallpaper(self.display, self._wallpaper)
        if self._monitors:
            self.set_monitors(self._monitors)
        self._pulse = Pulse(self.name)
        for what in ("window_manager", "compositor", "tray"):
            if self._wanted[what]:
                self.start_companion(what)

    def close(self):
        """Ends every process of the desktop and removes its folder."""
        if hasattr(self, "_pulse"):
            self._pulse.stop()
        for window in self._opened:
            window.close()
        if hasattr(self, "display"):
            self.display.close()
        self.guard.close()

    def env(self, **extra):
        """The environment of a program on this desktop."""
        env = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "HOME": self.home,
            "USER": os.environ.get("USER", "tester"),
            "DISPLAY": getattr(self, "name", ""),
            "DBUS_SESSION_BUS_ADDRESS": getattr(self, "_bus", ""),
            "TMPDIR": os.path.join(self.folder, "tmp"),
            "XDG_RUNTIME_DIR": os.path.join(self.folder, "run"),
            "XDG_SESSION_TYPE": "x11",
            "LANG": f"{self.language}.UTF-8",
            # Any Debian has this one, whatever other locales were generated.
            "LC_CTYPE": "C.UTF-8",
            # Qt would write to the system's journal, since standard error is no terminal.
            "QT_FORCE_STDERR_LOGGING": "1",
            "NO_AT_BRIDGE": "1",
        }
        return {**env, **extra}

    def start_companion(self, what):
        """Starts "window_manager", "compositor" or "tray" and waits until it serves."""
        with open(os.path.join(self.folder, "desktop.log"), "ab") as log:
            companions = Companions(self.guard, self.display, self.env(), log)
            self._companions[what] = getattr(companions, f"start_{what}")()

    def stop_companion(self, what):
        popen = self._companions.pop(what)
        end([popen.pid])

    @contextlib.contextmanager
    def stillness(self):
        """While it lasts nothing happens on the desktop but what its programs do by themselves."""
        self._pulse.stop()
        try:
            yield
        finally:
            self._pulse = Pulse(self.name)

    def set_monitors(self, rectangles):
        """Divides the desktop into monitors; plugging and unplugging is calling it again."""
        set_monitors(self.name, rectangles)

    def start_program(self, executable, *arguments, **options):
        program = Program(self, executable, arguments, **options)
        self.programs.append(program)
        return program

    def open_window(self, title="Beneath", geometry=(100, 100, 400, 300), colour=(240, 240, 240),
                    picture=None):
        """Opens an ordinary window of the desktop that counts the clicks and keys it gets."""
        self._opened.append(PlainWindow(self, title, geometry, colour, picture))
        return self._opened[-1]

    def wait_for(self, condition, what, timeout=30.0):
        return wait_for(condition, what, timeout)

    def wait_for_window(self, what="the window", timeout=30.0, **wanted):
        return wait_for(lambda: self.windows.find(**wanted), f"{what} to appear", timeout)

    def log(self):
        """What the desktop's own programs wrote."""
        with open(os.path.join(self.folder, "desktop.log"), encoding="utf-8",
                  errors="replace") as log:
            return log.read()

    def other_processes(self):
        """Living descendants that are neither companions nor the guard."""
        known = {popen.pid for popen in Guard.started} | {self.guard.pid}
        return [pid for pid in descendants(os.getpid()) if pid not in known]
