"""Starts and ends that go differently: races, a late tray, damaged files, a logout, languages."""

import os
import signal

import desktop

NAME = "morvale.sketchorb"


def palette(program):
    return program.window("the palette", title="主窗口")


class LifecycleTest(desktop.DesktopTestCase):
    expected_warning = "The deployment file is damaged"

    def socket_path(self):
        return os.path.join(self.desktop.folder, "tmp", NAME)

    def config(self):
        with open(os.path.join(self.app_folder, "config.ini"), encoding="utf-8") as file:
            return file.read()

    def test_a_damaged_config_is_kept_aside_and_its_groups_survive(self):
        os.makedirs(self.app_folder)
        damaged = "[Network]\nAPI=https://a.example\nthis is no setting\n[Other]\nkey=1\n"
        with open(os.path.join(self.app_folder, "config.ini"), "w", encoding="utf-8") as file:
            file.write(damaged)
        program = self.start()
        palette(program)
        for text in ("[APP]", "API=https://a.example", "[Other]\nkey=1"):
            self.assertIn(text, self.config())
        copies = [name for name in os.listdir(self.app_folder) if ".broken-" in name]
        self.assertEqual(len(copies), 1)
        with open(os.path.join(self.app_folder, copies[0]), encoding="utf-8") as file:
            self.assertEqual(file.read(), damaged)
        self.assertIn(copies[0], program.log())

    def test_a_second_start_brings_a_hidden_palette_back(self):
        first = self.start()
        window = palette(first)
        desktop.TrayIcon(self.desktop, first).choose(desktop.HIDE)
        self.wait_for(lambda: window not in first.windows(), "the palette to hide")
        self.assertEqual(self.start().wait_for_end(), 0)
        palette(first)

    def test_two_starts_at_once_leave_one(self):
        starts = [self.start() for _ in range(3)]
        self.wait_for(lambda: [program.exit_code for program in starts].count(0) == 2,
                      "two of three to give way")
        running, = [program for program in starts if program.running]
        palette(running)

    def test_the_name_that_cannot_be_had_ends_the_start(self):
        os.makedirs(os.path.join(self.socket_path(), "inner"))
        self.assertEqual(self.start().wait_for_end(), 1)

    def test_a_logout_ends_it_in_order(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number):
                program = self.start()
                palette(program)
                os.kill(program.pid, number)
                self.assertEqual(program.wait_for_end(), 0)

    def test_closing_a_window_ends_neither_the_program_nor_the_marks(self):
        program = self.start()
        tools = desktop.Palette(self.desktop, program)
        overlay = tools.start_drawing()
        self.desktop.pointer.drag([(300, 300), (600, 300)])
        is_red = lambda colour: desktop.near(colour, (255, 0, 0), 90)  # noqa: E731
        self.wait_for_pixel(450, 300, is_red, "the stroke")
        self.desktop.windows.close(overlay)
        self.wait_for(lambda: not overlay.takes_pointer, "the pointer to be let through")
        window = tools.window
        self.desktop.windows.close(window)
        self.wait_for(lambda: window not in program.windows(), "the palette to hide")
        self.wait_for_pixel(450, 300, is_red, "the stroke to stay")
        desktop.TrayIcon(self.desktop, program).choose(desktop.HIDE)
        tools.choose("menu", "quit")
        self.assertEqual(program.wait_for_end(), 0)


class LateTrayTest(desktop.DesktopTestCase):
    desktop_options = {"tray": False}

    def test_a_tray_that_comes_late_is_waited_for(self):
        program = self.start()
        program.wait_for_log("OpenGL rendering")
        self.desktop.start_companion("tray")
        palette(program)


class LanguageTest(desktop.DesktopTestCase):
    desktop_options = {"language": "en_GB"}

    def test_it_speaks_the_language_of_the_desktop_or_the_chosen_one(self):
        program = self.start()
        program.window(title="Main window")
        os.kill(program.pid, signal.SIGTERM)
        program.wait_for_end()

        folder = os.path.join(self.desktop.home, ".config", "korvath")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "settings.conf"), "w", encoding="utf-8") as file:
            file.write("[General]\nappLanguage=ja_JP\n")
        self.start().window(title="メインウィンドウ")


if __name__ == "__main__":
    desktop.main()
