"""Which files are this project's own."""

import json
import os
import shlex
import subprocess

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))


def tracked(*patterns):
    """Paths, relative to the root, of files under version control or about to be."""
    listed = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "-z", "--", *patterns],
        cwd=ROOT, check=True, stdout=subprocess.PIPE, text=True).stdout
    return sorted({path for path in listed.split("\0")
                   if path and os.path.exists(os.path.join(ROOT, path))})


def compile_commands(build):
    """Source path relative to the root -> its entry in the build's compile commands, with the command
    split into "words" and its "output" named; only this project's own sources."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = json.load(file)
    own = {}
    for entry in entries:
        path = os.path.relpath(os.path.join(entry["directory"], entry["file"]), ROOT)
        if not path.startswith(("..", "build" + os.sep)):
            words = shlex.split(entry["command"])
            own[path] = {**entry, "words": words, "output": words[words.index("-o") + 1]}
    return own
