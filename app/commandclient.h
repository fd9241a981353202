#pragma once

#include "app/command.h"

#include <QCoreApplication>
#include <QLocalSocket>

/// The side of the start that hands its commands over to the running instance.
class CommandClient
{
    Q_DECLARE_TR_FUNCTIONS(CommandClient)

public:
    /// Sends the commands and waits for what became of them, in seconds at worst; an instance that
    /// does not answer counts as a refusal.
    [[nodiscard]] static CommandReply ask(QLocalSocket &instance, const QList<Command> &commands);

    /// Prints the paths on standard output, the message on standard error; returns the exit code.
    [[nodiscard]] static int report(const CommandReply &reply);
};
