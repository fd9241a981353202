"""An ordinary window on the desktop, such as the document that somebody annotates."""

from PIL import Image
from Xlib import X
from Xlib.display import Display

from .screen import put_picture
from .waiting import wait_for
from .windows import Window


class PlainWindow:
    """Shows a picture and remembers the clicks and keys that it was given.

    It has a connection of its own, as any other program has."""

    def __init__(self, desktop, title, geometry, colour, picture):
        x, y, width, height = geometry
        self._display = Display(desktop.name)
        screen = self._display.screen()
        self._picture = picture or Image.new("RGB", (width, height), colour)
        self._handle = screen.root.create_window(
            x, y, width, height, 0, screen.root_depth, X.InputOutput, X.CopyFromParent,
            event_mask=X.ButtonPressMask | X.KeyPressMask | X.ExposureMask | X.StructureNotifyMask)
        self._handle.set_wm_name(title)
        self._handle.set_wm_class("plain", "Plain")
        self._handle.set_wm_normal_hints(flags=1, min_width=0, min_height=0)
        self._fill(screen, width, height)
        wait_for(self._appear, f"the window {title!r} to appear")
        self._clicks, self._keys = [], []

    def _appear(self):
        """Asks until it is granted: a window manager that has only just started may lose a wish."""
        if self.window.visible:
            return True
        self._handle.map()
        self._display.sync()
        return False

    def _fill(self, screen, width, height):
        # As its background pixmap, the server itself repaints the picture.
        pixmap = screen.root.create_pixmap(width, height, screen.root_depth)
        put_picture(self._display, pixmap, self._picture.resize((width, height)))
        self._handle.change_attributes(background_pixmap=pixmap)
        pixmap.free()

    @property
    def window(self):
        return Window(self._display, self._handle.id)

    @property
    def clicks(self):
        """(x, y, button) of every press so far, in window pixels."""
        self._collect()
        return list(self._clicks)

    @property
    def keys(self):
        """Key codes of every key press so far."""
        self._collect()
        return list(self._keys)

    def move(self, x, y):
        self._handle.configure(x=x, y=y)
        self._display.sync()

    def close(self):
        self._display.close()

    def _collect(self):
        while self._display.pending_events():
            event = self._display.next_event()
            if event.type == X.ButtonPress:
                self._clicks.append((event.event_x, event.event_y, event.detail))
            elif event.type == X.KeyPress:
                self._keys.append(event.detail)
