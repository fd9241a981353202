"""Several monitors on one virtual screen."""

import re
import subprocess

from .server import tool


def set_monitors(display_name, rectangles):
    """Makes the display's monitors exactly these (x, y, width, height)."""
    wanted = {f"VIRTUAL-{number}": tuple(rectangle)
              for number, rectangle in enumerate(rectangles, 1)}
    present = read_monitors(display_name)
    for name, rectangle in present.items():
        if name.startswith("VIRTUAL-") and wanted.get(name) != rectangle:
            _xrandr(display_name, "--delmonitor", name)
    for name, (x, y, width, height) in wanted.items():
        if present.get(name) != (x, y, width, height):
            # The server's only output belongs to the first monitor and makes it the primary one.
            output = "screen" if name == "VIRTUAL-1" else "none"
            # 96 dots per inch, so that no program scales itself up.
            size = f"{width}/{round(width / 96 * 25.4)}x{height}/{round(height / 96 * 25.4)}"
            _xrandr(display_name, "--setmonitor", name, f"{size}+{x}+{y}", output)


def read_monitors(display_name):
    """Name -> (x, y, width, height) of every monitor of the display."""
    pattern = r"^ *\d+: [+*]*(\S+) (\d+)/\d+x(\d+)/\d+\+(\d+)\+(\d+)"
    listed = _xrandr(display_name, "--listmonitors")
    return {name: (int(x), int(y), int(width), int(height))
            for name, width, height, x, y in re.findall(pattern, listed, re.MULTILINE)}


def _xrandr(display_name, *arguments):
    return subprocess.run([tool("xrandr"), "--display", display_name, *arguments], check=True,
                          stdout=subprocess.PIPE, text=True).stdout
