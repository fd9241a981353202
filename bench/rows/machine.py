"""On what the figures were measured."""

import os
import platform
import subprocess


def description():
    """Lines of "what: which"."""
    facts = {
        "processor": f"{_field('/proc/cpuinfo', 'model name')}, {os.cpu_count()} cores",
        "memory": f"{int(_field('/proc/meminfo', 'MemTotal').split()[0]) / 1024 ** 2:.1f} GB",
        "system": f"{_os_name()}, Linux {platform.release()}",
        "Qt": _version("libqt6core6"),
        "X server": f"Xvfb {_version('xvfb')}",
        "window manager": f"openbox {_version('openbox')}",
        "compositor": f"picom {_version('picom')}, xrender",
    }
    return [*(f"{what}: {which}" for what, which in facts.items()), load("before")]


def load(when):
    """What else the machine does: with its cores busy, no latency means much."""
    return f"load {when}: " + " ".join(f"{average:.2f}" for average in os.getloadavg())


def _field(path, name):
    with open(path, encoding="utf-8") as file:
        return next((line.split(":", 1)[1].strip() for line in file if line.startswith(name)),
                    "unknown")


def _os_name():
    return platform.freedesktop_os_release().get("PRETTY_NAME", "unknown")


def _version(package):
    """Debian's version of a package."""
    try:
        done = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", package], text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    except FileNotFoundError:
        return "unknown"
    return done.stdout or "unknown"
