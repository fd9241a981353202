"""Who opens addresses on the desktop."""

import os
from urllib.parse import unquote

from .waiting import wait_for


class Browser:
    """Stands in for the program that opens files and pages: it only notes what it is given. It is
    found by whoever has `path` as its PATH, and is all there is in the folder `tools`."""

    def __init__(self, folder):
        self.tools = os.path.join(folder, "tools")
        os.makedirs(self.tools)
        self.path = f"{self.tools}:{os.environ['PATH']}"
        self._opened = os.path.join(folder, "opened")
        browser = os.path.join(self.tools, "xdg-open")
        with open(browser, "w", encoding="utf-8") as script:
            script.write(f'#!/bin/sh\necho "$1" > {self._opened}.part\n'
                         f"mv {self._opened}.part {self._opened}\n")
        os.chmod(browser, 0o755)

    def wait_for_file(self):
        """Waits until it is given the address of a file, and returns the file's path."""
        wait_for(lambda: os.path.exists(self._opened), "the browser to be started")
        with open(self._opened, encoding="utf-8") as file:
            address = unquote(file.read().strip())
        os.remove(self._opened)
        if not address.startswith("file:///"):
            raise AssertionError(f"the browser was given {address}")
        return address.removeprefix("file://")
