"""Drawing on the desktop: marks, text, selection, pass-through, monitors, no compositor."""

import os
import signal
import subprocess

import desktop
from PIL import Image

WALLPAPER = (38, 70, 83)
SUCCESS, ERROR = (223, 246, 221), (253, 231, 233)
ONE_LINE = 48  # pixels: a notice without a path or a reason is lower


def is_red(colour):
    return colour[0] > 150 and max(colour[1:]) < 110


class OverlayTestCase(desktop.DesktopTestCase):

    def start_drawing(self, **options):
        """Starts the program and begins to draw with the pen's hot key."""
        self.program = self.start(**options)
        self.palette = self.program.window(title="主窗口")
        self.overlay = None

        def begun():
            self.desktop.keyboard.tap("Ctrl+E")
            return self.program.windows(title="绘制窗口")
        self.overlay = self.wait_for(begun, "the overlay to appear")[0]
        self.wait_for(lambda: self.desktop.windows.active == self.overlay,
                      "the overlay to have the keyboard")

    def pass_through(self):
        self.desktop.keyboard.tap("Ctrl+Q")
        self.wait_for(lambda: not self.overlay.takes_pointer, "the pointer to be let through")

    def draw_again(self):
        self.desktop.keyboard.tap("Ctrl+E")
        self.wait_for(lambda: self.overlay.takes_pointer, "the pointer to be taken back")

    def choose(self, hot_key):
        """Takes a tool and waits until the program has heard of it and of all input before it."""
        self.wait_until_settled()
        self.desktop.keyboard.tap(hot_key)
        self.wait_until_settled()

    def wait_until_settled(self):
        """Equal pictures of the screen in a row: what was sent has been drawn."""
        def settled():
            before = self.desktop.screen.shot().tobytes()
            self.desktop.display.sync()
            return all(self.desktop.screen.shot().tobytes() == before for _ in range(3))
        self.wait_for(settled, "the screen to settle")

    def wait_for_red(self, x, y, what):
        self.wait_for_pixel(x, y, is_red, what)

    def frame(self):
        """The box of the selection frame's border and handles, or None."""
        shot = self.desktop.screen.shot((200, 200, 700, 500))
        mask = Image.new("L", shot.size)
        mask.putdata([255 if b > 150 and max(r, g) < 60 else 0 for r, g, b in shot.getdata()])
        box = mask.getbbox()
        if not box:
            return None
        # The hint hangs below the frame: the border's last full row ends it.
        rows = [y for y in range(box[1], box[3])
                if mask.crop((box[0], y, box[2], y + 1)).histogram()[255] > (box[2] - box[0]) // 2]
        return (box[0] + 200, box[1] + 200, box[2] + 200, rows[-1] + 201) if rows else None

    def wait_for_desktop(self, x, y, what):
        self.wait_for_pixel(x, y, lambda colour: desktop.near(colour, WALLPAPER), what)


class DrawingTest(OverlayTestCase):

    def test_marks_stay_while_clicks_and_keys_reach_the_desktop(self):
        plain = self.desktop.open_window("Beneath", (100, 200, 400, 300))
        self.start_drawing()
        self.assertEqual(self.overlay.geometry, desktop.Rect(0, 0, 1280, 800))
        self.desktop.pointer.drag([(150, 250), (450, 250)])
        self.wait_for_red(300, 250, "the stroke")
        self.assertEqual(plain.clicks, [])
        self.pass_through()
        self.wait_for(lambda: self.desktop.windows.active == plain.window,
                      "the window beneath to get the keyboard back")
        self.desktop.pointer.click(*plain.window.at(40, 150))
        self.wait_for(lambda: plain.clicks == [(40, 150, 1)], "the click to reach the window")
        self.desktop.keyboard.type("a")
        self.wait_for(lambda: plain.keys, "the key to reach the window")
        self.wait_for_red(300, 250, "the stroke to stay")
        self.draw_again()
        self.desktop.pointer.drag([(150, 400), (450, 400)])
        self.wait_for_red(300, 400, "the second stroke")
        self.assertEqual(len(plain.clicks), 1)
        self.assertGreater(self.desktop.windows.stacking.index(self.palette),
                           self.desktop.windows.stacking.index(self.overlay))

    def test_no_sample_is_lost_while_the_program_is_busy(self):
        self.start_drawing()
        self.desktop.pointer.move(200, 600)
        self.desktop.pointer.press()
        self.desktop.pointer.move(206, 600)
        self.desktop.pointer.move(208, 600)
        self.wait_for_red(207, 600, "the stroke to begin")
        corners = [(210 + 4 * i, 600 if i % 2 else 560) for i in range(200)]
        os.kill(self.program.pid, signal.SIGSTOP)
        try:
            for corner in corners:
                self.desktop.pointer.move(*corner)
        finally:
            os.kill(self.program.pid, signal.SIGCONT)
        self.desktop.pointer.release()
        self.wait_for_red(*corners[-1], "the end of the stroke")
        shot = self.desktop.screen.shot()
        self.assertEqual([c for c in corners if not is_red(shot.getpixel(c))], [])

    def test_a_stroke_goes_on_when_another_window_takes_the_keyboard(self):
        self.start_drawing()
        before = self.desktop.screen.shot((0, 0, 1100, 800))
        self.desktop.pointer.move(150, 600)
        self.desktop.pointer.press()
        self.desktop.pointer.glide([(150, 600), (250, 600)])
        self.wait_for_red(240, 600, "the stroke")
        left, top, right, bottom = desktop.changed_box(
            before, self.desktop.screen.shot((0, 0, 1100, 800)))
        # The pen cursor, too, stands at the stroke's end; nothing else of the screen has changed.
        self.assertTrue(left >= 145 and right <= 310 and 540 <= top and bottom <= 660)
        plain = self.desktop.open_window("Notice", (700, 100, 200, 100))
        self.desktop.windows.activate(plain.window)
        self.wait_for(lambda: self.desktop.windows.active == plain.window, "the keyboard to go")
        # Slowly: the program learns of it only after a while.
        self.desktop.pointer.glide([(250, 600), (350, 600)], samples=100)
        self.desktop.pointer.release()
        self.wait_for_red(345, 600, "the rest of the stroke")
        self.desktop.pointer.drag([(150, 650), (350, 650)])
        self.wait_for_red(250, 650, "the next stroke")

    def test_leaving_while_a_button_is_down_finishes_the_gesture_first(self):
        plain = self.desktop.open_window("Beneath", (100, 200, 400, 300))
        self.start_drawing()
        self.desktop.pointer.move(150, 300)
        self.desktop.pointer.press()
        self.desktop.pointer.glide([(150, 300), (250, 300)])
        self.wait_for_red(240, 300, "the stroke")
        drawing = self.desktop.screen.shot(tuple(self.palette.geometry)).tobytes()
        self.desktop.keyboard.tap("Ctrl+Q")
        self.wait_for(
            lambda: self.desktop.screen.shot(tuple(self.palette.geometry)).tobytes() != drawing,
            "the palette to say that drawing has ended")
        self.desktop.pointer.glide([(250, 300), (350, 300)])
        self.desktop.pointer.release()
        self.wait_for(lambda: not self.overlay.takes_pointer, "the pointer to be let through")
        self.desktop.pointer.click(*plain.window.at(200, 200))

        def arrived():
            self.assertEqual(plain.clicks, [(200, 200, 1)])
            return True
        self.wait_for(arrived, "only the new click to arrive")

    def test_a_mark_is_selected_moved_scaled_and_deleted(self):
        self.start_drawing()
        self.choose("Ctrl+R")
        self.desktop.pointer.drag([(300, 300), (500, 400)])
        self.wait_for_red(500, 350, "the rectangle")
        self.desktop.pointer.click(500, 350)
        left, top, right, bottom = self.wait_for(self.frame, "the frame")
        self.desktop.pointer.drag([((left + right) // 2, (top + bottom) // 2),
                                   ((left + right) // 2 + 50, (top + bottom) // 2 + 100)])
        self.wait_for(lambda: self.frame() == (left + 50, top + 100, right + 50, bottom + 100),
                      "the frame to follow")
        self.wait_until_settled()
        # The handle at the frame's right edge, at half its height.
        self.desktop.pointer.drag([(right + 50, (top + bottom) // 2 + 100),
                                   (right + 90, (top + bottom) // 2 + 100)])
        self.wait_for(lambda: self.frame()[2] > right + 60, "the handle to scale the mark")
        self.wait_until_settled()
        self.assertEqual(self.program.log().count("结束批处理变换，创建撤销记录"), 2)
        self.desktop.keyboard.tap("Esc")
        self.program.wait_for_log("Escape键按下，取消变换并隐藏控制点")
        self.desktop.keyboard.tap("Ctrl+Z", "Ctrl+Z")
        self.wait_for_red(500, 350, "undo to bring the mark back where it was")
        self.desktop.pointer.click(500, 350, desktop.RIGHT)
        self.program.wait_for_log("Element deleted")
        self.wait_for_desktop(500, 350, "the mark to go")

    def test_text_takes_every_key_and_the_third_click_places_the_next_editor(self):
        self.start_drawing()
        self.choose("Ctrl+T")
        self.desktop.pointer.click(300, 300)
        self.wait_for_red(300, 350, "the first editor's red frame")
        self.desktop.keyboard.type("a z\nq")
        self.desktop.pointer.click(800, 600)
        self.program.wait_for_log("文本编辑框已被销毁")
        self.assertIn('"a z\\nq"', self.program.log())
        self.wait_until_settled()
        empty = self.desktop.screen.shot()
        self.desktop.pointer.click(800, 500)
        self.wait_for(lambda: desktop.changed_box(empty, self.desktop.screen.shot()),
                      "the caret of the next editor")
        self.desktop.keyboard.type("next")
        self.desktop.pointer.click(300, 700)
        self.program.wait_for_log('内容: "next"')

    def test_the_icon_in_the_tray_is_used_through_the_overlay_but_not_through_a_board(self):
        self.start_drawing()
        icon = desktop.TrayIcon(self.desktop, self.program)
        x, y = icon.window.centre
        self.wait_for(lambda: self.desktop.windows.at(x, y) == icon.window, "the icon to be open")
        icon.choose(desktop.HIDE)
        self.wait_for(lambda: not self.palette.visible, "the palette to hide")
        icon.choose(desktop.HIDE)
        self.wait_for(lambda: self.palette.visible, "the palette to come back")
        self.desktop.pointer.drag([(x - 200, y), (x, y)])  # what begins beside it goes on above it
        self.wait_for_red(x - 4, y, "the stroke over the icon")
        desktop.Palette(self.desktop, self.program).choose("board", "white")
        self.wait_for(lambda: self.desktop.windows.at(x, y) == self.overlay,
                      "the board to take clicks where it hides the icon")

    def test_saving_says_where_the_picture_is_or_why_there_is_none(self):
        self.start_drawing()
        self.desktop.pointer.drag([(300, 600), (500, 600)])
        self.wait_for_red(400, 600, "the stroke")
        self.desktop.keyboard.tap("Ctrl+S")
        self.wait_for_notice(SUCCESS, "the notice of success")
        saved = [name for name in os.listdir(self.app_folder) if name.startswith("screenshot_")]
        self.assertEqual(len(saved), 1)

        # Into a file nobody can put another one, not even the superuser.
        os.rename(self.app_folder, self.app_folder + "-gone")
        for folder in (self.app_folder, os.path.join(self.desktop.home, "Pictures")):
            with open(folder, "wb"):
                pass
        self.desktop.keyboard.tap("Ctrl+S")
        self.wait_for_notice(ERROR, "the notice of failure")

    def wait_for_notice(self, colour, what):
        """A bar of this colour, with the path or the reason below its head line."""
        def look():
            shot = self.desktop.screen.shot((480, 60, 320, 300))
            rows = [y for y in range(shot.height)
                    if desktop.near(shot.getpixel((shot.width // 2, y)), colour, 8)]
            if len(rows) <= ONE_LINE:
                raise AssertionError(f"{len(rows)} rows have the colour")
            return True
        self.wait_for(look, what)


class GraphicsProcessorTest(OverlayTestCase):
    """As on a machine with a graphics processor: OpenGL, and frames painted by another thread."""

    def test_marks_come_and_go(self):
        # The driver loses 112 bytes; unloaded by then, it cannot be told from the program.
        self.start_drawing(finds_leaks=False,
                           env={"QSG_RHI_BACKEND": "opengl", "QSG_RENDER_LOOP": "threaded",
                                "QSG_INFO": "1"})
        self.program.wait_for_log("threaded render loop")
        for y in (200, 330, 460):
            self.desktop.pointer.drag([(200, y), (700, y + 40)])
            self.wait_for_red(450, y + 20, "the stroke")
        self.desktop.keyboard.tap("Ctrl+Z")
        self.wait_for_desktop(450, 480, "the last stroke to go")
        self.assertTrue(is_red(self.desktop.screen.pixel(450, 350)))


class MonitorsTest(OverlayTestCase):
    desktop_options = {"size": (1800, 800),
                       "monitors": [(0, 0, 1000, 800), (1000, 0, 800, 800)]}

    def test_the_overlay_follows_the_palette_and_survives_an_unplugged_monitor(self):
        self.start_drawing()
        self.assertEqual(self.overlay.geometry, desktop.Rect(0, 0, 1000, 800))
        self.desktop.pointer.drag([(300, 600), (500, 600)])
        self.wait_for_red(400, 600, "the stroke")
        self.pass_through()
        self.desktop.pointer.drag([self.palette.at(16, 16), (1300, 200)])
        self.wait_for(lambda: self.palette.geometry.x > 1100, "the palette to move over")
        self.draw_again()
        self.wait_for(lambda: self.overlay.geometry == desktop.Rect(1000, 0, 800, 800),
                      "the overlay to cover the second monitor")
        self.wait_for_red(1400, 600, "the stroke to come along")
        self.desktop.set_monitors([(0, 0, 1000, 800)])
        self.wait_for(lambda: self.overlay.geometry == desktop.Rect(0, 0, 1000, 800),
                      "the overlay to come back")
        self.wait_for_red(400, 600, "the stroke to stay")


class NoCompositorTest(OverlayTestCase):
    desktop_options = {"compositor": False}

    def test_a_frozen_screen_is_drawn_on_and_the_live_one_shows_between_the_marks(self):
        plain = self.desktop.open_window("Beneath", (100, 200, 400, 300), (250, 250, 210))
        self.start_drawing()
        paper = lambda colour: desktop.near(colour, (250, 250, 210))  # noqa: E731
        self.wait_for_pixel(640, 82, lambda colour: desktop.near(colour, (255, 244, 206), 20),
                            "the notice about the frozen screen")
        self.wait_for_pixel(300, 350, paper, "the frozen picture of the window beneath")
        self.desktop.pointer.drag([(150, 450), (450, 450)])
        self.wait_for_red(300, 450, "the stroke")
        self.pass_through()
        self.desktop.pointer.click(*plain.window.at(40, 150))
        self.wait_for(lambda: plain.clicks == [(40, 150, 1)], "the click to reach the window")
        self.desktop.open_window("Later", (200, 260, 300, 120), (200, 220, 255))
        self.wait_for_pixel(300, 350, lambda colour: desktop.near(colour, (200, 220, 255)),
                            "the live desktop")
        self.wait_for_pixel(300, 450, lambda colour: colour[0] > 120, "the stroke to stay")


PINYIN = """[Groups/0]
Name=Default
Default Layout=us
DefaultIM=pinyin

[Groups/0/Items/0]
Name=keyboard-us

[Groups/0/Items/1]
Name=pinyin

[GroupOrder]
0=Default
"""


class InputMethodTest(OverlayTestCase):

    def start_input_method(self):
        folder = os.path.join(self.desktop.home, ".config", "fcitx5")
        os.makedirs(folder)
        for name, text in (("profile", PINYIN), ("config", "[Behavior]\nActiveByDefault=True\n")):
            with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
                file.write(text)
        with open(os.path.join(self.desktop.folder, "desktop.log"), "ab") as log:
            self.desktop.guard.start(
                ["fcitx5", "--disable=wayland,cloudpinyin,notificationitem"],
                env=self.desktop.env(), stdout=log, stderr=log)
        self.wait_for(lambda: "Loaded addon pinyin" in self.desktop.log(), "the input method")

    def input_method_listens(self):
        """Whether the input method has been told of a focused editor: only then it gets keys."""
        answer = subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.fcitx.Fcitx5", "/controller",
             "org.fcitx.Fcitx.Controller1.DebugInfo"],
            env=self.desktop.env(), stdout=subprocess.PIPE, text=True, check=True).stdout
        return "focus:1" in answer

    def candidates(self):
        """The input method's own window with the choices, if it is open."""
        return [window for window in self.desktop.windows.all()
                if "fcitx" in (window.title + "".join(window.wm_class)).lower()
                and window.geometry.width > 80]

    def test_chinese_is_composed_in_the_editor_with_the_choices_at_the_caret(self):
        self.start_input_method()
        self.start_drawing(env={"QT_IM_MODULE": "fcitx"})
        self.choose("Ctrl+T")
        self.desktop.pointer.click(300, 300)
        self.wait_for_red(300, 350, "the first editor's red frame")
        self.wait_for(self.input_method_listens, "the input method to listen")
        self.desktop.keyboard.type("nihao")
        choices = self.wait_for(self.candidates, "the choices")[-1].geometry
        self.assertLess(abs(choices.x - 305), 60)
        self.assertTrue(300 < choices.y < 360, choices)
        self.desktop.keyboard.tap("space")
        self.wait_for(lambda: not self.candidates(), "the choice to be made")
        self.desktop.keyboard.type("zhong")
        self.wait_for(self.candidates, "the next choices")
        self.wait_until_settled()  # every letter has arrived
        self.desktop.pointer.click(800, 600)
        self.program.wait_for_log('接收到的原始文本: "你好zhong"')


if __name__ == "__main__":
    desktop.main()
