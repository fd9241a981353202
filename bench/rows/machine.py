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
        "load before": " ".join(f"{load:.2f}" for load in os.getloadavg()),
    }
    return [f"{what}: {which}" for what, which in facts.items()]


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
