#pragma once

#include "app/command.h"

#include <QCoreApplication>
#include <QStringList>

/// Commands for a program that does not run yet.
class CommandStart
{
    Q_DECLARE_TR_FUNCTIONS(CommandStart)

public:
    /// Starts the program with `switches` as one that outlives this process and its terminal, and
    /// hands it the commands once it can be found on `display`, which is as `ownDisplay()` tells
    /// it. Blocks until they are answered or the program has ended, at worst for the time-outs of
    /// both. Returns the exit code, with its reason told. Needs an application object.
    [[nodiscard]] static int run(
        const QStringList &switches, const QString &display, const QList<Command> &commands);
};
