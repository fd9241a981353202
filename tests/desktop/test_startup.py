"""Starting and ending: once per desktop, with a tray, cleanly, whatever happened before."""

import configparser
import os
import subprocess
import sys

import desktop

EXIT_WITHOUT_TRAY = 255
SOCKET_NAME = "morvale.sketchorb"
# Prints what the first visitor sends.
LISTENER = """
import socket, sys
with socket.socket(socket.AF_UNIX) as server:
    server.bind(sys.argv[1])
    server.listen()
    server.settimeout(30)
    print("listening", flush=True)
    connection, _ = server.accept()
    connection.settimeout(30)
    while part := connection.recv(64):
        sys.stdout.buffer.write(part)
"""


class StartupTest(desktop.DesktopTestCase):
    # Two run at once when one takes over from the other.
    expected_warning = "Hot key .* is held by another program"

    def start_and_see(self, *arguments):
        program = self.start(*arguments)
        return program, desktop.Palette(self.desktop, program).window

    def test_the_palette_stands_at_the_edge_and_the_tray_ends_it(self):
        program, palette = self.start_and_see()
        rect = palette.geometry
        self.assertIn((rect.width, rect.height), [(33, 520), (32, 520)])
        self.assertEqual(rect.x + rect.width, self.desktop.size[0])
        self.assertTrue(palette.frameless)
        self.assertTrue(palette.on_top)
        icon = palette.handle.get_full_property(self.desktop.display.get_atom("_NET_WM_ICON"), 0)
        self.assertTrue(icon and len(icon.value) > 16 * 16)
        config = configparser.ConfigParser()
        config.read(os.path.join(self.app_folder, "config.ini"))
        self.assertEqual(config["APP"]["opengl"], "software")
        program.wait_for_log("Forcing software OpenGL rendering")
        steps = ["OpenSSL version: ", "OpenGL renderer: ", "OpenGL version: ",
                 "Detected software OpenGL renderer", "Forcing software", "LanguageManager created"]
        places = [program.log().find(step) for step in steps]
        self.assertEqual(places, sorted(places))
        self.assertNotIn(-1, places)
        # Whoever was asked about OpenGL has ended, and its libraries are not in this process.
        self.assertEqual(program.children(), [])
        with open(f"/proc/{program.pid}/maps", encoding="utf-8") as maps:
            self.assertNotIn("swrast_dri", maps.read())
        desktop.TrayIcon(self.desktop, program).choose(desktop.EXIT)
        self.assertEqual(program.wait_for_end(), 0)

    def test_the_tray_hides_and_shows_the_palette(self):
        program, palette = self.start_and_see()
        tray = desktop.TrayIcon(self.desktop, program)
        tray.choose(desktop.HIDE)
        self.wait_for(lambda: not palette.visible, "the palette to hide")
        tray.choose(desktop.HIDE)
        self.wait_for(lambda: palette.visible, "the palette to come back")

    def test_the_menu_quits(self):
        program = self.start()
        desktop.Palette(self.desktop, program).choose("menu", "quit")
        self.assertEqual(program.wait_for_end(), 0)

    def test_a_second_start_hands_over_and_ends(self):
        first, _ = self.start_and_see()
        second = self.start("a", "b")
        self.assertEqual(second.wait_for_end(), 0)
        self.assertEqual(second.windows(), [])
        self.assertTrue(first.running)

    def test_a_second_start_sends_its_arguments(self):
        # Whoever listens under the name is told, wherever its windows may be.
        path = os.path.join(self.desktop.env()["TMPDIR"], SOCKET_NAME)
        with subprocess.Popen([sys.executable, "-c", LISTENER, path], stdout=subprocess.PIPE,
                              env={**os.environ, "DISPLAY": "elsewhere:7"}) as listener:
            self.addCleanup(listener.kill)
            self.assertEqual(listener.stdout.readline(), b"listening\n")
            program = self.start("a", "b")
            self.assertEqual(listener.communicate(timeout=30)[0], b"a|b")
            self.assertEqual(program.wait_for_end(), 0)

    def test_a_restart_takes_over_from_the_running_one(self):
        first, _ = self.start_and_see()
        second = self.start("--restart")
        desktop.Palette(self.desktop, second).window
        desktop.TrayIcon(self.desktop, first).choose(desktop.EXIT)
        self.assertEqual(first.wait_for_end(), 0)
        # The first one's end took nothing from the second: a third start still finds it.
        self.assertEqual(self.start().wait_for_end(), 0)
        self.assertTrue(second.running)

    def test_a_crash_does_not_keep_the_next_start_from_working(self):
        first, _ = self.start_and_see()
        first.kill()
        second, _ = self.start_and_see()
        desktop.TrayIcon(self.desktop, second).choose(desktop.EXIT)
        self.assertEqual(second.wait_for_end(), 0)


class WithoutTrayTest(desktop.DesktopTestCase):
    desktop_options = {"tray": False}

    def test_it_says_so_and_ends(self):
        program = self.start()
        self.assertEqual(program.wait_for_end(), EXIT_WITHOUT_TRAY)
        self.assertIn("No system tray available!", program.log())


if __name__ == "__main__":
    desktop.main()
