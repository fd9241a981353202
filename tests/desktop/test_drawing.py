"""Drawing with a real pointer: marks appear over the desktop, go and come back."""

import glob
import os

import desktop

RED = (255, 0, 0)
PAPER = (250, 250, 210)
LEFT_END, MIDDLE, RIGHT_END = (300, 300), (450, 300), (600, 300)


def is_red(colour):
    # At a stroke's ends and corners the smoothing lets some of the paper through.
    return desktop.near(colour, RED, tolerance=90)


class DrawingTest(desktop.DesktopTestCase):

    def setUp(self):
        super().setUp()
        self.document = self.desktop.open_window("Document", (200, 150, 700, 450), PAPER)
        self.program = self.start()
        self.palette = desktop.Palette(self.desktop, self.program)

    def draw_stroke(self, points=(LEFT_END, RIGHT_END)):
        self.desktop.pointer.drag(points)
        for x, y in points:
            self.expect_red(x, y)
        self.expect_red(*MIDDLE)

    def expect_red(self, x, y):
        self.wait_for_pixel(x, y, is_red, "the stroke to show")

    def expect_paper(self, x, y):
        self.wait_for_pixel(x, y, lambda colour: desktop.near(colour, PAPER),
                            "the document to show again")

    def test_a_stroke_lies_over_the_desktop_and_nothing_else_changes(self):
        self.palette.start_drawing()
        # All but the palette and what it says about itself, at the right edge.
        region = (0, 0, 1100, 800)
        before = self.desktop.screen.shot(region)
        self.draw_stroke()
        left, top, right, bottom = desktop.changed_box(before, self.desktop.screen.shot(region))
        # The pen cursor, too, stands at the stroke's end.
        self.assertGreaterEqual(left, LEFT_END[0] - 5)
        self.assertLessEqual(right, RIGHT_END[0] + 60)
        self.assertGreaterEqual(top, LEFT_END[1] - 60)
        self.assertLessEqual(bottom, LEFT_END[1] + 60)

    def test_every_sample_of_a_fast_hand_is_kept(self):
        self.palette.start_drawing()
        # The window manager holds each press up for a moment, to see whose it is, and meanwhile
        # the server keeps only the newest position. So the hand speeds up once the pen follows.
        pointer = self.desktop.pointer
        pointer.move(280, 330)
        pointer.press()
        pointer.glide([(280, 330), LEFT_END])
        self.expect_red(*LEFT_END)
        # A zigzag whose corners would be cut if motion events were thrown away.
        corners = [(300 + 12 * i, 300 + (60 if i % 2 else 0)) for i in range(26)]
        pointer.glide(corners, samples=1, interval=0)
        pointer.release()
        for x, y in reversed(corners):
            self.expect_red(x, y)

    def test_undo_and_redo_by_key_and_by_button(self):
        self.palette.start_drawing()
        self.draw_stroke()
        self.desktop.keyboard.tap("Ctrl+Z")
        self.expect_paper(*MIDDLE)
        self.desktop.keyboard.tap("Ctrl+Y")
        self.expect_red(*MIDDLE)
        self.palette.click("history")
        self.expect_paper(*MIDDLE)
        self.palette.choose("history", "redo")
        self.palette.click("history")
        self.expect_red(*MIDDLE)

    def test_leaving_drawing_mode_gives_the_desktop_its_pointer_back(self):
        self.palette.start_drawing()
        self.draw_stroke()
        self.assertEqual(self.document.clicks, [], "the overlay keeps the pointer while drawing")
        self.palette.stop_drawing()
        self.desktop.pointer.click(*self.document.window.at(20, 30))
        self.wait_for(lambda: self.document.clicks == [(20, 30, 1)],
                      "the click to reach the window beneath")
        self.palette.start_drawing()
        self.expect_red(*MIDDLE)

    def test_the_hot_keys_of_pen_and_end_switch_without_the_palette(self):
        self.palette.window
        self.desktop.keyboard.tap("Ctrl+E")
        self.wait_for(lambda: self.palette.overlay and self.palette.overlay.takes_pointer,
                      "the pen's hot key to start drawing")
        self.draw_stroke()
        self.desktop.keyboard.tap("Ctrl+Q")
        self.wait_for(lambda: not (self.palette.overlay and self.palette.overlay.takes_pointer),
                      "the hot key to end drawing")

    def test_saving_puts_the_picture_where_the_notice_says(self):
        self.palette.start_drawing()
        self.draw_stroke()
        self.desktop.keyboard.tap("Ctrl+S")
        saved = self.wait_for(self.saved_pictures, "the picture to be saved")
        self.assertEqual(len(saved), 1)

    def saved_pictures(self):
        return [path for folder in (self.app_folder, self.desktop.home)
                for path in glob.glob(os.path.join(folder, "**", "screenshot_*.png"),
                                      recursive=True)]


if __name__ == "__main__":
    desktop.main()
