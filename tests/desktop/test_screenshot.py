"""The screenshot window: what its buttons do and what the picture holds."""

import io
import os
import random
import subprocess

from PIL import Image, ImageChops, ImageStat

import desktop
from desktop.capturing import CLOSE_SHOT, FINISH, OPEN_FOLDER, CaptureTestCase

BLOCK = 8
RED = (255, 0, 0)


def pattern(width, height):
    """Grey blocks so small that a picture shifted by a single pixel differs a lot."""
    columns, rows = width // BLOCK, height // BLOCK
    blocks = Image.frombytes("L", (columns, rows), random.Random(1).randbytes(columns * rows))
    return blocks.resize((width, height), Image.NEAREST).convert("RGB")


def difference(one, other):
    """Mean difference of two pictures, in levels of 255."""
    return sum(ImageStat.Stat(ImageChops.difference(one, other)).mean) / 3


class ScreenshotTest(CaptureTestCase):

    desktop_options = {"wallpaper": pattern(1280, 800)}

    def paste(self):
        """The picture that another program gets from the clipboard."""
        pasted = subprocess.run(
            [desktop.server.tool("xclip"), "-selection", "clipboard", "-t", "image/png", "-o"],
            env=self.desktop.env(), stdout=subprocess.PIPE, check=True, timeout=60).stdout
        return Image.open(io.BytesIO(pasted)).convert("RGB")

    def test_holds_what_the_user_saw_pixel_by_pixel(self):
        self.launch()
        overlay = self.palette.start_drawing()
        x, y, width, height = self.preset
        middle = x + width // 2, y + height // 2
        self.wait_for(lambda: self.desktop.windows.at(*middle) == overlay, "the screen to freeze")
        self.desktop.pointer.drag([(middle[0] - 100, middle[1]), (middle[0] + 100, middle[1])])
        self.wait_for_pixel(*middle, lambda colour: desktop.near(colour, RED), "the mark")
        self.palette.stop_drawing()
        seen = self.desktop.screen.shot(self.preset)
        window = self.open_window("screenshot", "截图")
        self.press(FINISH)
        notice = self.notice("截图已保存")
        self.expect_closed(window)

        path, = self.captures()
        self.assertRegex(os.path.basename(path), r"^draw_\d{8}_\d{6}\.jpg$")
        with Image.open(path) as picture:
            self.assertEqual((picture.format, picture.size), ("JPEG", (width, height)))
            self.assertLess(difference(picture, seen), 6)
        self.assertIsNone(desktop.changed_box(self.paste(), seen))
        self.desktop.pointer.click(*notice.centre)
        self.expect_opened_folder()
        self.expect_closed(notice)


class DoubleScaleTest(ScreenshotTest):
    """The same on a screen of twice the density."""

    scale = 2
    desktop_options = {"size": (2560, 1600), "wallpaper": pattern(2560, 1600)}


class NoCompositorTest(ScreenshotTest):
    """The same where no window can be transparent."""

    desktop_options = {"compositor": False, "wallpaper": pattern(1280, 800)}

    def open_window(self, tool, title):
        inside, outside = (self.preset.x + 50, self.preset.y + 50), (100, 100)
        before = self.desktop.screen.shot()
        self.palette.hover(tool)
        window = super().open_window(tool, title)
        self.assertEqual(self.desktop.screen.pixel(*inside), before.getpixel(inside))
        dimmed = tuple(level * 7 // 10 for level in before.getpixel(outside))
        self.assertTrue(desktop.near(self.desktop.screen.pixel(*outside), dimmed, 3))
        return window


class NoCompositorDoubleScaleTest(NoCompositorTest):

    scale = 2
    desktop_options = {"compositor": False, "size": (2560, 1600), "wallpaper": pattern(2560, 1600)}


class RegionTest(CaptureTestCase):
    expected_warning = "无法创建截图保存目录"

    def test_a_region_is_drawn_moved_and_turned_inside_out(self):
        self.launch()
        window = self.open_window("screenshot", "截图")
        self.desktop.keyboard.tap("Escape")  # does nothing, as the rest shows
        for path in ([(100, 80), (500, 380)],  # drawn anew
                     [(300, 230), (350, 270)],  # moved at its middle
                     [(147, 117), (650, 520)]):  # its first corner dragged past its last
            self.desktop.pointer.drag(path)
        self.press(FINISH, (550, 420, 100, 100))
        self.program.wait_for_log("截图 - 原始坐标: 550 420 100 100")
        self.notice("截图已保存")
        self.expect_closed(window)
        with Image.open(*self.captures()) as picture:
            self.assertEqual(picture.size, (100, 100))

    def test_can_be_left_and_shows_the_folder(self):
        self.launch()
        window = self.open_window("screenshot", "截图")
        self.press(CLOSE_SHOT)
        self.expect_closed(window)
        window = self.open_window("screenshot", "截图")
        self.press(OPEN_FOLDER)
        self.expect_opened_folder()
        self.expect_closed(window)
        self.assertEqual(self.captures(), [])

    def test_a_picture_that_cannot_be_saved_is_told(self):
        self.launch(folder="/proc/none")
        self.open_window("screenshot", "截图")
        self.press(FINISH)
        self.notice("截图失败 · 无法创建截图文件夹 /proc/none")


if __name__ == "__main__":
    desktop.main()
