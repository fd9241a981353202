#pragma once

#include "app/command.h"
#include "app/remote.h"

#include <QCoreApplication>
#include <QLocalSocket>

#include <optional>

/// The side of the start that hands its commands over to the running instance.
class CommandClient
{
    Q_DECLARE_TR_FUNCTIONS(CommandClient)

public:
    /// Longer than a running instance itself waits for a command.
    static constexpr int kAnswerTimeoutMs = Remote::kTimeoutMs + 5000;

    /// Sends the commands and waits for what became of them; nothing when there is no answer.
    [[nodiscard]] static std::optional<CommandReply> ask(
        QLocalSocket &instance, const QList<Command> &commands, int timeoutMs = kAnswerTimeoutMs);

    /// Prints the paths on standard output, the message on standard error; returns the exit code.
    /// No answer counts as a refusal.
    [[nodiscard]] static int report(const std::optional<CommandReply> &answer);
};
