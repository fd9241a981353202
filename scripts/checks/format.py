"""Checks that the sources are laid out as .clang-format says; with --fix, lays them out so."""

import subprocess
import sys

import sources


def main():
    files = sources.tracked("*.cpp", "*.h")
    if not files:
        sys.exit("no sources found")
    how = ["-i"] if "--fix" in sys.argv[1:] else ["--dry-run", "--Werror"]
    done = subprocess.run(["clang-format", *how, *files], cwd=sources.ROOT)
    print(f"{len(files)} files checked")
    sys.exit(done.returncode)


if __name__ == "__main__":
    main()
