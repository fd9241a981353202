"""Every button of the palette, and what it does to the canvas and to the windows."""

import os

import desktop
from desktop.capturing import store_settings
from desktop.marks import CENTRE, FROM, PAPER, RED, MarksTestCase
from PIL import Image, ImageChops

WHITE, BLACK = (255, 255, 255), (0, 0, 0)


class PickingUpTest(MarksTestCase):

    def test_a_tool_clicked_while_the_pointer_goes_to_the_desktop_draws(self):
        self.palette.pick_up("shape")
        self.draw_and_see("line")
        self.palette.click("clear")
        self.expect_gone("line")
        self.palette.stop_drawing()
        self.palette.pick_up("pen")
        self.draw_and_see("stroke")


class ToolsTest(MarksTestCase):

    def setUp(self):
        super().setUp()
        self.palette.start_drawing()

    def clear(self, shape):
        self.palette.click("clear")
        self.expect_gone(shape)

    def red_box(self):
        """What of the document is red, as left, top, right, bottom; None when nothing is."""
        shot = self.desktop.screen.shot((201, 171, 690, 470))
        red, green, _ = shot.split()
        box = ImageChops.darker(red.point(lambda value: 255 * (value > 200)),
                                green.point(lambda value: 255 * (value < 60))).getbbox()
        return box and tuple(edge + offset for edge, offset in zip(box, (201, 171) * 2))

    def test_shapes_and_the_mark_under_a_right_click(self):
        for shape in ("line", "circle", "rectangle", "arrow"):
            with self.subTest(shape):
                self.palette.choose("shape", shape)
                self.draw_and_see(shape)
                self.clear(shape)
        self.palette.choose("pen", "pen")
        self.draw_and_see("stroke")
        self.desktop.pointer.click(*CENTRE, button=desktop.RIGHT)
        self.expect_gone("stroke")

    def test_a_number_is_placed_and_the_pen_gets_its_size_back(self):
        self.palette.choose("thickness", "d")
        self.palette.choose("shape", "number")
        self.desktop.pointer.click(*CENTRE)
        self.wait_for(lambda: not self.is_paper(395, 340), "the numbered circle")
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

    def test_text_and_eraser_history_clear(self):
        self.palette.choose("pen", "text")
        self.desktop.pointer.click(*FROM)
        self.expect((300, 350), RED, "the editor's frame")
        self.desktop.keyboard.type("HHHH")
        self.desktop.pointer.click(700, 500)
        self.wait_for(lambda: (self.red_box() or (0,))[0] > 300, "the text without the frame")
        left, top, right, bottom = self.red_box()
        self.assertTrue(20 < right - left < 100 and bottom - top < 30, self.red_box())

        self.palette.choose("pen", "pen")
        self.palette.click("clear")
        self.wait_for(lambda: self.red_box() is None, "the text to go")
        self.draw_and_see("stroke")
        self.palette.click("eraser")
        self.erase()
        self.expect_gone("stroke")
        self.palette.click("history")
        self.expect(CENTRE, RED, "undo to bring the stroke back")
        self.palette.choose("history", "redo")
        self.palette.click("history")
        self.expect_gone("stroke")
        self.palette.choose("history", "undo")
        self.palette.click("history")
        self.expect(CENTRE, RED, "undo to bring the stroke back again")
        # The eraser also takes what it is put down on, when it is pulled along.
        self.draw([CENTRE, (430, 420)])
        self.expect_gone("stroke")

    def test_boards_and_colours(self):
        for board, colour in (("white", WHITE), ("black", BLACK), ("desktop", PAPER)):
            self.palette.choose("board", board)
            self.expect(CENTRE, colour, f"the {board} board", tolerance=3)
        picture = os.path.join(self.desktop.home, "blue.png")
        Image.new("RGB", (400, 300), (30, 60, 200)).save(picture)
        self.palette.choose("board", "picture")
        dialog = self.program.window(title="请选择一个文件")
        self.wait_for(lambda: self.desktop.windows.active == dialog, "the dialog to have the keys")
        self.desktop.keyboard.type(picture + "\n")
        self.expect(CENTRE, (30, 60, 200), "the picture as background")
        self.wait_for(lambda: self.desktop.windows.active == self.palette.overlay,
                      "the keyboard to come back to the overlay")
        self.palette.click("clear")
        self.expect(CENTRE, PAPER, "the picture to go")

        # The green one of the dialog's colours dyes the next stroke.
        self.palette.dye(lambda seen: seen[1] > max(seen[0], seen[2]) + 60)
        self.draw()
        self.wait_for_pixel(*CENTRE, lambda seen: seen[1] > seen[0] + 60, "a green stroke")

    def test_marks_fade_away_oldest_first(self):
        self.draw([(300, 300), (500, 300)])
        self.draw([(300, 400), (500, 400)])
        self.expect((400, 400), RED, "the strokes")
        self.palette.choose("fade", "3")
        self.expect((400, 300), PAPER, "the older stroke to fade away")
        self.palette.choose("fade", "off")
        self.assertTrue(desktop.near(self.desktop.screen.pixel(400, 400), RED, 110))

    def test_the_newest_mark_breathes_until_told_to_stop(self):
        self.draw([(300, 300), (500, 300)])
        self.draw([(300, 400), (500, 400)])
        self.expect((400, 400), RED, "the strokes")
        idle = self.picture_of("breathing")
        self.palette.choose("breathing", "3")
        self.expect((400, 400), PAPER, "the newer stroke to grow pale", tolerance=60)
        self.expect((400, 300), RED, "the older stroke to stay")
        self.wait_for(lambda: self.picture_of("breathing") != idle, "the button to tell the period")
        self.expect((400, 400), RED, "the newer stroke to grow strong")
        self.palette.choose("breathing", "off")
        self.wait_for(lambda: self.picture_of("breathing") == idle, "the button to say it is off")

    def picture_of(self, tool):
        """A button as it looks while the pointer is elsewhere."""
        self.desktop.pointer.move(400, 500)
        x, y = self.palette.point(tool)
        return self.desktop.screen.shot((x - 12, y - 11, 24, 22)).tobytes()

    def test_menu(self):
        self.palette.choose("menu", "about")
        about = self.program.window(title="关于")
        self.assertEqual(about.geometry.x, self.palette.window.geometry.x - 400)
        self.palette.click("draw")
        self.wait_for(lambda: not self.program.windows(title="关于"), "the about window to close")
        self.palette.choose("menu", "quit")
        self.assertEqual(self.program.wait_for_end(), 0)


