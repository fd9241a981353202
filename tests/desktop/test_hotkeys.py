"""The palette's hot keys, pressed while another window has the keyboard."""

import glob
import os

import desktop
from desktop.marks import CENTRE, FROM, RED, MarksTestCase


class HotkeysTest(MarksTestCase):

    def tap(self, *keys):
        self.desktop.keyboard.tap(*keys)

    def start_pen(self):
        self.tap("Ctrl+E")
        self.wait_for(lambda: self.palette.overlay and self.palette.overlay.takes_pointer,
                      "the pen's hot key to start drawing")

    def take(self, keys):
        """Presses a tool's hot key and waits until the palette shows that another is in use."""
        before = self.sheet()
        self.tap(keys)
        self.wait_for(lambda: self.sheet() != before, f"the palette to show the tool of {keys}")

    def sheet(self):
        rect = self.palette.window.geometry
        return self.desktop.screen.shot(tuple(rect)).tobytes()

    def test_pen_erase_undo_redo_clear_and_end(self):
        self.start_pen()
        self.draw_and_see("stroke")
        self.take("Ctrl+D")
        self.erase()
        self.expect_gone("stroke")
        self.tap("Ctrl+Z")
        self.expect(CENTRE, RED, "undo")
        self.tap("Ctrl+Y")
        self.expect_gone("stroke")
        self.tap("Ctrl+Z")
        self.expect(CENTRE, RED, "undo")
        self.tap("Ctrl+L")
        self.expect_gone("stroke")
        self.tap("Ctrl+Q")
        self.wait_for(lambda: not self.palette.overlay.takes_pointer, "drawing to end")

    def test_shapes(self):
        self.start_pen()
        # The line shares its key with clearing, so it comes last and finds an empty canvas.
        for keys, shape in (("Ctrl+O", "circle"), ("Ctrl+R", "rectangle"), ("Ctrl+A", "arrow"),
                            ("Ctrl+L", "line")):
            with self.subTest(keys):
                self.take("Ctrl+D")  # from the eraser, every one of them changes the tool
                self.take(keys)
                self.draw_and_see(shape)
                self.palette.click("clear")
                self.expect_gone(shape)

    def test_text_and_return(self):
        self.start_pen()
        self.tap("Return")
        self.program.wait_for_log("确认变换")
        self.tap("Ctrl+O")
        self.take("Ctrl+T")
        self.desktop.pointer.click(*FROM)
        self.expect((300, 350), RED, "the editor's frame")
        # Letters and line breaks belong to the editor, and so do select-all and undo.
        self.desktop.keyboard.type("ad\nx")
        self.tap("Ctrl+Z", "Ctrl+Y", "Ctrl+A")
        self.desktop.pointer.click(700, 500)
        self.program.wait_for_log('内容: "ad\\nx"')
        self.assertEqual(self.program.log().count("确认变换"), 1)

    def test_before_there_is_an_overlay_only_the_screenshot_does_anything(self):
        self.tap("Ctrl+D", "Ctrl+T", "Ctrl+L", "Ctrl+Z", "Ctrl+Y", "Ctrl+O", "Ctrl+Q", "Ctrl+P")
        pattern = os.path.join(self.app_folder, "draw_*.jpg")
        self.wait_for(lambda: glob.glob(pattern), "the screenshot to be saved")
        self.assertIsNone(self.palette.overlay)


if __name__ == "__main__":
    desktop.main()
