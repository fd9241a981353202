"""The harness itself: input arrives, monitors come and go, nothing survives a killed runner."""

import os
import signal
import subprocess
import sys

import desktop
from desktop.processes import parents

KILLED_RUNNER = """
import os, sys
sys.path.insert(0, sys.argv[1])
from desktop import Desktop
with Desktop() as desktop:
    desktop.open_window()
    print(desktop.folder, *[popen.pid for popen in desktop.guard.started], flush=True)
    sys.stdin.read()
"""


class HarnessTest(desktop.DesktopTestCase):

    def test_pointer_and_keys_reach_the_window_under_them(self):
        plain = self.desktop.open_window("Document", (200, 200, 300, 200), (250, 250, 210))
        self.desktop.pointer.click(*plain.window.at(20, 30))
        self.wait_for(lambda: plain.clicks == [(20, 30, 1)], "the click to arrive")
        self.assertEqual(self.desktop.windows.at(*plain.window.at(20, 30)), plain.window)
        self.assertFalse(plain.window.frameless)
        self.wait_for(lambda: self.desktop.windows.active == plain.window, "the focus to follow")
        self.desktop.keyboard.type("aZ画")
        self.wait_for(lambda: len(plain.keys) == 4, "a, Shift, Z and 画 to arrive")

    def test_the_screen_shows_wallpaper_and_windows(self):
        self.wait_for_pixel(640, 400, lambda colour: desktop.near(colour, (38, 70, 83)),
                            "the wallpaper")
        before = self.desktop.screen.shot()
        plain = self.desktop.open_window("Document", (500, 300, 300, 200), (250, 250, 210))
        self.wait_for_pixel(*plain.window.centre,
                            lambda colour: desktop.near(colour, (250, 250, 210)), "the window")
        left, top, right, bottom = desktop.changed_box(before, self.desktop.screen.shot())
        rect = plain.window.geometry
        self.assertLessEqual(left, rect.x)
        self.assertGreaterEqual(bottom, rect.y + rect.height)
        self.assertGreaterEqual(right - left, 300)
        self.assertGreater(rect.y, top, "the frame's title bar is drawn")

    def test_monitors_can_be_plugged_and_unplugged(self):
        from desktop import monitors
        halves = [(0, 0, 640, 800), (640, 0, 640, 800)]
        for layout in (halves, [(0, 0, 1280, 800)], halves, halves[1:]):
            self.desktop.set_monitors(layout)
            self.assertEqual(list(monitors.read_monitors(self.desktop.name).values()), layout)

    def test_a_desktop_beside_this_one_ends_alone(self):
        own = {popen.pid for popen in self.desktop.guard.started}
        with desktop.Desktop() as beside:
            its = {popen.pid for popen in beside.guard.started} - own
            self.assertGreaterEqual(len(its), 5)
        self.assertEqual(its & set(parents()), set())
        self.assertEqual(own - set(parents()), set())
        self.assertFalse(os.path.exists(beside.folder))
        self.assertTrue(os.path.exists(self.desktop.folder))

    def test_nothing_survives_a_killed_runner(self):
        here = os.path.dirname(os.path.abspath(__file__))
        runner = subprocess.Popen([sys.executable, "-B", "-c", KILLED_RUNNER, here],
                                  stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        folder, *pids = runner.stdout.readline().split()
        self.assertGreaterEqual(len(pids), 5)
        runner.send_signal(signal.SIGKILL)
        runner.communicate()
        self.wait_for(lambda: not any(int(pid) in parents() for pid in pids),
                      "the desktop's processes to end")
        self.wait_for(lambda: not os.path.exists(folder), "the folder to go")


if __name__ == "__main__":
    desktop.main()
