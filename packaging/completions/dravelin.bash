# shellcheck shell=bash
# Completion of dravelin(1) in bash.

_dravelin()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local options='--help --version --without-tray --draw --pass-through --toggle
        --pen --highlighter --text --line --circle --rectangle --arrow --number --eraser
        --undo --redo --clear --hide-marks --show-marks --capture --record-start --record-stop
        --export --settings --quit'

    COMPREPLY=()
    if [[ $before == --export || $before == --capture ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        [[ $before == --capture ]] || return 0 # its file may be left out
    fi
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "$options" -- "$word")
}

complete -F _dravelin dravelin
