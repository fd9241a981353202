"""A stranger's first steps with a program that stands in a bare system; scripts/checks/bare makes
the system and names it: BARE_KIND (clone, deb, portable), BARE_SYSTEM (its root folder) and
BARE_PROGRAM (the program's path in it).

The desktop is this machine's, the program and all that it loads are the bare system's. It runs as an
ordinary user, but for the clone, which is its owner's."""

import glob
import os
import shutil
import stat
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "desktop"))

import desktop  # noqa: E402 (needs the path above)
import test_update  # noqa: E402
from desktop import video  # noqa: E402
from desktop.capturing import ACCENT, START  # noqa: E402
from desktop.settingswindow import SettingsWindow  # noqa: E402

KIND, SYSTEM, PROGRAM = (os.environ["BARE_" + name] for name in ("KIND", "SYSTEM", "PROGRAM"))
RED, PAPER = (255, 0, 0), (250, 250, 210)
STRANGER = 1000
RECORDED_S = 2.5
PATH = "/usr/local/bin:/usr/bin:/bin"


class StrangerTestCase(desktop.DesktopTestCase):

    is_read_only = False

    def setUp(self):
        # After everything else: the program has to have ended.
        self.addCleanup(self.clear_program_folder)
        super().setUp()
        self.user = 0 if KIND == "clone" else STRANGER
        self.program_folder = os.path.dirname(os.path.realpath(SYSTEM + PROGRAM))
        if KIND == "deb":
            self.program_folder = SYSTEM + "/usr/lib/dravelin"
        home = ("/root/" if KIND == "clone" else "/home/stranger/") + self._testMethodName
        self.home = SYSTEM + home
        runtime = SYSTEM + "/tmp/" + self._testMethodName
        for folder in (self.home, runtime):
            os.makedirs(folder, mode=0o700)
            os.chown(folder, self.user, self.user)
        self.variables = {
            "HOME": home, "PATH": PATH, "TMPDIR": "/tmp", "XDG_RUNTIME_DIR": runtime[len(SYSTEM):],
            "DBUS_SESSION_BUS_ADDRESS": "disabled:", "PULSE_SERVER": "unix:/nowhere"}
        self.document = self.desktop.open_window("Document", (200, 150, 700, 500), PAPER)

    def enter(self, *arguments, without=()):
        """Starts the program; `without` names variables that it does not get."""
        script = os.path.join(self.desktop.folder, f"enter-{len(self.desktop.programs)}")
        drop = " ".join(f"-u {name}" for name in without)
        put = " ".join(f"'{name}={value}'" for name, value in self.variables.items()
                       if name not in without)
        with open(script, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\nexec chroot '{SYSTEM}' setpriv --reuid {self.user} "
                       f"--regid {self.user} --clear-groups env -C / {drop} {put} "
                       f"'{PROGRAM}' \"$@\"\n")
        os.chmod(script, 0o755)
        return self.desktop.start_program(script, *arguments, finds_leaks=False)

    def launch(self, *arguments, **options):
        self.program = self.enter(*arguments, **options)
        self.palette = desktop.Palette(self.desktop, self.program)
        self.palette.window

    def make_read_only(self):
        folder = self.program_folder
        subprocess.run(["mount", "--bind", folder, folder], check=True)
        self.is_read_only = True
        subprocess.run(["mount", "-o", "remount,ro,bind", folder], check=True)

    def clear_program_folder(self):
        """The next test finds it as it was delivered."""
        if self.is_read_only:
            subprocess.run(["umount", self.program_folder], check=True)
        for pattern in ("draw_*", "screenshot_*", "recording_*", "*.mkv", "*.mp4", "config.ini",
                        "updater", "started"):
            for path in glob.glob(os.path.join(self.program_folder, pattern)):
                os.remove(path)

    def draw(self):
        self.palette.start_drawing()
        # As wide as it gets: a JPEG blurs what is narrow.
        self.palette.choose("thickness", "d")
        self.desktop.pointer.drag([(399, 350), (400, 350), (600, 350)])
        self.wait_for_pixel(500, 350, lambda seen: desktop.near(seen, RED, 60), "the stroke")

    def file_in(self, folder, pattern):
        """Waits for the one file of a name in a folder."""
        def look():
            found = glob.glob(os.path.join(folder, pattern))
            return len(found) == 1 and os.path.getsize(found[0]) and found[0]
        return self.wait_for(look, f"{pattern} in {folder}")

    @property
    def keeps_all_beside_itself(self):
        return KIND != "deb"

    def ini_folder(self):
        return self.program_folder if self.keeps_all_beside_itself else self.home + "/.config/korvath"

    def pictures_folder(self):
        return self.program_folder if self.keeps_all_beside_itself else self.home + "/Pictures"

    def videos_folder(self):
        return self.program_folder if self.keeps_all_beside_itself else self.home + "/Videos"

    def export(self, folder):
        self.desktop.keyboard.tap("Ctrl+S")
        path = self.file_in(folder, "screenshot_*.png")
        with desktop.screen.Image.open(path) as picture:
            colours = [colour for _, colour in picture.convert("RGBA").getcolors(1 << 20)]
        self.assertIn((255, 0, 0, 255), colours)

    def capture(self, folder):
        self.palette.stop_drawing()
        self.desktop.keyboard.tap("Ctrl+P")
        path = self.file_in(folder, "draw_*.jpg")
        with desktop.screen.Image.open(path) as picture:
            self.assertEqual(picture.size, self.desktop.size)
            self.assertTrue(desktop.near(picture.getpixel((500, 350)), RED, 60))
            self.assertTrue(desktop.near(picture.getpixel((500, 500)), PAPER, 30))

    def record(self, folder):
        self.palette.click("record")
        panel = self.program.window(title="录屏")
        width, height = self.desktop.size
        x, y = width * 4 // 5 - START, height * 4 // 5 + 12
        self.wait_for_pixel(x - 30, y, lambda seen: desktop.near(seen, ACCENT), "the buttons")
        self.desktop.pointer.click(x, y)
        self.wait_for(lambda: not panel.takes_pointer, "the recording to start")
        began = time.monotonic()
        self.wait_for(lambda: time.monotonic() - began > RECORDED_S, "enough to be recorded")
        self.palette.click("record")
        self.program.wait_for_log("QML监听到：录制已停止")
        path, = glob.glob(os.path.join(folder, "*.mp4")) + glob.glob(os.path.join(folder, "*.mkv"))
        self.assertGreaterEqual(video.facts(path).seconds, 2)

    def use(self, pictures, videos):
        self.draw()
        self.export(pictures)
        self.capture(pictures)
        self.record(videos)