class HelpTest(desktop.DesktopTestCase):

    # Of a desktop without a browser.
    expected_warning = r"^Unable to detect a launcher for"

    def launch(self, path):
        program = self.start(env={"PATH": path})
        return program, desktop.Palette(self.desktop, program)

    def test_help_and_licences_open_in_the_browser(self):
        browser = desktop.Browser(self.desktop.folder)
        store_settings(self.desktop.home, penKey="Ctrl+F6", appLanguage="ja_JP")
        program, palette = self.launch(browser.path)
        palette.choose("menu", "help")
        help_page = browser.wait_for_file()
        with open(help_page, encoding="utf-8") as file:
            page = file.read()
        self.assertIn('<html lang="ja-JP">', page)
        self.assertIn("<kbd>Ctrl+F6</kbd>", page)

        palette.choose("menu", "about")
        about = program.window(title="情報")
        self.wait_for(lambda: self.desktop.windows.active == about, "the keyboard")
        self.desktop.keyboard.tap("Tab", "Tab", "Return")
        with open(browser.wait_for_file(), encoding="utf-8") as file:
            self.assertIn("GNU LESSER GENERAL PUBLIC LICENSE", file.read())
        self.desktop.keyboard.tap("Tab", "Tab", "Tab", "space")
        self.assertEqual(browser.wait_for_file(), help_page)

    def test_without_a_browser_the_notice_says_where_the_page_is(self):
        program, palette = self.launch(self.desktop.home)
        palette.choose("menu", "help")
        notice = program.window(title=lambda title: "help.html" in title).title
        self.assertTrue(os.path.exists(notice[notice.index("/"):]), notice)


if __name__ == "__main__":
    desktop.main()
