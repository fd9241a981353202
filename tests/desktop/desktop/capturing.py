"""What tests of screenshots and recordings share: a folder, a file browser, the windows' buttons."""

import os

from .browser import Browser
from .case import DesktopTestCase
from .palette import Palette
from .screen import near
from .windows import Rect

ACCENT = (242, 80, 23)
# From a selection's bottom to the buttons' upper edge, where no letter is in the way.
BUTTON_DROP = 12
# From a selection's right edge to the middle of each button, in Chinese.
FINISH, CLOSE_SHOT, OPEN_FOLDER = 30, 85, 153
START, CLOSE_PANEL = 43, 111


def store_settings(home, **values):
    """Makes these the user's settings, before the program starts."""
    folder = os.path.join(home, ".config", "korvath")
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, "settings.conf"), "w", encoding="utf-8") as file:
        file.write("[General]\n" + "".join(f"{key}={value}\n" for key, value in values.items()))


class CaptureTestCase(DesktopTestCase):
    """Captures go to `self.folder`. A file browser stands by that only notes what it opens."""

    scale = 1

    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.home, "课件 recordings #1")
        self.browser = Browser(self.desktop.folder)

    def launch(self, folder=None, **env):
        store_settings(self.desktop.home, screenSavePath=folder or self.folder)
        self.follow(self.start(scale=self.scale, env={"PATH": self.browser.path, **env}))

    def follow(self, program):
        self.program = program
        self.palette = Palette(self.desktop, program, self.scale)

    @property
    def preset(self):
        """The selection that a window opens with, in pixels of the desktop."""
        width, height = self.desktop.size
        return Rect(width // 5, height // 5, width * 3 // 5, height * 3 // 5)

    def open_window(self, tool, title):
        """Opens a capture window with the palette and returns it once it can be used."""
        self.palette.click(tool)
        window = self.program.window(title=title)
        point = self.button(FINISH)
        self.wait_for_pixel(*point, lambda colour: near(colour, ACCENT), "the buttons")
        self.wait_for(lambda: self.desktop.windows.at(*point) == window, "the window on top")
        return window

    def button(self, offset, selection=None):
        x, y, width, height = selection or self.preset
        return x + width - offset * self.scale, y + height + BUTTON_DROP * self.scale

    def press(self, offset, selection=None):
        self.desktop.pointer.click(*self.button(offset, selection))

    def expect_closed(self, window):
        self.wait_for(lambda: window not in self.program.windows(), f"{window} to close")

    def notice(self, text):
        """The notice whose title holds a text."""
        return self.program.window(f"the notice {text}", title=lambda title: text in title)

    def expect_opened_folder(self):
        """Waits until the file browser was given the folder."""
        self.assertEqual(self.browser.wait_for_file(), self.folder)

    def captures(self):
        """Paths of the files made so far."""
        if not os.path.isdir(self.folder):
            return []
        return sorted(os.path.join(self.folder, name) for name in os.listdir(self.folder))
