"""The frame of every desktop test."""

import os
import re
import sys
import unittest

from .program import install
from .session import Desktop

REPOSITORY = os.path.dirname(os.path.dirname(os.path.dirname(os.path.dirname(
    os.path.abspath(__file__)))))


def program_path():
    """The built program; CTest names it, a person may leave it to the newest build."""
    named = os.environ.get("DRAVELIN_PROGRAM")
    if named:
        return named
    builds = [os.path.join(REPOSITORY, "build", preset, "bin", "dravelin")
              for preset in ("debug", "release", "asan")]
    built = [path for path in builds if os.path.exists(path)]
    if not built:
        raise RuntimeError("there is no built program; name one in DRAVELIN_PROGRAM")
    return max(built, key=os.path.getmtime)


def artifacts_folder():
    return os.environ.get("DRAVELIN_ARTIFACTS", os.path.join(REPOSITORY, "build", "artifacts"))


class DesktopTestCase(unittest.TestCase):
    """Gives each test a fresh desktop (`self.desktop`) and a way to start the program on it.

    A class shapes its desktop with `desktop_options`, the arguments of `Desktop`. When a test
    fails, a screenshot and the logs are kept. A report of a sanitizer fails the test too, and so
    does a warning in the program's log, unless `expected_warning`, a pattern, matches it."""

    desktop_options = {}
    expected_warning = None

    def setUp(self):
        self.desktop = Desktop(**self.desktop_options)
        self.desktop.__enter__()
        self.addCleanup(self._finish)

    def start(self, *arguments, **options):
        """Starts the program in a folder of its own and returns it; see `Program`."""
        folder = os.path.join(self.desktop.folder, "app")
        executable = install(program_path(), folder)
        return self.desktop.start_program(executable, *arguments, **options)

    @property
    def app_folder(self):
        """The folder in which the program stands."""
        return os.path.join(self.desktop.folder, "app")

    def wait_for(self, condition, what, timeout=30.0):
        return self.desktop.wait_for(condition, what, timeout)

    def wait_for_pixel(self, x, y, judge, what, timeout=30.0):
        """Waits until `judge`, given the colour at a point of the screen, is content."""
        def look():
            colour = self.desktop.screen.pixel(x, y)
            if not judge(colour):
                raise AssertionError(f"the pixel at {x},{y} is {colour}")
            return True
        return self.wait_for(look, what, timeout)

    def _finish(self):
        try:
            if self._failed():
                self._keep_evidence()
            self.desktop.keyboard.release_all()
            self.desktop.pointer.release_all()
            for program in self.desktop.programs:
                program.stop()
            reports = [program.sanitizer_reports() for program in self.desktop.programs]
            warnings = [line for program in self.desktop.programs for line in program.warnings()
                        if not (self.expected_warning and re.search(self.expected_warning, line))]
        finally:
            self.desktop.close()
        if any(reports):
            self.fail("a sanitizer reported:\n" + "\n".join(reports))
        if warnings:
            self.fail("the program complained:\n" + "\n".join(warnings))

    def _failed(self):
        # Within a cleanup the outcome speaks of the cleanup alone; the result knows the test.
        result = self._outcome.result
        return any(self in (test, getattr(test, "test_case", None))
                   for test, _ in result.failures + result.errors)

    def _keep_evidence(self):
        name = self.id().replace("__main__.", "")
        path = os.path.join(artifacts_folder(), f"{name}.png")
        try:
            self.desktop.screen.save(path)
            print(f"\nscreenshot of the failure: {path}", file=sys.stderr)
            print(f"windows: {self.desktop.windows.all()}", file=sys.stderr)
        except Exception as error:  # the X server itself may be what failed
            print(f"\nno screenshot: {error}", file=sys.stderr)
        for number, program in enumerate(self.desktop.programs, 1):
            print(f"--- log of program {number} {program.arguments}, exit code "
                  f"{program.exit_code} ---\n{program.log()}", file=sys.stderr)
        print(f"--- log of the desktop ---\n{self.desktop.log()}", file=sys.stderr)


def main():
    """Runs the tests of the calling module. Skipped tests and no tests at all are failures."""
    program = unittest.main(verbosity=2, exit=False)
    result = program.result
    if result.testsRun == 0 or result.skipped:
        print("no test ran" if result.testsRun == 0 else "tests were skipped", file=sys.stderr)
        sys.exit(1)
    sys.exit(not result.wasSuccessful())
