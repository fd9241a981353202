"""Static analysis of every compiled source: tidy.py BUILD [-j N].

Analysing takes seconds per file, so a file that passed is remembered under a fingerprint of all
that went into it: the file, its headers, its compile command, the rules and the tool's version.
The build must be up to date, since its records tell the headers."""

import argparse
import concurrent.futures
import functools
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys

import sources

TOOL = "clang-tidy"
# Findings in our own headers count; those in generated files, which lie under build/, do not.
HEADERS = "^" + re.escape(sources.ROOT) + "/(" + "|".join(
    sorted({path.split("/")[0] for path in sources.tracked("*.h") if "/" in path})) + ")/"
PASSED = os.path.join(os.environ.get("XDG_CACHE_HOME", os.path.expanduser("~/.cache")),
                      "dravelin-tidy")


def headers_by_object(build):
    """Object path -> the files that its last compilation read, as ninja recorded them."""
    text = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True,
                          stdout=subprocess.PIPE, text=True).stdout
    found, current = {}, None
    for line in text.splitlines():
        if line.startswith("    "):
            found[current].append(line.strip())
        elif ": #deps" in line:
            current = line.split(": #deps")[0]
            found[current] = []
    return found


@functools.lru_cache(maxsize=None)
def file_state(path):
    """Changes when the file does; contents for our own files, size and time for the system's."""
    if path.startswith("/usr/"):
        stat = os.stat(path)
        return f"{path} {stat.st_size} {stat.st_mtime_ns}"
    with open(path, "rb") as file:
        return hashlib.sha256(file.read()).hexdigest()


def fingerprint(entry, read, build, rules):
    digest = hashlib.sha256(rules.encode())
    digest.update(entry["command"].replace(sources.ROOT, "").encode())
    for path in sorted(read):
        digest.update(file_state(os.path.normpath(os.path.join(build, path))).encode())
    return digest.hexdigest()


def write_commands(build):
    """Puts the compile commands, without the precompiled headers, where the tool looks for them;
    returns that folder."""
    entries = []
    for path, entry in sources.compile_commands(build).items():
        words, _ = sources.words_and_output(entry)
        entries.append({"directory": entry["directory"], "file": os.path.join(sources.ROOT, path),
                        "command": shlex.join(words)})
    folder = os.path.join(build, "tidy")
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, "compile_commands.json"), "w", encoding="utf-8") as file:
        json.dump(entries, file)
    return folder


def analyse(path, commands):
    """The findings in one source, or an empty text."""
    done = subprocess.run([TOOL, "-p", commands, "--quiet", f"--header-filter={HEADERS}",
                           os.path.join(sources.ROOT, path)],
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    return "" if done.returncode == 0 else f"{path}:\n{done.stdout or done.stderr}"


def pending(build, rules):
    """(path, fingerprint) of each source that has not passed in this state, biggest first."""
    read = headers_by_object(build)
    waiting = []
    for path, entry in sources.compile_commands(build).items():
        words, output = sources.words_and_output(entry)
        built = words[output + 1]
        if built not in read:
            sys.exit(f"{path} has not been built in {build}; build everything first")
        mark = fingerprint(entry, read[built], build, rules)
        if not os.path.exists(os.path.join(PASSED, mark)):
            waiting.append((path, mark))
    return sorted(waiting, key=lambda item: -os.path.getsize(os.path.join(sources.ROOT, item[0])))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build")
    parser.add_argument("-j", "--jobs", type=int, default=os.cpu_count())
    options = parser.parse_args()
    build = os.path.abspath(options.build)

    rules = subprocess.run([TOOL, "--version"], check=True, stdout=subprocess.PIPE,
                           text=True).stdout
    with open(os.path.join(sources.ROOT, ".clang-tidy"), encoding="utf-8") as file:
        rules += file.read()
    os.makedirs(PASSED, exist_ok=True)

    commands = write_commands(build)
    waiting = pending(build, rules)
    print(f"{len(waiting)} of {len(sources.compile_commands(build))} sources to analyse",
          flush=True)
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        findings = pool.map(lambda item: analyse(item[0], commands), waiting)
        for (_, mark), text in zip(waiting, findings):
            if text:
                failed += 1
                print(text, flush=True)
            else:
                with open(os.path.join(PASSED, mark), "w", encoding="utf-8"):
                    pass
    print(f"{failed} sources with findings")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
