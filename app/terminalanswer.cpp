#include "app/terminalanswer.h"

#include "app/commandclient.h"
#include "app/commandline.h"
#include "app/commandstart.h"
#include "app/identity.h"
#include "app/instancename.h"
#include "app/shell.h"
#include "app/startup.h"
#include "platform/console.h"
#include "settings/translation.h"

#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace
{

constexpr int kExitWrongUsage = 2;

void dropMessage(
    QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*message*/)
{
}

void print(FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
}

/// As long as it lives the program is one that answers on a terminal: it has no windows, needs no
/// display, logs nothing and speaks the user's language.
class TerminalProgram
{
public:
    /// The arguments stay as they are, for the application object to come.
    TerminalProgram(int argc, char **argv)
        : m_formerHandler(qInstallMessageHandler(dropMessage)), m_argumentCount(argc),
          m_arguments(argv, argv + argc + 1), m_application(m_argumentCount, m_arguments.data())
    {
        attachConsole();
        if (m_translator.load(
                QLatin1String("app_") + Startup::chooseLanguage(), translationsDirectory())) {
            QCoreApplication::installTranslator(&m_translator);
        }
    }
    Q_DISABLE_COPY_MOVE(TerminalProgram)
    ~TerminalProgram() { qInstallMessageHandler(m_formerHandler); }

private:
    QtMessageHandler m_formerHandler;
    int m_argumentCount;
    std::vector<char *> m_arguments;
    QCoreApplication m_application;
    QTranslator m_translator;
};

bool onlyQuits(const QList<Command> &commands)
{
    return std::ranges::all_of(
        commands, [](const Command &command) { return command.verb == Verbs::Quit; });
}

} // namespace

std::optional<int> answerOnTerminal(
    int argc, char **argv, const CommandLine &line, const QString &display)
{
    if (line.purpose() == CommandLine::Purpose::Start) {
        return std::nullopt;
    }
    const TerminalProgram program(argc, argv);
    switch (line.purpose()) {
    case CommandLine::Purpose::Help:
        print(stdout, CommandLine::help());
        return 0;
    case CommandLine::Purpose::Version:
        print(stdout, QLatin1String(Identity::kDisplayName) + u' ' + Shell::version() + u'\n');
        return 0;
    case CommandLine::Purpose::Wrong:
        print(stderr, line.fault() + u'\n');
        return kExitWrongUsage;
    default:
        break;
    }
    if (line.isRestart()) {
        return std::nullopt;
    }
    if (const auto instance = InstanceName(display).connectToInstance()) {
        return CommandClient::report(CommandClient::ask(*instance, line.commands()));
    }
    if (onlyQuits(line.commands())) {
        return 0;
    }
    if (display.isEmpty()) {
        return CommandClient::report(CommandReply{ false, {},
            QCoreApplication::translate(
                "CommandClient", "程序没有运行，这里也没有可以显示它的桌面。请先在桌面上启动它") });
    }
    return CommandStart::run(line.switches(), display, line.commands());
}
