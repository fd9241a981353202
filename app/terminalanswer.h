#pragma once

#include <QString>

#include <optional>

class CommandLine;

/// Does what the command line asks for where that needs no palette of this process's own: help,
/// version, complaints, commands for the instance on `display`, which is started if there is none.
/// Returns the exit code, or nothing
/// where the program has to start. To be called before any application object exists.
[[nodiscard]] std::optional<int> answerOnTerminal(
    int argc, char **argv, const CommandLine &line, const QString &display);