class StrangerTest(StrangerTestCase):

    def test_draws_exports_captures_and_records(self):
        self.launch()
        self.use(self.pictures_folder(), self.videos_folder())
        self.assertTrue(os.path.exists(os.path.join(self.ini_folder(), "config.ini")))
        owner = os.stat(self.home + "/.config/korvath/settings.conf")
        self.assertEqual(owner.st_uid, self.user)
        self.assertFalse(owner.st_mode & stat.S_IWOTH)

    def test_a_folder_that_cannot_be_written(self):
        self.make_read_only()
        self.launch()
        self.use(self.home + "/Pictures", self.home + "/Videos")
        self.assertTrue(os.path.exists(self.home + "/.config/korvath/config.ini"))

    def test_another_language_restarts_it_and_a_second_start_finds_it(self):
        self.launch()
        SettingsWindow(self.desktop, self.program, self.palette).speak_english()
        self.assertEqual(self.program.wait_for_end(), 0)
        window = self.desktop.wait_for_window(title="Main window")
        self.desktop.windows.close(window)
        self.wait_for(lambda: not self.desktop.windows.all(title="Main window"), "it to hide")
        self.assertEqual(self.enter().wait_for_end(), 0)
        self.desktop.wait_for_window("the hidden palette", title="Main window")
        self.assertEqual([found.pid for found in self.desktop.windows.all(title="Main window")],
                         [window.pid])
        done = self.enter("--quit")
        self.assertEqual(done.wait_for_end(), 0)
        self.wait_for(lambda: not self.desktop.windows.all(title="Main window"), "it to quit")

    def test_without_a_home_it_takes_that_of_the_account_and_starts_once(self):
        self.launch(without=("HOME",))
        self.draw()
        account = SYSTEM + ("/root" if KIND == "clone" else "/home/stranger")
        self.assertTrue(os.path.exists(account + "/.config/korvath/settings.conf"))
        self.assertEqual(self.enter(without=("HOME",)).wait_for_end(), 0)

    def test_a_command_draws_and_captures(self):
        self.launch()
        for verb in ("--draw", "--pen"):
            self.assertEqual(self.enter(verb).wait_for_end(), 0)
        self.wait_for(lambda: self.palette.overlay and self.palette.overlay.takes_pointer,
                      "the overlay to take the pointer")
        self.desktop.pointer.drag([(399, 350), (400, 350), (600, 350)])
        self.wait_for_pixel(500, 350, lambda seen: desktop.near(seen, RED, 60), "the stroke")
        wanted = self.variables["HOME"] + "/marks.png"
        export = self.enter("--export", wanted)
        self.assertEqual(export.wait_for_end(), 0)
        self.assertIn(wanted, export.log())
        self.assertTrue(os.path.getsize(SYSTEM + wanted))
        self.assertEqual(self.enter("--no-such-thing").wait_for_end(), 2)

    def test_an_update_is_installed_where_no_package_manager_does_that(self):
        service = test_update.Service()
        self.addCleanup(service.close)
        folder = self.ini_folder()
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "config.ini"), "w", encoding="utf-8") as config:
            config.write(f"[UPDATE]\nUpdateURL={service.address}/check\n")
        self.launch()
        notice = self.program.window(title=test_update.NOTICE)
        width, height = notice.geometry.width, notice.geometry.height
        button = notice.at(width - 30, height - 40)
        if KIND == "deb":
            # There is a sentence above a button that only closes it.
            self.wait_for(lambda: self.letters(notice.at(24, height - 96), (width - 48, 26)) > 100,
                          "the sentence")
            self.assertFalse(desktop.near(self.desktop.screen.pixel(*button), ACCENT, 30))
        else:
            self.wait_for_pixel(*button, lambda seen: desktop.near(seen, ACCENT, 30), "the button")
        self.desktop.screen.save(os.path.join(desktop.artifacts_folder(), f"{KIND}-update.png"))
        self.desktop.pointer.click(*notice.at(width - 64, height - 40))
        if KIND == "deb":
            self.wait_for(lambda: not self.program.windows(title=test_update.NOTICE), "it to close")
            self.assertEqual(service.downloads, 0)
            return
        self.assertEqual(self.program.wait_for_end(), 0)
        self.file_in(self.program_folder, "started")

    def letters(self, place, size):
        """How many dark pixels there are in a part of the screen."""
        shot = self.desktop.screen.shot((*place, *size))
        return sum(number for number, colour in shot.getcolors(1 << 20) if max(colour) < 110)

    def test_version_and_help_need_no_display(self):
        for switch, text in (("--version", "3.2.0"), ("--help", "--export")):
            answer = self.enter(switch, without=("DISPLAY",))
            self.assertEqual(answer.wait_for_end(), 0)
            self.assertIn(text, answer.log())


class WithoutTrayTest(StrangerTestCase):
    desktop_options = {"tray": False}

    def test_a_desktop_without_a_tray(self):
        self.launch("--without-tray")
        self.draw()
        refused = self.enter("--restart")  # asks nobody who is there already
        self.assertEqual(refused.wait_for_end(), 255)


def missing_libraries():
    """Libraries that something of the program would not find in its system."""
    folder = SYSTEM + os.path.dirname(PROGRAM) if KIND != "deb" else SYSTEM + "/usr/lib/dravelin"
    programs = [path for path in glob.glob(folder + "/**", recursive=True)
                if os.path.isfile(path) and (os.access(path, os.X_OK) or path.endswith(".so"))]
    for path in programs:
        told = subprocess.run(["chroot", SYSTEM, "ldd", path[len(SYSTEM):]], check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
        yield from (f"{path}: {line.strip()}" for line in told.splitlines() if "not found" in line)


if __name__ == "__main__":
    if not shutil.which("chroot"):
        sys.exit("chroot is missing")
    if KIND != "clone":
        lacking = list(missing_libraries())
        if lacking:
            sys.exit("\n".join(lacking))
    desktop.main()
