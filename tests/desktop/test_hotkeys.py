"""The palette's hot keys, pressed while another window has the keyboard."""

import glob
import os

import desktop

RED = (255, 0, 0)
PAPER = (250, 250, 210)
FROM, TO, CENTRE = (300, 300), (500, 400), (400, 350)


class HotkeysTest(desktop.DesktopTestCase):

    def setUp(self):
        super().setUp()
        self.document = self.desktop.open_window("Document", (200, 150, 700, 500), PAPER)
        self.program = self.start()
        self.palette = desktop.Palette(self.desktop, self.program)
        self.palette.window

    def tap(self, *keys):
        self.desktop.keyboard.tap(*keys)

    def expect(self, point, colour, what):
        self.wait_for_pixel(*point, lambda seen: desktop.near(seen, colour, tolerance=110), what)

    def start_pen(self):
        self.tap("Ctrl+E")
        self.wait_for(lambda: self.palette.overlay and self.palette.overlay.takes_pointer,
                      "the pen's hot key to start drawing")

    def draw(self):
        self.desktop.pointer.drag([FROM, TO])

    def test_pen_erase_undo_redo_clear_and_end(self):
        self.start_pen()
        self.draw()
        self.expect(CENTRE, RED, "the stroke")
        self.tap("Ctrl+D")
        self.desktop.pointer.drag([(400, 300), (400, 400)])
        self.expect(CENTRE, PAPER, "the erased stroke")
        self.tap("Ctrl+Z")
        self.expect(CENTRE, RED, "undo")
        self.tap("Ctrl+Y")
        self.expect(CENTRE, PAPER, "redo")
        self.tap("Ctrl+Z")
        self.expect(CENTRE, RED, "undo")
        self.tap("Ctrl+L")
        self.expect(CENTRE, PAPER, "an empty canvas")
        self.tap("Ctrl+Q")
        self.wait_for(lambda: not self.palette.overlay.takes_pointer, "drawing to end")

    def test_shapes(self):
        on_and_off = {"Ctrl+O": ([(400, 300), (300, 350)], [CENTRE]),
                      "Ctrl+R": ([(400, 300), (300, 310)], [CENTRE]),
                      "Ctrl+A": ([CENTRE, (350, 325)], [(400, 300)]),
                      "Ctrl+L": ([CENTRE, (350, 325)], [(400, 300)])}
        self.start_pen()
        for keys, (on, off) in on_and_off.items():
            with self.subTest(keys):
                self.tap(keys)
                self.draw()
                for point in on:
                    self.expect(point, RED, f"the shape of {keys}")
                for point in off:
                    self.assertTrue(desktop.near(self.desktop.screen.pixel(*point), PAPER))
                self.palette.click("clear")
                self.expect(on[0], PAPER, "an empty canvas")

    def test_text_and_return(self):
        self.start_pen()
        self.tap("Return")
        self.program.wait_for_log("确认变换")
        self.tap("Ctrl+T")
        self.desktop.pointer.click(*FROM)
        self.expect((300, 350), RED, "the editor's frame")
        # Letters and line breaks belong to the editor, and so does select-all.
        self.desktop.keyboard.type("ad\nl")
        self.tap("Ctrl+A")
        self.desktop.pointer.click(700, 500)
        self.expect_text()
        self.assertEqual(self.program.log().count("确认变换"), 1)

    def expect_text(self):
        def two_lines():
            shot = self.desktop.screen.shot((301, 301, 60, 60)).convert("RGB")
            rows = [any(desktop.near(shot.getpixel((x, y)), RED, tolerance=60) for x in range(60))
                    for y in range(60)]
            blocks = sum(row and not before for row, before in zip(rows, [False] + rows))
            return blocks == 2
        self.wait_for(two_lines, "two lines of text on the canvas")

    def test_screenshot(self):
        self.tap("Ctrl+P")
        pattern = os.path.join(self.app_folder, "draw_*.jpg")
        self.wait_for(lambda: glob.glob(pattern), "the screenshot to be saved")

    def test_nothing_happens_before_there_is_an_overlay(self):
        for keys in ("Ctrl+D", "Ctrl+T", "Ctrl+L", "Ctrl+Z", "Ctrl+Y", "Ctrl+O", "Ctrl+Q"):
            self.tap(keys)
        self.start_pen()
        self.assertNotIn("TypeError", self.program.log())


if __name__ == "__main__":
    desktop.main()
