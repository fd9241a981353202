"""The palette itself: where it stands, how it opens its flyouts, whose keyboard it leaves alone."""

import desktop

PAPER = (250, 250, 210)
FLYOUT_TOPS = {"pen": 85, "shape": 120, "history": 280, "board": 390, "thickness": 550,
               "fade": 580, "breathing": 600, "menu": 635}
SCALE = 0.65


def qt_round(value):
    return int(value + 0.5)


class PaletteTest(desktop.DesktopTestCase):

    desktop_options = {"language": "zh_CN"}

    def setUp(self):
        super().setUp()
        self.document = self.desktop.open_window("Document", (60, 90, 400, 300), PAPER)
        self.desktop.pointer.click(*self.document.window.centre)
        self.wait_for(lambda: self.desktop.windows.active == self.document.window,
                      "the document to have the keyboard")
        self.launch()

    def launch(self):
        self.program = self.start()
        self.palette = desktop.Palette(self.desktop, self.program)
        self.window = self.palette.window

    def expect_document_keeps_keyboard(self):
        count = len(self.document.keys)
        self.desktop.keyboard.tap("x")
        self.wait_for(lambda: len(self.document.keys) == count + 1,
                      "the typed letter to reach the document")
        self.assertEqual(self.desktop.windows.active, self.document.window)

    def test_stands_at_the_right_edge_above_everything_and_collapses_in_place(self):
        rect = self.window.geometry
        self.assertEqual((rect.width, rect.height), (32, 520))
        self.assertEqual((rect.x, rect.y), (1280 - 32, (800 - 520) // 2))
        self.assertTrue(self.window.frameless and self.window.on_top)
        self.palette.click("collapse")
        self.wait_for(lambda: self.window.geometry.height == int(99 * SCALE),
                      "the palette to collapse")
        self.palette.click("collapse")
        self.wait_for(lambda: self.window.geometry == rect, "the palette to unfold in its place")

    def test_leaves_the_keyboard_to_what_the_user_types_in(self):
        self.expect_document_keeps_keyboard()  # also after it has just appeared
        for tool, tip in (("eraser", "橡皮擦"), ("clear", "清除画布")):
            self.palette.hover(tool)  # as a hand does before it clicks
            self.program.window(title=tip)
            self.palette.click(tool)
            self.expect_document_keeps_keyboard()
        self.palette.choose("thickness", "c")
        self.expect_document_keeps_keyboard()
        self.palette.open_flyout("menu")
        self.expect_document_keeps_keyboard()

    def test_follows_the_hand_and_comes_back_to_the_place_where_it_was_left(self):
        self.palette.open_flyout("menu")
        start = self.palette.point("handle")
        # Back and forth: whatever moves the window late or twice adds up.
        self.desktop.pointer.drag([start, (700, 300), (900, 60), (500, 200)], samples=40)
        left = (1248 + 500 - start[0], 140 + 200 - start[1])
        self.wait_for(lambda: self.window.geometry[:2] == left, "the palette to follow the hand")
        self.wait_for(lambda: not self.flyouts(), "dragging to close the flyout")
        self.program.stop()
        self.launch()
        self.wait_for(lambda: self.window.geometry[:2] == left, "the palette in its place")

    def expect_flyouts(self, palette_x, offset):
        for tool in ("history", "thickness", "fade", "breathing", "menu"):
            rect = self.palette.open_flyout(tool).geometry
            rows = len(desktop.palette.FLYOUTS[tool])
            self.assertEqual((rect.width, rect.height),
                             (33, qt_round(rows * 38 * SCALE + 20 * SCALE)), tool)
            self.assertAlmostEqual(rect.x, palette_x + offset, delta=1, msg=tool)
            self.assertAlmostEqual(rect.y, 140 + FLYOUT_TOPS[tool] * SCALE, delta=1, msg=tool)
        self.desktop.pointer.move(*self.palette.point("eraser"))
        self.wait_for(lambda: not self.flyouts(), "another button to close the flyout")

    def flyouts(self):
        return [window for window in self.program.windows(frameless=True)
                if "_NET_WM_WINDOW_TYPE_UTILITY" in window.types]

    def test_flyouts_open_towards_the_middle_of_the_desktop(self):
        self.expect_flyouts(1248, -55 * SCALE)
        start = self.palette.point("handle")
        self.desktop.pointer.drag([start, (400, start[1])])
        self.wait_for(lambda: self.window.geometry.x == 1248 + 400 - start[0], "the palette to follow")
        self.expect_flyouts(self.window.geometry.x, qt_round(50 * SCALE))
        # Tools that only drawing needs stay closed until then.
        for tool in ("pen", "shape", "board"):
            self.palette.hover(tool)
        self.palette.open_flyout("menu")
        self.assertEqual(len(self.flyouts()), 1)

    def test_can_be_used_with_the_keyboard_alone(self):
        self.desktop.pointer.move(300, 200)
        self.desktop.windows.activate(self.window)
        self.wait_for(lambda: self.desktop.windows.active == self.window, "the keyboard")
        keyboard = self.desktop.keyboard
        keyboard.tap("Tab", "Tab", "space")  # past the handle
        self.wait_for(lambda: self.window.geometry.height < 100, "the palette to collapse")
        keyboard.tap("Return")
        self.wait_for(lambda: self.window.geometry.height == 520, "the palette to unfold")
        keyboard.tap(*["Down"] * 14, "Left")
        self.wait_for(self.flyouts, "the menu to open")
        keyboard.tap("Escape")
        self.wait_for(lambda: not self.flyouts(), "the menu to close")
        keyboard.tap("Return")
        self.wait_for(self.flyouts, "the menu to open again")
        keyboard.tap("Up", "Return")  # around the end, to the last row
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_leaves_the_screen_when_its_monitor_goes(self):
        self.program.stop()
        self.desktop.set_monitors([(0, 0, 640, 800), (640, 0, 640, 800)])
        self.launch()
        self.wait_for(lambda: self.window.geometry.x == 640 - 32, "the edge of the main monitor")
        start = self.palette.point("handle")
        self.desktop.pointer.drag([start, (1000, start[1])])
        self.wait_for(lambda: self.window.geometry.x > 640, "the other monitor")
        self.desktop.set_monitors([(0, 0, 640, 800)])
        self.wait_for(lambda: self.window.geometry.x + 32 <= 640, "the monitor that is left")
        self.program.stop()
        self.launch()
        self.wait_for(lambda: self.window.geometry.x + 32 <= 640, "the monitor that is left")


class LowScreenTest(desktop.DesktopTestCase):
    """A screen of 640 by 400 logical pixels is lower than the palette."""

    def test_every_tool_is_reached(self):
        program = self.start(scale=2)
        palette = desktop.Palette(self.desktop, program, 2)
        rect = palette.window.geometry
        self.assertEqual((rect.y, rect.height), (0, 800))
        bottom = rect.x + rect.width // 2, rect.height - 20
        for _ in range(2):  # the hint at the edge brings the rest
            self.desktop.pointer.click(*bottom)
        palette.open_flyout("menu")
        self.desktop.pointer.move(*palette.point("draw"))
        self.desktop.pointer.scroll(20)
        palette.click("draw")
        self.wait_for(lambda: palette.overlay, "the overlay")
        palette.scroll_to_end()
        palette.choose("menu", "settings")
        settings = program.window(title="设置")
        self.wait_for(lambda: (settings.geometry.y, settings.geometry.height) == (0, 800),
                      "the settings to fit the screen")
        self.wait_for(lambda: self.desktop.windows.at(*palette.point("menu")) == palette.window,
                      "the palette to stand above its settings")
        palette.choose("menu", "quit")
        self.assertEqual(program.wait_for_end(), 0)


if __name__ == "__main__":
    desktop.main()
