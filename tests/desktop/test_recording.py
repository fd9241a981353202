"""The recording panel with the real recorder: what the video holds, and what the user is told."""

import os
import signal
import subprocess
import sys
import time

import desktop
from desktop import sound, video
from desktop.capturing import ACCENT, CLOSE_PANEL, START, CaptureTestCase

TONE_HZ = 1000
RED, GREEN, PAPER = (255, 0, 0), (0, 200, 0), (250, 250, 210)
SHOWN_S = 3.0
NO_SOUND = {"PULSE_SERVER": "unix:/nowhere"}


class RecordingTestCase(CaptureTestCase):

    def begin(self):
        """Starts a recording of the preset region; returns the moment at which it had started."""
        panel = self.open_window("record", "录屏")
        self.start_asked = time.monotonic()
        self.press(START)
        self.program.wait_for_log("录制已开始，界面已隐藏")
        self.wait_for(lambda: not panel.takes_pointer, "the panel to let the pointer through")
        return time.monotonic()

    def end(self):
        """Ends it with the palette; returns the video's path and what the notice says."""
        self.palette.click("record")
        self.program.wait_for_log("QML监听到：录制已停止")
        self.end_seen = time.monotonic()
        notice = self.notice("录像已保存")
        text = notice.title
        self.desktop.pointer.click(*notice.centre)
        self.expect_opened_folder()
        path, = self.captures()
        return path, text

    def recorder(self):
        """The process id of the running recorder."""
        pid, = self.program.children()
        return pid

    def perform(self, began):
        """Lets a block travel, and draws a mark, until the recording is long enough."""
        block = self.desktop.open_window("Block", (300, 200, 80, 80), GREEN)
        pointer = self.desktop.pointer
        pointer.move(400, 500)
        pointer.press()
        for step in range(1, 10000):
            passed = time.monotonic() - began
            if passed > SHOWN_S:
                return
            block.move(300 + round(passed * 150), 200)
            if step <= 40:
                pointer.move(400 + 5 * step, 500)
            if step == 40:
                pointer.release()
            time.sleep(desktop.inputs.SAMPLE_INTERVAL_S)

    @staticmethod
    def block_x(picture):
        """Where the block is in a frame, above the mark and the pointer; None before it is there."""
        above = picture.getchannel("G").crop((0, 0, picture.width, 200))
        box = above.point(lambda level: 255 if level > 150 else 0).getbbox()
        return box and box[0]

    def expect_travel(self, frames):
        """The block is at different places in the frames."""
        places = {self.block_x(frame) for frame in frames} - {None}
        self.assertGreater(max(places) - min(places), 20)


