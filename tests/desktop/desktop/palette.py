"""The program's own windows: where their buttons are and how a hand uses them."""

from .waiting import wait_for

# Sizes in units of the palette's design, which it scales down.
SCALE = 0.65
WIDTH, HANDLE_HEIGHT, HANDLE_GAP, BUTTON_HEIGHT, BUTTON_GAP = 50, 48, 10, 40, 4
ROW_PITCH, FIRST_ROW = 38, 10
# Pixels beside the palette in which the colour dialog opens.
DIALOG_REACH = 340
CORNER = 6  # pixels: the rounded end of the palette

TOOLS = ("collapse", "draw", "pen", "shape", "eraser", "history", "clear", "board", "screenshot",
         "record", "colour", "thickness", "fade", "breathing", "menu")

# Rows of the flyouts, from the top.
FLYOUTS = {
    "pen": ("pen", "highlighter", "text"),
    "shape": ("line", "circle", "arrow", "rectangle", "number"),
    "history": ("undo", "redo"),
    "board": ("desktop", "white", "black", "picture"),
    "thickness": ("a", "b", "c", "d"),
    "fade": ("off", "3", "5", "10", "30"),
    "breathing": ("off", "3", "5", "10"),
    "menu": ("about", "help", "settings", "quit"),
}


def _px(units):
    return int(units * SCALE + 0.5)  # halves go up, unlike with Python's own rounding


class Palette:
    """The palette and overlay of one running program. `dpr` is the scale factor it started with."""

    def __init__(self, desktop, program, dpr=1.0):
        self._desktop = desktop
        self._program = program
        self._dpr = dpr
        self._scrolled = 0

    @property
    def window(self):
        """The palette, once it is there: the only tall and narrow window."""
        def look():
            return self._only(lambda rect: abs(rect.width - WIDTH * SCALE * self._dpr) < 2
                              and rect.height >= 60 * self._dpr and not self._is_flyout(rect))
        return self._wait(look, "the palette to appear")

    @property
    def overlay(self):
        """The visible overlay, or None: the window that covers a whole monitor."""
        return self._only(lambda rect: rect.width >= 600 and rect.height >= 400)

    def point(self, tool):
        """Where a tool's button is, in desktop pixels; "handle" is what the palette moves by."""
        if tool == "handle":
            return self._at(WIDTH * SCALE / 2, HANDLE_HEIGHT * SCALE / 2)
        number = TOOLS.index(tool)
        top = HANDLE_HEIGHT * SCALE + _px(HANDLE_GAP)
        # A line without height of its own stands between two buttons, with a gap on either side.
        pitch = BUTTON_HEIGHT * SCALE + 2 * _px(BUTTON_GAP)
        middle = top + number * pitch + BUTTON_HEIGHT * SCALE / 2
        return self._at(WIDTH * SCALE / 2, middle - (self._scrolled if number else 0))

    def scroll_to_end(self):
        """Turns the wheel until the last tool stands at the palette's bottom edge."""
        self._desktop.pointer.move(*self.point("draw"))
        self._desktop.pointer.scroll(-20)
        window = self.window.geometry
        end = self.point("menu")[1] - window.y + BUTTON_HEIGHT * SCALE / 2 * self._dpr
        self._scrolled = (end - window.height) / self._dpr + CORNER

    def click(self, tool, button=1):
        point = self.point(tool)
        self._expect_uncovered(self.window, point)
        self._desktop.pointer.click(*point, button=button)

    def hover(self, tool):
        x, y = self.point(tool)
        self._desktop.pointer.move(x - 2, y)
        self._desktop.pointer.move(x, y)

    def open_flyout(self, tool):
        """Rests the pointer on a tool and returns the flyout that opens."""
        rows = len(FLYOUTS[tool])
        self.hover(tool)
        return self._wait(lambda: self._only(lambda rect: self._is_flyout(rect, rows)),
                          f"the {tool} flyout to open")

    def choose(self, tool, row):
        """Chooses a row by name in a tool's flyout."""
        flyout = self.open_flyout(tool)
        number = FLYOUTS[tool].index(row)
        y = (_px(FIRST_ROW) + (number + 0.45) * ROW_PITCH * SCALE) * self._dpr
        point = flyout.at(flyout.geometry.width * 0.55, y)
        self._expect_uncovered(flyout, point)
        self._desktop.pointer.click(*point)
        self._wait(lambda: flyout not in self._program.windows(), f"the {tool} flyout to close")

    def dye(self, wanted):
        """Picks a colour that `wanted` accepts in the colour dialog, and returns it."""
        self.click("colour")
        x, y, colour = self._wait(lambda: self._swatch(wanted), "the colour dialog to open")
        self._desktop.pointer.click(x, y)
        self._desktop.keyboard.tap("Escape")
        self._wait(lambda: not self._swatch(wanted), "the colour dialog to close")
        return colour

    def start_drawing(self):
        """Clicks the draw button and waits until the overlay takes the pointer."""
        return self.pick_up("draw")

    def pick_up(self, tool):
        """Clicks a tool that starts to draw, and waits until the overlay takes the pointer."""
        self.click(tool)
        return self._wait(lambda: self.overlay and self.overlay.takes_pointer and self.overlay,
                          "the overlay to take the pointer")

    def stop_drawing(self):
        """Clicks the draw button and waits until the overlay lets the pointer through."""
        self.click("draw")
        self._wait(lambda: not (self.overlay and self.overlay.takes_pointer),
                   "the overlay to let the pointer through")

    def _at(self, x, y):
        return self.window.at(x * self._dpr, y * self._dpr)

    def _swatch(self, wanted):
        """The middle of a patch of one wanted colour beside the palette, with the colour."""
        height = self._desktop.size[1]
        left = self.window.geometry.x - DIALOG_REACH
        shot = self._desktop.screen.shot((left, 0, DIALOG_REACH, height))
        for y in range(0, height - 8, 4):
            for x in range(0, DIALOG_REACH - 8, 4):
                colour = shot.getpixel((x, y))
                if wanted(colour) and all(shot.getpixel((x + dx, y + dy)) == colour
                                          for dx, dy in ((8, 0), (0, 8), (8, 8))):
                    return left + x + 4, y + 4, colour
        return None

    def _expect_uncovered(self, window, point):
        self._wait(lambda: self._desktop.windows.at(*point) == window,
                   f"{window} to lie uncovered at {point}")

    def _is_flyout(self, rect, rows=None):
        counts = [rows] if rows else {len(names) for names in FLYOUTS.values()}
        heights = [_px(count * ROW_PITCH + 20) * self._dpr for count in counts]
        return rect.width <= 34 * self._dpr and any(abs(rect.height - h) < 2 for h in heights)

    def _only(self, judge):
        found = [window for window in self._program.windows(frameless=True)
                 if judge(window.geometry)]
        return found[0] if len(found) == 1 else None

    def _wait(self, condition, what):
        def look():
            self._program.expect_running(what)
            return condition()
        return wait_for(look, what)
