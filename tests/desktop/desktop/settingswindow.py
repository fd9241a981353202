"""The settings window, as far as more than one module uses it."""

from .capturing import ACCENT
from .screen import near

# Rows of the window, from its top; the buttons are at the right, where the palette leaves them free.
LANGUAGE_Y, TEXT_X, BUTTON_X = 104, 200, 310
CHOSEN_LANGUAGE, BLUE = (84, 205), (0, 102, 180)


class SettingsWindow:
    """The settings of a running program, opened with its palette; `title` is its title in the
    language of the interface."""

    def __init__(self, desktop, program, palette, title="设置"):
        self._desktop = desktop
        palette.choose("menu", "settings")
        self.window = program.window(title=title)
        desktop.wait_for(lambda: desktop.windows.active == self.window, "the keyboard")

    def click(self, x, y):
        point = self.window.at(x, y)
        self._desktop.wait_for(lambda: self._desktop.windows.at(*point) == self.window,
                               "the window on top")
        self._desktop.pointer.click(*point)

    def speak_english(self):
        """Chooses the first language of the list, British English, and applies it: the program
        restarts."""
        self.click(TEXT_X, LANGUAGE_Y)
        self._wait_for_colour(CHOSEN_LANGUAGE, BLUE, "the list to open")
        self._desktop.keyboard.tap("Home", "Return")
        button = BUTTON_X, LANGUAGE_Y - 10
        self._wait_for_colour(button, ACCENT, "the button that applies it")
        self.click(*button)

    def _wait_for_colour(self, at, colour, what):
        self._desktop.wait_for(
            lambda: near(self._desktop.screen.pixel(*self.window.at(*at)), colour), what)
