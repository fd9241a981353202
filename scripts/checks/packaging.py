"""Checks what is installed beside the program: packaging.py BUILD PROGRAM

Desktop entry, metadata, icons, man page and completions are installed into a folder of their own,
judged by the tools that their readers trust, and held against the options of the program."""

import gzip
import os
import re
import subprocess
import sys
import tempfile

SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
METAINFO = "share/metainfo/org.dravelin.dravelin.metainfo.xml"
DESKTOP_ENTRY = "share/applications/dravelin.desktop"
MAN_PAGE = "share/man/man1/dravelin.1.gz"
BASH = "share/bash-completion/completions/dravelin"
ZSH = "share/zsh/vendor-completions/_dravelin"
FISH = "share/fish/vendor_completions.d/dravelin.fish"

# Completes the line "dravelin" followed by the arguments, and prints the proposals.
ASK_BASH = """. "$1"; shift; COMP_WORDS=(dravelin "$@"); COMP_CWORD=$#
compopt() { :; }
_dravelin; printf '%s\\n' "${COMPREPLY[@]}" """
# The same for zsh, on a terminal, since there completion is the line editor's work. The prompt says
# when it listens, and comes again beneath the proposals. As typed it is in two parts.
ASK_ZSH = r"""zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell "COLUMNS=200; LINES=100; fpath=(${1:h} \$fpath); autoload -U compinit; compinit -u -D"
zpty -w shell "bindkey '^I' list-choices; unsetopt always_last_prompt; PS1=re''ady"
zpty -r -m shell text '*ready*'
zpty -w -n shell "dravelin $2"$'\t'
zpty -r -m shell text '*ready*'
print -r -- $text
"""


def run(*command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          timeout=60, **options)


def options_in(text):
    """The long options that a text names."""
    return set(re.findall(r"(?<![\w-])--([a-z][a-z-]*[a-z])", text))


class Check:
    def __init__(self, root):
        self.root = root
        self.faults = []

    def path(self, name):
        return os.path.join(self.root, name)

    def read(self, name):
        opener = gzip.open if name.endswith(".gz") else open
        with opener(self.path(name), "rt", encoding="utf-8") as file:
            return file.read()

    def expect(self, holds, fault):
        if not holds:
            self.faults.append(fault)

    def tool(self, *command, **options):
        """Runs a tool that has nothing to say when all is well."""
        done = run(*command, **options)
        self.expect(done.returncode == 0, f"{' '.join(command)}\n{done.stdout}")
        return done.stdout


def check_desktop(check):
    check.tool("desktop-file-validate", check.path(DESKTOP_ENTRY))
    check.tool("appstreamcli", "validate", "--no-net", "--pedantic", "--no-color",
               check.path(METAINFO))
    used = options_in(check.read(DESKTOP_ENTRY))
    check.expect(used == {"without-tray", "draw", "capture", "record-start"},
                 f"the desktop entry starts the program with {used}")
    for size in SIZES:
        icon = f"share/icons/hicolor/{size}x{size}/apps/dravelin.png"
        with open(check.path(icon), "rb") as file:
            header = file.read(24)
        # Width and height are the first two words after the header of a PNG.
        real = [int.from_bytes(header[at:at + 4], "big") for at in (16, 20)]
        check.expect(real == [size, size], f"{icon} is {real}")
    check.expect("<svg" in check.read("share/icons/hicolor/scalable/apps/dravelin.svg"),
                 "the scalable icon is no drawing")


def check_manual(check):
    with tempfile.NamedTemporaryFile("w", suffix=".1") as page:
        page.write(check.read(MAN_PAGE))
        page.flush()
        found = run("mandoc", "-Tlint", page.name).stdout
    # What it says about the manuals of this machine names no line.
    check.expect(not re.search(r":\d+:\d+: ", found), found)


def check_copyright(check):
    check.expect("Permission is hereby granted" in check.read("share/doc/dravelin/copyright"), "no licence")
    version = re.match(r"dravelin \((.+)\) ", check.read("share/doc/dravelin/changelog.gz"))
    check.expect(version and f'<release version="{version[1]}"' in check.read(METAINFO),
                 "the change log and the metadata tell of different versions")


def ask_zsh(completion, word):
    shown = run("zsh", "-f", "-c", ASK_ZSH, "zsh", completion, word).stdout
    text = re.sub(r"\x1b\[[0-9;?]*[A-Za-z]", " ", shown) # colours and moves of the cursor
    return text.partition(f"dravelin {word}")[2]


def check_completions(check, wanted):
    for shell, name in (("bash", BASH), ("zsh", ZSH), ("fish", FISH)):
        check.tool(shell, "-n", check.path(name))
    source = check.path(FISH)
    proposals = {
        "bash": lambda word: run("bash", "-c", ASK_BASH, "bash", check.path(BASH), word).stdout,
        "zsh": lambda word: ask_zsh(check.path(ZSH), word),
        "fish": lambda word: run("fish", "-N", "-c",
                                 f"source '{source}'; complete -C 'dravelin {word}'").stdout,
    }
    for shell, propose in proposals.items():
        for beginning in ("--", "--record-"):
            expected = {name for name in wanted if f"--{name}".startswith(beginning)}
            offered = options_in(propose(beginning))
            check.expect(offered == expected,
                         f"{shell}: of {beginning} {sorted(offered ^ expected)} differ")


def check_files_are_proposed(check):
    with open(os.path.join(check.root, "picture.png"), "w", encoding="utf-8"):
        pass
    source = check.path(FISH)
    for option in ("--export", "--capture"):
        bash = run("bash", "-c", ASK_BASH, "bash", check.path(BASH), option, "pic", cwd=check.root)
        check.expect("picture.png" in bash.stdout, f"bash: no file after {option}")
        fish = run("fish", "-N", "-c", f"source '{source}'; complete -C 'dravelin {option} pic'",
                   cwd=check.root)
        check.expect("picture.png" in fish.stdout, f"fish: no file after {option}")


def main():
    build, program = sys.argv[1:]
    # On a machine without any display: it only prints.
    blind = {name: value for name, value in os.environ.items()
             if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    help_text = run(program, "--help", env=blind)
    with tempfile.TemporaryDirectory() as root:
        check = Check(root)
        check.tool("cmake", "--install", os.path.join(build, "packaging"), "--prefix", root)
        if not check.faults:
            check_desktop(check)
            check_manual(check)
            check_copyright(check)
            documented = options_in(check.read(MAN_PAGE).replace("Fl -", "--"))
            check_completions(check, documented)
            check_files_are_proposed(check)
            # The switch of the program's own restart is nobody's business.
            understood = options_in(help_text.stdout) - {"restart"}
            check.expect(help_text.returncode == 0 and understood == documented,
                         f"program and man page differ in {sorted(understood ^ documented)}")
    if check.faults:
        sys.exit("\n".join(check.faults))
    print(f"{len(documented)} options in the program, the man page and three completions")


if __name__ == "__main__":
    main()
