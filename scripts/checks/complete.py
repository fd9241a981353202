"""Checks that every source is compiled for Linux or for Windows: complete.py BUILD WINDOWS_BUILD.

A source that no build compiles is either dead or was forgotten in a CMakeLists.txt. Fallbacks for
other systems (*_null.cpp) are compiled by neither, so they are parsed here with the flags of a
neighbour."""

import os
import subprocess
import sys

import sources


def parse(path, commands):
    """Parses a source as a neighbour in its folder is compiled; True when it is sound."""
    folder = os.path.dirname(path)
    neighbour = next((other for other in commands if os.path.dirname(other) == folder), None)
    if not neighbour:
        print(f"{path}: no source of its folder is compiled")
        return False
    entry = commands[neighbour]
    words, output = sources.words_and_output(entry)
    own = os.path.join(sources.ROOT, neighbour)
    command = [os.path.join(sources.ROOT, path) if word == own else word for word in words]
    command[output:output + 2] = ["-fsyntax-only"]
    return subprocess.run(command, cwd=entry["directory"]).returncode == 0


def main():
    linux, windows = (sources.compile_commands(os.path.abspath(build)) for build in sys.argv[1:3])
    compiled = set(linux) | set(windows)
    left = [path for path in sources.tracked("*.cpp") if path not in compiled]
    fallbacks = [path for path in left if path.endswith("_null.cpp")]
    forgotten = [path for path in left if path not in fallbacks]
    for path in forgotten:
        print(f"{path}: compiled by no build")
    broken = [path for path in fallbacks if not parse(path, linux)]
    print(f"{len(compiled)} sources are compiled, {len(fallbacks)} fallbacks parsed")
    sys.exit(1 if forgotten or broken else 0)


if __name__ == "__main__":
    main()
