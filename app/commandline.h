#pragma once

#include "app/command.h"

#include <QCoreApplication>
#include <QStringList>

class QCommandLineParser;
class QDir;

/// What the program was started for.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum class Purpose {
        Start, ///< show the palette; words that are no switches mean nothing here
        Commands, ///< carry out `commands()`
        Help,
        Version,
        Wrong, ///< tell `fault()`
    };

    /// `arguments` as the program got them, its path and the toolkit's own switches included. Names
    /// of files become absolute below `folder`. Needs no application object.
    CommandLine(const QStringList &arguments, const QString &folder);

    [[nodiscard]] Purpose purpose() const { return m_purpose; }
    [[nodiscard]] const QList<Command> &commands() const { return m_commands; }
    /// What the program is to be started with to be given the commands then, without its path.
    [[nodiscard]] const QStringList &switches() const { return m_switches; }
    /// Start also where there is no notification area.
    [[nodiscard]] bool withoutTray() const { return m_withoutTray; }
    /// The predecessor is closing: do not hand over to it.
    [[nodiscard]] bool isRestart() const { return m_isRestart; }
    /// One line for people, in the language that is loaded now.
    [[nodiscard]] QString fault() const;
    /// Everything that can be written on the command line; needs an application object.
    [[nodiscard]] static QString help();

private:
    enum class Fault { Unknown, Surplus, NoFile };

    void readCommands(const QCommandLineParser &parser, const QDir &folder);
    void explainRejection(const QCommandLineParser &parser, const QStringList &arguments);
    void blame(Fault fault, const QString &argument);

    Purpose m_purpose = Purpose::Start;
    QList<Command> m_commands;
    QStringList m_switches;
    bool m_withoutTray = false;
    bool m_isRestart = false;
    Fault m_fault = Fault::Unknown;
    QString m_blamed;
};
