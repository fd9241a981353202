"""Plays the demo: play.py PROGRAM PICTURE [--language L] [--scale F].

Starts the program on a virtual desktop, draws on a document with real pointer and key events,
checks that the marks are on the screen and saves a picture of it."""

import argparse
import math
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(HERE)), "tests", "desktop"))

import desktop  # noqa: E402 (needs the path above)
import scene  # noqa: E402

SIZE = (1440, 900)
DOCUMENT = (230, 100, 880, 640)
# Names of the marks, as they are printed while the demo runs.
STEPS = ("highlight", "circle", "arrow", "numbers", "signature")


class Demo:
    """The marks of the demo, each drawn as a person would draw it."""

    def __init__(self, screen, program, page, marks, dpr):
        self._desktop = screen
        self._palette = desktop.Palette(screen, program, dpr)
        self._page = page
        self._marks = marks

    def play(self):
        self._palette.start_drawing()
        for step in STEPS:
            print(f"  {step}", flush=True)
            getattr(self, step)()
        self._desktop.pointer.move(*self._at(820, 600))

    def highlight(self):
        left, top, right, bottom = self._marks["note1"]
        self._palette.choose("pen", "highlighter")
        self._palette.choose("thickness", "d")
        middle = (top + bottom) / 2
        self._stroke([(left - 4, middle), ((left + right) / 2, middle - 1), (right + 6, middle)])

    def circle(self):
        left, top, right, bottom = self._marks["Jun"]
        self._palette.choose("pen", "pen")
        self._palette.choose("thickness", "a")
        x, y, wide, high = (left + right) / 2, (top + bottom) / 2 + 6, 62, (bottom - top) / 2 + 34
        turns = [-1.9 + step * 0.19 for step in range(36)]
        # A hand's loop: it never quite closes on where it began.
        loop = [(x + (wide + 3 * math.sin(3 * turn)) * math.cos(turn),
                 y + (high + 3 * step / 36) * math.sin(turn)) for step, turn in enumerate(turns)]
        self._stroke(loop, samples=3)
        self._expect_mark(loop[12])

    def arrow(self):
        left, top, _, _ = self._marks["Jun"]
        self._palette.choose("shape", "arrow")
        self._palette.choose("thickness", "a")
        self._stroke([(left - 230, top - 20), (left - 70, top + 30)])

    def numbers(self):
        self._palette.choose("shape", "number")
        for name in ("note1", "note2", "note3"):
            _, top, right, bottom = self._marks[name]
            self._desktop.pointer.click(*self._at(right + 34, (top + bottom) / 2))

    def signature(self):
        """Drawn, taken back and drawn again, so that the demo shows the history at work."""
        self._palette.choose("pen", "pen")
        self._palette.choose("thickness", "a")
        _, _, right, bottom = self._marks["note2"]
        wave = [(right - 130 + x, bottom + 5 + 3 * math.sin(x / 9)) for x in range(0, 130, 4)]
        self._stroke(wave, samples=2)
        self._expect_mark(wave[-10])
        self._desktop.keyboard.tap("Ctrl+Z")
        self._desktop.wait_for(lambda: not self._is_red(wave[-10]), "undo to take the mark back")
        self._desktop.keyboard.tap("Ctrl+Y")
        self._expect_mark(wave[-10])

    def _stroke(self, points, samples=16):
        self._desktop.pointer.drag([self._at(*point) for point in points], samples=samples)

    def _at(self, x, y):
        return self._page.window.at(x, y)

    def _is_red(self, point):
        red, green, blue = self._desktop.screen.pixel(*self._at(*point))
        return red > 180 and green < 130 and blue < 130

    def _expect_mark(self, point):
        self._desktop.wait_for(lambda: self._is_red(point), "the mark to show on the screen")


def play(executable, picture, language, scale):
    size = tuple(round(length * scale) for length in SIZE)
    page_picture, marks = scene.document(*DOCUMENT[2:])
    with desktop.Desktop(size, language=language, wallpaper=scene.wallpaper(size)) as screen:
        page = screen.open_window("Visitors 2026", DOCUMENT, picture=page_picture)
        installed = desktop.install(executable, os.path.join(screen.folder, "app"))
        program = screen.start_program(installed, scale=scale if scale != 1 else None)
        try:
            Demo(screen, program, page, marks, scale).play()
            screen.screen.save(picture)
            desktop.Palette(screen, program, scale).choose("menu", "quit")
            return program.wait_for_end()
        except Exception:
            failed = f"{os.path.splitext(picture)[0]}-failed.png"
            screen.screen.save(failed)
            print(f"What the screen showed: {failed}\nThe program's log:\n{program.log()}",
                  file=sys.stderr)
            raise


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program")
    parser.add_argument("picture")
    parser.add_argument("--language", default="en_US")
    parser.add_argument("--scale", type=float, default=1.0)
    options = parser.parse_args()
    print("Playing the demo on a virtual desktop:", flush=True)
    code = play(options.program, options.picture, options.language, options.scale)
    if code != 0:
        sys.exit(f"The program ended with {code}.")
    print(f"Done. The picture: {os.path.abspath(options.picture)}")


if __name__ == "__main__":
    main()
