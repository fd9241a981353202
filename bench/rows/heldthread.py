"""Keeps one thread of a child process from running, as work that takes long does."""

import contextlib
import ctypes
import os

PTRACE_SEIZE, PTRACE_INTERRUPT, PTRACE_DETACH = 0x4206, 0x4207, 17
ANY_CHILD = 0x40000000  # __WALL: threads that are not children, too


@contextlib.contextmanager
def held(thread):
    """Holds the thread as long as the context lasts; the process's other threads run on."""
    _ptrace(PTRACE_SEIZE, thread)
    try:
        _ptrace(PTRACE_INTERRUPT, thread)
        os.waitpid(thread, ANY_CHILD)
        yield
    finally:
        _ptrace(PTRACE_DETACH, thread)


def _ptrace(request, thread):
    libc = ctypes.CDLL(None, use_errno=True)
    libc.ptrace.argtypes = [ctypes.c_long, ctypes.c_long, ctypes.c_void_p, ctypes.c_void_p]
    libc.ptrace.restype = ctypes.c_long
    if libc.ptrace(request, thread, None, None) < 0:
        error = ctypes.get_errno()
        raise OSError(error, f"cannot hold thread {thread} ({os.strerror(error)}); the system must "
                             "let a process trace its children")
