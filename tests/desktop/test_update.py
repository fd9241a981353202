"""The update notice, offered by a real web server on this machine."""

import hashlib
import http.server
import json
import os
import socket
import threading

import desktop

UPDATER = b'#!/bin/sh\necho started > "$(dirname "$0")/started"\n'
NOTICE = "软件更新"
ACCENT = (242, 80, 23)


class Service(http.server.ThreadingHTTPServer):
    """Answers the check with an offer and serves its file."""

    daemon_threads = True

    def __init__(self, damaged=False, **offered):
        self.questions = []
        self.downloads = 0
        self.answered = threading.Event()
        self.may_send_file = threading.Event()
        self.may_send_file.set()
        super().__init__(("127.0.0.1", 0), Handler)
        self.address = f"http://127.0.0.1:{self.server_port}"
        body = UPDATER + b"damaged" if damaged else UPDATER
        self.offer = {
            "push": True, "version": "9.9.9", "notes": "更快、更稳定\n" * 3, "updater": "updater",
            "files": [{"url": f"{self.address}/updater", "name": "updater",
                       "sha256": hashlib.sha256(body).hexdigest()}], **offered}
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def close(self):
        self.may_send_file.set()
        self.shutdown()
        self.server_close()


class Handler(http.server.BaseHTTPRequestHandler):

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        self.server.questions.append((self.headers["Content-Type"], json.loads(body)))
        self.reply(json.dumps(self.server.offer).encode())
        self.server.answered.set()

    def do_GET(self):
        self.server.downloads += 1
        self.send_response(200)
        self.send_header("Content-Length", str(len(UPDATER)))
        self.end_headers()
        self.wfile.write(UPDATER[:10])
        self.server.may_send_file.wait(60)
        self.wfile.write(UPDATER[10:])

    def reply(self, body):
        self.send_response(200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class UpdateTestCase(desktop.DesktopTestCase):

    def launch(self, address):
        os.makedirs(self.app_folder, exist_ok=True)
        with open(os.path.join(self.app_folder, "config.ini"), "w", encoding="utf-8") as config:
            config.write(f"[UPDATE]\nUpdateURL={address}/check\n")
        self.program = self.start()
        self.palette = desktop.Palette(self.desktop, self.program)
        self.palette.window

    def serve(self, **options):
        service = Service(**options)
        self.addCleanup(service.close)
        self.launch(service.address)
        return service

    def expect_asking(self, notice, asks=True):
        """Waits until the orange button that installs stands at the bottom right, or does not."""
        def look():
            rect = notice.geometry
            colour = self.desktop.screen.pixel(*notice.at(rect.width - 30, rect.height - 40))
            return desktop.near(colour, ACCENT, 30) == asks
        self.wait_for(look, "the notice to ask" if asks else "the notice to get busy")

    def press(self, notice, from_right):
        """Presses one of the notice's buttons, which stand in a row at its bottom right."""
        x = notice.geometry.width - 24 - 40 - 100 * from_right
        self.desktop.pointer.click(*notice.at(x, notice.geometry.height - 40))

    def accept(self):
        """Waits for the notice and has it install what it offers."""
        notice = self.program.window(title=NOTICE)
        self.expect_asking(notice)
        self.idle_height = notice.geometry.height
        self.press(notice, 0)
        return notice


class UpdateTest(UpdateTestCase):
    expected_warning = "An update did not come to its end"

    def test_installs_what_was_offered_and_starts_the_updater(self):
        service = self.serve()
        self.accept()
        self.assertEqual(self.program.wait_for_end(), 0)
        started = os.path.join(self.app_folder, "started")
        self.wait_for(lambda: os.path.exists(started), "the updater to run")
        kind, question = service.questions[0]
        self.assertEqual(kind.split(";")[0], "application/json")
        self.assertEqual((question["app"], question["version"]), ("Dravelin", "3.2.0"))
        self.assertIn("|", question["os"])

    def test_a_download_can_be_cancelled(self):
        service = self.serve()
        service.may_send_file.clear()
        notice = self.accept()
        self.wait_for(lambda: notice.geometry.height > self.idle_height, "room for the progress")
        self.expect_asking(notice, False)
        self.press(notice, 0)
        self.expect_asking(notice)
        self.assertFalse(os.path.exists(os.path.join(self.app_folder, "updater")))
        self.press(notice, 1)
        self.wait_for(lambda: not self.program.windows(title=NOTICE), "the notice to close")

    def test_no_offer_no_notice(self):
        for offered in {"push": False}, {"version": {"name": "9.9.9"}}:
            with self.subTest(offered):
                service = self.serve(**offered)
                self.wait_for(service.answered.is_set, "the answer to the check")
                # Whatever the answer had opened would be there before what is asked for after it.
                self.palette.choose("menu", "about")
                self.program.window(title="关于")
                self.assertFalse(self.program.windows(title=NOTICE))
                self.program.stop()

    def test_a_packaged_program_leaves_the_update_to_its_manager(self):
        os.makedirs(self.app_folder)
        with open(os.path.join(self.app_folder, "packaged"), "w", encoding="utf-8"):
            pass
        service = self.serve()
        notice = self.program.window(title=NOTICE)
        self.press(notice, 0)  # where the button that installs would be
        self.wait_for(lambda: not self.program.windows(title=NOTICE), "the notice to close")
        self.assertEqual(service.downloads, 0)
        # What the program notes for itself went to the user's own file.
        own = os.path.join(self.desktop.home, ".config/korvath/config.ini")
        with open(own, encoding="utf-8") as config:
            self.assertIn("APPVersion=3.2.0", config.read())

    def test_an_update_that_was_cut_short_is_taken_back_at_the_next_start(self):
        desktop.install(desktop.program_path(), self.app_folder)
        work = os.path.join(self.app_folder, ".update")
        os.makedirs(os.path.join(work, "new"))
        os.makedirs(os.path.join(work, "old"))
        plan = {"replaced": ["readme"], "added": ["plugin"], "folders": []}
        for path, text in (("journal", json.dumps(plan)), ("old/readme", "old"),
                           ("../readme", "new"), ("../plugin", "new")):
            with open(os.path.join(work, path), "w", encoding="utf-8") as file:
                file.write(text)
        first = self.start()
        self.assertEqual(first.wait_for_end(), 0)
        self.desktop.wait_for_window(title="主窗口")  # of the one that it started instead
        with open(os.path.join(self.app_folder, "readme"), encoding="utf-8") as file:
            self.assertEqual(file.read(), "old")
        for gone in ".update", "plugin":
            self.assertFalse(os.path.exists(os.path.join(self.app_folder, gone)))

    def test_a_silent_server_delays_nothing(self):
        with socket.socket() as silent:
            silent.bind(("127.0.0.1", 0))
            silent.listen()
            self.launch(f"http://127.0.0.1:{silent.getsockname()[1]}")
            self.palette.start_drawing()


class RefusalTest(UpdateTestCase):
    expected_warning = "更新"

    def test_a_damaged_file_is_dropped_and_the_reason_shown(self):
        self.serve(damaged=True)
        notice = self.accept()
        self.program.wait_for_log("校验值不符")
        self.wait_for(lambda: notice.geometry.height > self.idle_height, "room for the reason")
        self.expect_asking(notice)  # once more
        self.assertTrue(self.program.running)
        self.assertFalse(os.path.exists(os.path.join(self.app_folder, "updater")))

    def test_a_plain_address_elsewhere_is_not_asked(self):
        self.launch("http://updates.example.invalid")
        self.program.wait_for_log("更新地址不安全")


if __name__ == "__main__":
    desktop.main()
