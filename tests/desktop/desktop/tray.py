"""The program's icon in the system tray, and its menu."""

from .inputs import RIGHT
from .waiting import wait_for

HIDE, EXIT = 0, 1
ENTRIES = 2


class TrayIcon:
    """Handles the tray icon of one program as a hand does."""

    def __init__(self, desktop, program):
        self._desktop = desktop
        self._program = program

    @property
    def window(self):
        """The icon, once it stands in the tray."""
        return wait_for(self._in_tray, "the tray icon to appear")

    def open_menu(self):
        """Opens the menu and returns its window."""
        before = set(self._program.windows())
        self._desktop.pointer.click(*self.window.centre, button=RIGHT)

        def opened():
            new = [window for window in self._program.windows() if window not in before]
            return new[0] if new else None
        return wait_for(opened, "the tray menu to open")

    def choose(self, entry):
        """Clicks HIDE (which also shows) or EXIT in the menu."""
        menu = self.open_menu()
        rect = menu.geometry
        self._desktop.pointer.click(rect.x + rect.width // 2,
                                    rect.y + rect.height * (2 * entry + 1) // (2 * ENTRIES))
        wait_for(lambda: menu not in self._program.windows(), "the tray menu to close")

    def _in_tray(self):
        panels = self._desktop.windows.all(wm_class=lambda names: "trayer" in names)
        for panel in (window.geometry for window in panels):
            for window in self._program.windows():
                x, y = window.centre
                if (panel.x <= x < panel.x + panel.width and panel.y <= y < panel.y + panel.height
                        and window.geometry.height <= panel.height):
                    return window
        return None
