"""Drives the real program on a virtual desktop of its own; see README.md beside this folder."""

from .browser import Browser
from .case import DesktopTestCase, artifacts_folder, main, program_path
from .inputs import LEFT, MIDDLE, RIGHT
from .palette import Palette
from .program import Program, install
from .screen import changed_box, near
from .session import Desktop
from .tray import EXIT, HIDE, TrayIcon
from .waiting import WaitTimeout, wait_for
from .windows import Rect, Window

__all__ = [
    "EXIT", "HIDE", "LEFT", "MIDDLE", "RIGHT", "Browser", "Desktop", "DesktopTestCase", "Palette",
    "Program", "Rect", "TrayIcon", "WaitTimeout", "Window", "artifacts_folder", "changed_box",
    "install", "main", "near", "program_path", "wait_for",
]
