"""Every button of the palette, and what it does to the canvas and to the windows."""

import os

import desktop

RED, WHITE, BLACK = (255, 0, 0), (255, 255, 255), (0, 0, 0)
PAPER = (250, 250, 210)
# A gesture from one corner to the other, and points on and off what each shape makes of it.
FROM, TO = (300, 300), (500, 400)
CENTRE = (400, 350)


def is_red(colour):
    return desktop.near(colour, RED, tolerance=110)


class ToolsTest(desktop.DesktopTestCase):

    def setUp(self):
        super().setUp()
        self.desktop.open_window("Document", (200, 150, 700, 500), PAPER)
        self.program = self.start()
        self.palette = desktop.Palette(self.desktop, self.program)
        self.palette.start_drawing()

    def draw(self, points=(FROM, TO)):
        self.desktop.pointer.drag(points)

    def expect(self, point, colour, what, tolerance=110):
        self.wait_for_pixel(*point, lambda seen: desktop.near(seen, colour, tolerance=tolerance), what)

    def is_paper(self, x, y):
        return desktop.near(self.desktop.screen.pixel(x, y), PAPER)

    def red_box(self):
        """What of the document is covered with pure red, as left, top, right, bottom."""
        shot = self.desktop.screen.shot((201, 171, 690, 470))
        mask = shot.point(lambda value: 255 if value > 200 else 0).split()
        reds = [(x, y) for y in range(shot.height) for x in range(shot.width)
                if mask[0].getpixel((x, y)) and not mask[1].getpixel((x, y))
                and not mask[2].getpixel((x, y))]
        xs, ys = zip(*reds)
        return 201 + min(xs), 171 + min(ys), 201 + max(xs), 171 + max(ys)

    def test_shapes(self):
        on_and_off = {
            "line": ([CENTRE, (350, 325)], [(400, 300), (300, 350)]),
            "rectangle": ([(400, 300), (300, 350), (500, 350)], [CENTRE]),
            "circle": ([(300, 350), (400, 300)], [CENTRE, (302, 302)]),
            "arrow": ([CENTRE, (350, 325)], [(400, 300), (300, 350)]),
        }
        for shape, (on, off) in on_and_off.items():
            with self.subTest(shape):
                self.palette.choose("shape", shape)
                self.draw()
                for point in on:
                    self.expect(point, RED, f"the {shape}")
                for point in off:
                    self.assertTrue(self.is_paper(*point), f"{point} of the {shape}")
                self.palette.click("clear")
                self.expect(on[0], PAPER, "an empty canvas")

    def test_a_number_is_placed_and_the_pen_gets_its_size_back(self):
        self.palette.choose("thickness", "d")
        self.palette.choose("shape", "number")
        self.desktop.pointer.click(*CENTRE)
        self.wait_for(lambda: not self.is_paper(*CENTRE) or not self.is_paper(395, 340),
                      "the numbered circle")
        self.palette.choose("pen", "pen")
        self.draw([(300, 450), (500, 450)])
        self.expect((400, 458), RED, "a stroke of the size before the number")

    def test_thickness_and_highlighter(self):
        widths = {"a": 3, "b": 8, "c": 15, "d": 20}
        for number, (row, width) in enumerate(widths.items()):
            y = 230 + 60 * number
            self.palette.choose("thickness", row)
            self.draw([(300, y), (500, y)])
            self.expect((400, y + width // 2 - 1), RED, f"a stroke {width} wide")
            self.assertTrue(self.is_paper(400, y + width // 2 + 3), f"not wider than {width}")
        self.palette.choose("pen", "highlighter")
        self.palette.choose("thickness", "d")
        self.draw([(300, 480), (500, 480)])
        # Four tenths of red over the paper.
        self.expect((400, 480), (252, 150, 126), "a translucent stroke", tolerance=20)

    def test_text(self):
        self.palette.choose("pen", "text")
        self.desktop.pointer.click(*FROM)
        self.program.wait_for_log("", timeout=1)
        self.desktop.keyboard.type("HHHH")
        self.wait_for(lambda: not self.is_paper(*FROM), "the editor")
        self.desktop.pointer.click(700, 500)
        self.wait_for(lambda: self.red_box()[0] >= 300, "the text on the canvas")
        left, top, right, bottom = self.red_box()
        self.assertGreater(right - left, 20)
        self.assertLess(bottom - top, 30)

    def test_eraser_clear_and_history(self):
        self.draw()
        self.expect(CENTRE, RED, "the stroke")
        self.palette.click("eraser")
        self.desktop.pointer.drag([(400, 300), (400, 400)])
        self.expect(CENTRE, PAPER, "the erased stroke")
        self.palette.click("history")
        self.expect(CENTRE, RED, "the stroke again")
        self.palette.choose("history", "redo")
        self.palette.click("history")
        self.expect(CENTRE, PAPER, "the erased stroke again")
        self.palette.choose("history", "undo")
        self.palette.click("history")
        self.expect(CENTRE, RED, "the stroke again")
        self.palette.click("clear")
        self.expect(CENTRE, PAPER, "an empty canvas")

    def test_boards(self):
        for board, colour in (("white", WHITE), ("black", BLACK), ("desktop", PAPER)):
            self.palette.choose("board", board)
            self.expect(CENTRE, colour, f"the {board} board", tolerance=3)
        self.palette.choose("board", "picture")
        self.wait_for(lambda: self.program.windows(title="请选择一个文件")
                      or not self.is_paper(*CENTRE), "the picture dialog")

    def test_colour_dialog_opens_while_drawing_only(self):
        before = self.desktop.screen.shot((0, 0, 1200, 800))
        self.palette.click("colour")
        self.wait_for(lambda: desktop.changed_box(before, self.desktop.screen.shot((0, 0, 1200, 800))),
                      "the colour dialog")

    def test_marks_fade_away_oldest_first(self):
        self.draw([(300, 300), (500, 300)])
        self.draw([(300, 400), (500, 400)])
        self.expect((400, 400), RED, "the strokes")
        self.palette.choose("fade", "3")
        self.expect((400, 300), PAPER, "the older stroke to fade away")
        self.palette.choose("fade", "off")
        self.assertTrue(is_red(self.desktop.screen.pixel(400, 400)), "the newer stroke stays")

    def test_the_newest_mark_breathes_until_told_to_stop(self):
        self.draw([(300, 300), (500, 300)])
        self.draw([(300, 400), (500, 400)])
        self.expect((400, 400), RED, "the strokes")
        button = self.palette.point("breathing")
        idle = self.button_picture(button)
        self.palette.choose("breathing", "3")
        self.expect((400, 400), PAPER, "the newer stroke to grow pale", tolerance=60)
        self.assertTrue(is_red(self.desktop.screen.pixel(400, 300)), "the older stroke stays")
        self.wait_for(lambda: self.button_picture(button) != idle, "the button to name the period")
        self.expect((400, 400), RED, "the newer stroke to grow strong")
        self.palette.choose("breathing", "off")
        self.wait_for(lambda: self.button_picture(button) == idle, "the button to say it is off")

    def button_picture(self, point):
        self.desktop.pointer.move(400, 500)
        x, y = point
        return self.desktop.screen.shot((x - 12, y - 11, 24, 22)).tobytes()

    def test_about_and_help_and_quit(self):
        self.palette.choose("menu", "about")
        about = self.program.window(title="关于")
        self.assertEqual(about.geometry.x, self.palette.window.geometry.x - 400)
        self.palette.choose("menu", "settings")
        self.wait_for(lambda: not self.program.windows(title="关于"), "the about window to give way")
        self.palette.choose("menu", "about")
        self.program.window(title="关于")
        self.palette.click("draw")
        self.wait_for(lambda: not self.program.windows(title="关于"), "the about window to close")
        self.palette.choose("menu", "quit")
        self.assertEqual(self.program.wait_for_end(), 0)


class HelpTest(desktop.DesktopTestCase):

    def test_help_opens_in_the_browser(self):
        tools = os.path.join(self.desktop.folder, "tools")
        os.makedirs(tools)
        opened = os.path.join(tools, "opened")
        browser = os.path.join(tools, "xdg-open")
        with open(browser, "w", encoding="utf-8") as script:
            script.write(f'#!/bin/sh\necho "$1" > "{opened}"\n')
        os.chmod(browser, 0o755)
        program = self.start(env={"PATH": f"{tools}:{os.environ['PATH']}"})
        desktop.Palette(self.desktop, program).choose("menu", "help")
        self.wait_for(lambda: os.path.exists(opened), "the browser to be started")


if __name__ == "__main__":
    desktop.main()
