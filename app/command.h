#pragma once

#include "app/verbs.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

/// One thing to do.
struct Command {
    Verbs::Verb verb = Verbs::Draw;
    QString file; ///< absolute; empty where none is given

    bool operator==(const Command &) const = default;
};

/// What became of some commands, which are carried out in order up to the first that is refused.
struct CommandReply {
    bool done = false;
    QStringList outputs; ///< paths of the files that were made
    QString message; ///< for people: why a command was refused

    bool operator==(const CommandReply &) const = default;
};

/// How a verb is written on the command line.
struct VerbName {
    enum class File { None, Optional, Required };

    Verbs::Verb verb;
    const char *option; ///< without the dashes
    File file;
    const char *description; ///< to be translated in the context "CommandLine"
};

/// Every verb, in the order in which people are told of them.
[[nodiscard]] std::span<const VerbName> verbNames();

[[nodiscard]] const VerbName &nameOf(Verbs::Verb verb);

[[nodiscard]] std::optional<VerbName> verbCalled(const QString &option);
