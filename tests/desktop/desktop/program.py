"""The tested program: its folder, its process, its log and its end."""

import glob
import os
import shutil
import signal
import sys

from .processes import end, parents
from .waiting import wait_for

# What belongs beside the executable; the rest of the build folder is the tests' own.
BESIDE = ("translations", "thirdparty")
SANITIZER_EXIT_CODE = 99
# The leak checker fell over its own feet while it looked on at the end of a process with threads:
# that says nothing of the program. Once in some hundred ends, on a busy machine.
FAILED_LOOK = "LeakSanitizer has encountered a fatal error"
WARNING = "WARNING "
# Which renderer is there is only known once there is an application; Qt remarks on it.
HARMLESS = "Attribute Qt::AA_Use"
SUPPRESSIONS = os.path.join(os.path.dirname(os.path.dirname(os.path.dirname(
    os.path.abspath(__file__)))), "sanitizers", "leaks.txt")


def install(executable, folder):
    """Puts the program into a folder of its own, so that what it writes beside itself stays
    apart from every other run. Returns the path of the executable there."""
    os.makedirs(folder, exist_ok=True)
    source = os.path.dirname(os.path.abspath(executable))
    target = os.path.join(folder, os.path.basename(executable))
    _link(executable, target)
    for name in BESIDE:
        if os.path.isdir(os.path.join(source, name)):
            shutil.copytree(os.path.join(source, name), os.path.join(folder, name),
                            copy_function=_link, dirs_exist_ok=True)
    return target


def _link(source, target):
    try:
        os.link(os.path.realpath(source), target)
    except FileExistsError:
        pass
    except OSError:  # another file system
        shutil.copy2(source, target)
    return target


class ProgramEnded(RuntimeError):
    """The program ended while a test still expected something of it."""


class Program:
    """A started program. `scale`, `env` and `cwd` shape its start; arguments follow the name.
    `finds_leaks` says whether memory that is lost at its end counts as a fault."""

    def __init__(self, desktop, executable, arguments=(), scale=None, env=None, cwd=None,
                 finds_leaks=True):
        self._desktop = desktop
        self.arguments = list(arguments)
        number = len(desktop.programs) + 1
        self._log_path = os.path.join(desktop.folder, f"program-{number}.log")
        self._reports = os.path.join(desktop.folder, f"sanitizer-{number}")
        variables = dict(env or {})
        if scale:
            variables["QT_SCALE_FACTOR"] = str(scale)
        variables["QT_MESSAGE_PATTERN"] = (
            f"%{{if-warning}}{WARNING}%{{endif}}%{{if-critical}}{WARNING}%{{endif}}"
            "%{if-category}%{category}: %{endif}%{message}")
        variables.update(self._sanitizer_options(finds_leaks))
        with open(self._log_path, "wb") as log:
            self._popen = desktop.guard.start(
                [executable, *self.arguments], cwd=cwd or desktop.home,
                env=desktop.env(**variables), stdout=log, stderr=log)

    def _sanitizer_options(self, finds_leaks):
        common = f"log_path={self._reports}:exitcode={SANITIZER_EXIT_CODE}"
        return {
            "ASAN_OPTIONS": f"{common}:detect_leaks={int(finds_leaks)}",
            "UBSAN_OPTIONS": f"{common}:print_stacktrace=1",
            "LSAN_OPTIONS": f"suppressions={SUPPRESSIONS}:print_suppressions=0",
        }

    @property
    def pid(self):
        return self._popen.pid

    @property
    def running(self):
        return self._popen.poll() is None

    @property
    def exit_code(self):
        """None while it runs; negative for a signal."""
        return self._popen.poll()

    def log(self):
        """All that it wrote to standard output and standard error so far."""
        with open(self._log_path, encoding="utf-8", errors="replace") as log:
            return log.read()

    def warnings(self):
        """What it complained about, line by line."""
        return [line.removeprefix(WARNING) for line in self.log().splitlines()
                if line.startswith(WARNING) and HARMLESS not in line]

    def wait_for_log(self, text, count=1, timeout=30.0):
        """Waits until the log holds a text, at least `count` times."""
        return wait_for(lambda: self.log().count(text) >= count, f"the log to say {text!r}",
                        timeout)

    def window(self, what="a window of the program", timeout=30.0, **wanted):
        """Waits for the program's one visible window that matches and returns it."""
        def find():
            self.expect_running(what)
            return self._desktop.windows.find(pid=self.pid, **wanted)
        return wait_for(find, f"{what} to appear", timeout)

    def expect_running(self, what):
        if not self.running:
            raise ProgramEnded(f"the program ended with {self.exit_code} while the test waited for "
                               f"{what}")

    def windows(self, **wanted):
        return self._desktop.windows.all(pid=self.pid, **wanted)

    def wait_for_end(self, timeout=60.0):
        """Waits until it has ended and returns its exit code."""
        wait_for(lambda: not self.running, "the program to end", timeout)
        return self.exit_code

    def kill(self):
        """Ends it as a crash would: at once, with no chance to tidy up."""
        self._popen.send_signal(signal.SIGKILL)
        self.wait_for_end()

    def stop(self):
        """Ends it if it still runs, however it takes it."""
        if self.running:
            end([self.pid])
            self._popen.wait()

    def children(self):
        """Ids of its living child processes."""
        return [pid for pid, parent in parents().items() if parent == self.pid]

    def sanitizer_reports(self):
        """The text of every report that a sanitizer made about it or its children."""
        texts = []
        for path in sorted(glob.glob(self._reports + ".*")):
            with open(path, encoding="utf-8", errors="replace") as report:
                text = report.read()
            if FAILED_LOOK in text and "ERROR:" not in text:
                print(f"the leaks of one process were not looked for:\n{text}", file=sys.stderr)
            else:
                texts.append(text)
        return "\n".join(texts)
