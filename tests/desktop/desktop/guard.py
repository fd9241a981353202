"""Watches a pipe from the test runner. Reads ids of process groups, one a line; when the pipe
closes, kills the groups and removes the folder named on the command line."""

import os
import shutil
import signal
import sys


def main():
    groups = [int(line) for line in sys.stdin if line.strip()]
    for group in groups:
        try:
            os.killpg(group, signal.SIGKILL)
        except (ProcessLookupError, PermissionError):
            pass
    shutil.rmtree(sys.argv[1], ignore_errors=True)


if __name__ == "__main__":
    # A Ctrl+C in the terminal is the runner's business; the pipe tells when it is gone.
    signal.signal(signal.SIGINT, signal.SIG_IGN)
    main()