class RecordingTest(RecordingTestCase):

    def test_shows_what_moves_and_what_is_drawn_and_plays_the_sound(self):
        server = sound.SoundServer(self.desktop)
        server.play(TONE_HZ)
        self.launch(PULSE_SERVER=server.address)
        self.palette.start_drawing()
        # The recording begins and ends somewhere between what is done here and what is seen of it.
        start_seen = self.begin()
        self.perform(start_seen)
        end_asked = time.monotonic()
        path, text = self.end()
        self.assertNotIn("没有声音", text)

        facts = video.facts(path)
        x, y, width, height = self.preset
        self.assertEqual(facts.size, (width - 6, (height - 9) // 2 * 2))
        self.assertGreater(facts.seconds, end_asked - start_seen - 0.5)
        self.assertLess(facts.seconds, self.end_seen - self.start_asked + 0.5)
        self.assertAlmostEqual(facts.frames / facts.seconds, 30, delta=3)
        self.assertTrue(facts.has_sound)
        self.assertGreater(sound.tone_share(path, TONE_HZ), 0.7)

        frames = [video.frame(path, facts.seconds * part / 10) for part in range(1, 10)]
        stroke = frames[5].getpixel((500 - x - 3, 500 - y - 3))
        self.assertTrue(desktop.near(stroke, RED, 60), stroke)
        self.expect_travel(frames)

    def test_a_killed_recorder_leaves_a_video_and_a_message(self):
        self.launch(**NO_SOUND)
        began = self.begin()
        self.wait_for(lambda: time.monotonic() - began > SHOWN_S, "a while")
        os.kill(self.recorder(), signal.SIGKILL)
        self.notice("录制失败 · 录制程序意外结束")
        path, = self.captures()
        self.assertGreater(video.facts(path).seconds, SHOWN_S - 1.5)
        # The panel is there for another try.
        self.press(START)
        self.program.wait_for_log("录制已开始，界面已隐藏", count=2)

    def test_a_crash_of_the_program_ends_the_recording_in_order(self):
        self.launch(**NO_SOUND)
        began = self.begin()
        recorder = self.recorder()
        self.wait_for(lambda: time.monotonic() - began > 1, "a while")
        self.program.kill()
        self.wait_for(lambda: recorder not in desktop.processes.parents(), "the recorder to end")
        self.assertGreater(video.facts(*self.captures()).frames, 15)

    def test_the_whole_screen_shows_no_counter_and_without_a_server_no_sound(self):
        self.launch(**NO_SOUND)
        width, height = self.desktop.size
        panel = self.open_window("record", "录屏")
        self.desktop.pointer.drag([(5, 5), (width - 1, height - 1)])
        x, y = width - 20 - START, height - 20 - 28
        self.desktop.pointer.click(x, y)
        began = self.program.wait_for_log("录制已开始，界面已隐藏") and time.monotonic()
        # The missing sound is told for a while where the button was.
        self.wait_for_pixel(x + 30, y, self.is_pill, "the message")
        self.wait_for_pixel(x + 30, y, lambda colour: not self.is_pill(colour), "it to go")
        self.assertGreater(time.monotonic() - began, 3)
        path, text = self.end()
        self.assertIn("没有声音", text)
        self.expect_closed(panel)
        self.assertFalse(video.facts(path).has_sound)

    @staticmethod
    def is_pill(colour):
        return max(colour) - min(colour) < 16 and max(colour) < 90

    def test_can_be_left_with_its_button_and_with_escape(self):
        self.launch()
        panel = self.open_window("record", "录屏")
        self.press(CLOSE_PANEL)
        self.expect_closed(panel)
        panel = self.open_window("record", "录屏")
        self.desktop.keyboard.tap("Escape")
        self.expect_closed(panel)
        self.assertEqual(self.captures(), [])

    def expect_failure(self, text):
        self.open_window("record", "录屏")
        self.press(START)
        notice = self.notice("录制失败 · " + text)
        self.wait_for(lambda: self.desktop.windows.at(*notice.centre) == notice,
                      "the notice above the panel")

    def test_what_prevents_a_recording_is_told(self):
        self.launch(folder="/proc/none")
        self.expect_failure("无法创建文件夹 /proc/none")
        self.program.stop()

        self.launch(folder="/proc")
        self.expect_failure("无法写入录像文件")
        self.program.stop()

        self.launch(PATH=self.browser.tools)
        self.expect_failure("没有找到 FFmpeg")
        self.program.stop()

        self.launch()
        os.remove(os.path.join(self.app_folder, "thirdparty/capture/obs/recorder.exe"))
        self.expect_failure("无法启动录制程序")

    def test_a_full_disk_is_told(self):
        # Some containers let nobody mount a disk; a skipped test would fail the run.
        alone = [desktop.server.tool("unshare"), "--map-root-user", "--mount"]
        if subprocess.run([*alone, "true"], check=False).returncode:
            print("no disk of its own on this machine", file=sys.stderr)
            return
        program = desktop.install(desktop.program_path(), self.app_folder)
        os.makedirs(self.folder)
        desktop.capturing.store_settings(self.desktop.home, screenSavePath=self.folder)
        # A disk of its own that a few pictures fill; it goes with the program.
        self.follow(self.desktop.start_program(
            *alone, "sh", "-c", 'mount -t tmpfs -o size=16k none "$0" && exec "$1"', self.folder,
            program, env=NO_SOUND))
        self.expect_failure("磁盘已满")


class NoCompositorTest(RecordingTestCase):
    desktop_options = {"compositor": False}

    def open_window(self, tool, title):
        self.desktop.open_window("Beneath", (700, 300, 200, 200), PAPER)
        window = super().open_window(tool, title)
        self.expect_beneath()
        return window

    def test_the_live_screen_is_recorded_and_a_still_one_picked_from(self):
        self.launch(**NO_SOUND)
        self.perform(self.begin())
        os.kill(self.recorder(), signal.SIGKILL)
        self.notice("录制失败 · 录制程序意外结束")
        path, = self.captures()
        seconds = video.facts(path).seconds
        frames = [video.frame(path, seconds * part / 5) for part in range(1, 5)]
        self.expect_travel(frames)
        x, y, _, _ = self.preset
        beneath = frames[3].getpixel((800 - x - 3, 450 - y - 3))
        self.assertTrue(desktop.near(beneath, PAPER, 40), beneath)
        self.expect_beneath()  # there is another try

    def expect_beneath(self):
        """The panel is open for picking, and what lies beneath it is seen."""
        self.wait_for_pixel(*self.button(START), lambda colour: desktop.near(colour, ACCENT),
                            "the buttons")
        self.assertTrue(desktop.near(self.desktop.screen.pixel(800, 450), PAPER))


if __name__ == "__main__":
    desktop.main()
