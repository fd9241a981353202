"""The command line: what answers without a display, commands for a running palette, displays."""

import contextlib
import json
import os
import socket
import subprocess
import time

import desktop
from desktop import video
from desktop.capturing import store_settings
from desktop.marks import FROM, PAPER, RED, TO, MarksTestCase
from PIL import Image

ON_STROKE = (400, 350)
BARE = "/usr/bin/env"
MEGABYTE = 1 << 20


class CommandTestCase(MarksTestCase):
    """`self.tell` is another start of the program, with commands."""

    def tell(self, *words, expect=0, **env):
        return tell(self, self.desktop, *words, expect=expect, **env)


def tell(case, where, *words, expect=0, **env):
    """Runs the program to its end; returns what it printed on its two channels."""
    executable = desktop.install(desktop.program_path(), case.app_folder)
    variables = {**where.env(), "ASAN_OPTIONS": "exitcode=99",
                 "LSAN_OPTIONS": f"suppressions={desktop.program.SUPPRESSIONS}:print_suppressions=0",
                 **env}
    done = subprocess.run([executable, *words], env=variables, cwd=where.home, timeout=60,
                          stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
    case.assertEqual(done.returncode, expect, f"{words}: {done.stdout}{done.stderr}")
    return done.stdout, done.stderr


class AnswersTest(desktop.DesktopTestCase):
    desktop_options = {"compositor": False}

    def test_questions_are_answered_without_a_display(self):
        out, err = tell(self, self.desktop, "--version", DISPLAY="")
        self.assertEqual((out, err), ("Dravelin 3.2.0\n", ""))
        out, err = tell(self, self.desktop, "--help", DISPLAY="", LANG="en_US.UTF-8")
        self.assertEqual(err, "")
        for word in ("--draw", "--capture [FILE]", "--export <FILE>", "Take back the last step"):
            self.assertIn(word, out)
        for words in (["--frob"], ["--draw", "now"], ["--export"]):
            out, err = tell(self, self.desktop, *words, expect=2, DISPLAY="")
            self.assertEqual((out, err.count("\n")), ("", 1), err)
        tell(self, self.desktop, "--quit", DISPLAY="")
        _, err = tell(self, self.desktop, "--undo", expect=1, DISPLAY="")
        self.assertIn("没有运行", err)


class CommandsTest(CommandTestCase):
    expected_warning = "HOME|runtime directory|截图保存失败"

    def test_drawing_undoing_hiding_and_saving(self):
        self.tell("--rectangle")
        self.wait_for(lambda: self.palette.overlay and self.palette.overlay.takes_pointer,
                      "the overlay to take the pointer")
        self.draw_and_see("rectangle")
        self.tell("--undo", "--pen")
        self.expect_gone("rectangle")
        self.draw_and_see("stroke")
        out, _ = self.tell("--pass-through", "--export", "marks.png", "--hide-marks")
        path = os.path.join(self.desktop.home, "marks.png")
        self.assertEqual(out, path + "\n")
        with Image.open(path) as picture:
            self.assertEqual(picture.size, self.desktop.size)
            self.assertEqual(picture.getpixel(ON_STROKE)[3], 255)
            self.assertTrue(desktop.near(picture.getpixel(ON_STROKE)[:3], RED, 60))
            self.assertEqual(picture.getpixel((10, 10))[3], 0)
        self.expect(ON_STROKE, PAPER, "the marks to be hidden")
        self.assertFalse(self.palette.overlay.takes_pointer)
        self.tell("--show-marks")
        self.expect(ON_STROKE, RED, "the marks to come back")
        self.tell("--hide-marks")
        self.expect(ON_STROKE, PAPER, "the marks to be hidden")
        self.tell("--draw")
        self.expect(ON_STROKE, RED, "drawing to bring the marks back")
        self.tell("--hide-marks")
        self.expect(ON_STROKE, PAPER, "the marks to be hidden")
        self.draw([(300, 560), (500, 560)])
        self.expect(ON_STROKE, RED, "a press to bring the marks back")
        self.tell("--clear")
        self.expect(ON_STROKE, PAPER, "the marks to go")

    def test_refusals_say_why_and_damage_nothing(self):
        out, err = self.tell("--undo", expect=1)
        self.assertEqual((out, err), ("", "没有可以撤销的操作\n"))
        self.assertIn("没有标记", self.tell("--export", "a.png", expect=1)[1])
        self.assertIn("没有", self.tell("--record-stop", expect=1)[1])
        self.palette.start_drawing()
        self.draw()
        self.expect(ON_STROKE, RED, "the stroke")
        self.assertIn(".png", self.tell("--export", "a.xyz", expect=1)[1])
        self.assertIn("/nowhere/a.png", self.tell("--export", "/nowhere/a.png", expect=1)[1])
        kept = os.path.join(self.desktop.home, "kept.png")
        with open(kept, "w", encoding="utf-8") as file:
            file.write("kept")
        os.link(kept, kept + ".other")
        # Where not even the superuser may write.
        self.assertIn("/proc/a.jpg", self.tell("--capture", "/proc/a.jpg", expect=1)[1])
        out, _ = self.tell("--export", "kept.png", "--undo", "--undo", "--clear", expect=1)
        self.assertEqual(out, kept + "\n")
        with open(kept + ".other", encoding="utf-8") as file:
            self.assertEqual(file.read(), "kept")  # replaced, not written into

    def test_captures_and_settings_and_the_end(self):
        store_settings(self.desktop.home, screenSavePath=self.desktop.home + "/shots")
        out, _ = self.tell("--capture", "shot.jpg")
        with Image.open(out.strip()) as picture:
            self.assertEqual(picture.size, self.desktop.size)
            self.assertTrue(desktop.near(picture.getpixel((300, 300)), PAPER, 20))
        out, _ = self.tell("--capture")
        self.assertEqual(os.path.dirname(out.strip()), self.desktop.home + "/shots")
        self.assertTrue(os.path.exists(out.strip()))
        self.tell("--settings")
        self.program.window(title="设置")
        self.tell("--quit")
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_a_start_with_commands_carries_them_out_itself(self):
        self.program.stop()
        # It ends when they are done, with all that it printed; the palette stays.
        out, err = self.tell("--draw", "--export", "a.png", "--settings", expect=1)
        self.assertEqual((out, err.count("\n")), ("", 1))
        self.assertIn("没有内容", err)
        self.assertFalse(self.desktop.windows.all(title="设置"))
        overlay = self.desktop.wait_for_window("the overlay", title="绘制窗口")
        self.assertTrue(overlay.takes_pointer)
        self.tell("--toggle")
        self.wait_for(lambda: not overlay.takes_pointer, "the pointer to be let through")
        self.tell("--quit")
        self.wait_for(lambda: not self.desktop.windows.all(title="主窗口"), "the palette to go")
        out, _ = self.tell("--capture", "shot.png")
        self.assertTrue(os.path.exists(out.strip()))
        self.tell("--quit")

    def test_starts_with_commands_at_once_share_one_palette(self):
        self.program.stop()
        starts = [self.start("--draw") for _ in range(3)]
        self.assertEqual([start.wait_for_end() for start in starts], [0, 0, 0])
        self.assertEqual(len(self.desktop.windows.all(title="主窗口")), 1)
        self.tell("--quit")

    def test_every_tool_is_picked_up(self):
        for shape in ("circle", "rectangle", "arrow", "line"):
            self.tell("--clear", f"--{shape}")
            self.draw_and_see(shape)
        self.tell("--eraser")
        self.erase()
        self.expect(ON_STROKE, PAPER, "a gap in the line")
        self.tell("--undo")
        self.expect(ON_STROKE, RED, "the line to be whole")
        self.tell("--redo")
        self.expect(ON_STROKE, PAPER, "the gap again")
        self.tell("--clear", "--highlighter")
        self.draw()
        self.expect(ON_STROKE, (252, 150, 126), "a pale stroke", 60)

    def test_what_strangers_send_costs_nothing(self):
        before = self.resident()
        for start in (b"a", b"\0"):
            with self.connected() as connection, contextlib.suppress(ConnectionError):
                for _ in range(50):
                    connection.sendall(start + bytes(MEGABYTE))
        self.tell("--undo", expect=1)  # it has read all that it will
        self.assertLess(self.resident() - before, 20 * MEGABYTE)
        with self.connected() as connection:
            connection.sendall(b"\0" + json.dumps({"format": 9}).encode() + b"\n")
            self.assertIn(b"false", connection.recv(4096))

    @contextlib.contextmanager
    def connected(self):
        with socket.socket(socket.AF_UNIX) as connection:
            connection.settimeout(30)
            connection.connect(os.path.join(self.desktop.folder, "tmp", "morvale.sketchorb"))
            yield connection

    def resident(self):
        with open(f"/proc/{self.program.pid}/statm", encoding="utf-8") as numbers:
            return int(numbers.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


class RecordingTest(CommandTestCase):

    def test_a_recording_without_a_click(self):
        folder = self.desktop.home + "/videos"
        store_settings(self.desktop.home, screenSavePath=folder)
        self.program.stop()
        self.program = self.start(env={"PULSE_SERVER": "unix:/nowhere"})
        palette = desktop.Palette(self.desktop, self.program)
        self.assertTrue(palette.window)  # else the other start would be the one that runs
        self.tell("--record-start", "--draw")
        self.assertIn("录制", self.tell("--record-start", expect=1)[1])
        self.draw([FROM, TO])
        self.expect(ON_STROKE, RED, "the stroke")
        path = self.tell("--pass-through", "--record-stop")[0].strip()
        self.assertEqual(os.path.dirname(path), folder)
        facts = video.facts(path)
        self.assertEqual(facts.size, self.desktop.size)
        # The very last picture: on a busy machine little time passes between stroke and end.
        last = video.frame(path, facts.seconds - 1.5 / 30)
        self.assertTrue(desktop.near(last.getpixel(ON_STROKE), RED, 60))
        self.wait_for(lambda: not self.program.windows(title="录屏"), "the panel to close")
        self.tell("--record-stop", expect=1)
        palette.click("record")  # the panel opens for a hand as ever
        self.program.window(title="录屏")

    def test_one_recording_follows_another_at_once(self):
        store_settings(self.desktop.home, screenSavePath=self.desktop.home + "/videos")
        self.program.stop()
        self.program = self.start(env={"PULSE_SERVER": "unix:/nowhere"})
        self.assertTrue(desktop.Palette(self.desktop, self.program).window)
        self.tell("--record-start")
        paths = []
        for words in (["--record-stop", "--record-start"], ["--record-stop"]):
            began = time.monotonic()
            # A recording has to last.
            self.wait_for(lambda began=began: time.monotonic() - began > 1, "a while")
            paths.append(self.tell(*words)[0].strip())
        self.assertNotEqual(*paths)
        for path in paths:
            self.assertEqual(video.facts(path).size, self.desktop.size)
        self.wait_for(lambda: not self.program.windows(title="录屏"), "the panel to close")

    def test_a_recording_that_cannot_begin_says_why(self):
        store_settings(self.desktop.home, screenSavePath="/proc/nowhere")
        self.program.stop()
        self.program = self.start()
        desktop.Palette(self.desktop, self.program).window
        self.assertIn("/proc/nowhere", self.tell("--record-start", expect=1)[1])
        self.wait_for(lambda: not self.program.windows(title="录屏"), "the panel to close")


class InstancesTest(desktop.DesktopTestCase):

    def test_every_display_has_its_palette(self):
        first = self.start()
        palette = desktop.Palette(self.desktop, first).window
        with desktop.Desktop() as other:
            shared = {"TMPDIR": self.desktop.env()["TMPDIR"]}
            executable = desktop.install(desktop.program_path(), self.app_folder)
            second = other.start_program(executable, env=shared)
            desktop.Palette(other, second).window
            # Each display's further starts find its own palette, however they write its name.
            third = other.start_program(executable, env={**shared, "DISPLAY": other.name + ".0"})
            self.assertEqual(third.wait_for_end(), 0)
            tell(self, other, "--draw", **shared)
            self.wait_for(lambda: desktop.Palette(other, second).overlay, "the other's overlay")
            self.assertIsNone(desktop.Palette(self.desktop, first).overlay)
            self.assertEqual(self.start().wait_for_end(), 0)
            self.assertTrue(palette.visible)

            restarted = other.start_program(executable, "--restart", env=shared)
            desktop.Palette(other, restarted).window
            tell(self, self.desktop, "--quit")
            self.assertEqual(first.wait_for_end(), 0)
            second.stop()
            tell(self, other, "--quit", **shared)
            self.assertEqual(restarted.wait_for_end(), 0)
            reports = [program.sanitizer_reports() for program in other.programs]
            self.assertEqual("".join(reports), "")

    def test_whose_home_it_is_does_not_matter(self):
        executable = desktop.install(desktop.program_path(), self.app_folder)
        strangers = os.path.join(self.desktop.folder, "strangers")
        os.makedirs(strangers)
        if os.geteuid() == 0:
            os.chown(strangers, 65534, 65534)
        else:
            strangers = "/usr"
        first = self.start(env={"HOME": strangers})
        desktop.Palette(self.desktop, first).window
        missing = os.path.join(self.desktop.folder, "missing")
        for words in (["-u", "HOME"], [f"HOME={missing}"], [f"HOME={self.desktop.home}"]):
            start = self.desktop.start_program(BARE, *words, executable)
            self.assertEqual(start.wait_for_end(), 0, words)
        self.assertTrue(first.running)

    def test_what_lies_in_the_locks_place_holds_nobody_up(self):
        lock = os.path.join(self.desktop.folder, "tmp", f"morvale.sketchorb-{os.geteuid()}.lock")
        os.mkfifo(lock)  # opened, it would wait for ever
        program = self.start()
        desktop.Palette(self.desktop, program).window
        self.assertEqual(self.start().wait_for_end(), 0)
        tell(self, self.desktop, "--quit")
        self.assertEqual(program.wait_for_end(), 0)


class WithoutTrayTest(desktop.DesktopTestCase):
    desktop_options = {"tray": False}

    def test_it_starts_where_it_is_told_to(self):
        program = self.start("--without-tray")
        palette = desktop.Palette(self.desktop, program)
        window = palette.window
        self.desktop.windows.close(window)  # nothing could bring it back
        tell(self, self.desktop, "--draw")
        self.wait_for(lambda: palette.overlay, "the overlay")
        self.assertTrue(window.visible)
        palette.choose("menu", "quit")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertIn("系统托盘", tell(self, self.desktop, "--draw", expect=255)[1])
        tell(self, self.desktop, "--without-tray", "--draw")
        self.assertTrue(self.desktop.windows.find(title="绘制窗口"))
        tell(self, self.desktop, "--quit")


if __name__ == "__main__":
    desktop.main()
