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
    """Source path relative to the root -> its entry in the build's compile commands; only this
    project's own sources."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = json.load(file)
    own = {}
    for entry in entries:
        path = os.path.relpath(os.path.join(entry["directory"], entry["file"]), ROOT)
        if not path.startswith(("..", "build" + os.sep)):
            own[path] = entry
    return own


def words_and_output(entry):
    """The words of a compile command without the precompiled headers, so that a source has to
    include all that it uses, and where "-o" stands among them."""
    words = shlex.split(entry["command"])
    for position in reversed([at for at, word in enumerate(words) if word == "-include"]):
        del words[position:position + 2]
    return words, words.index("-o")
