#include "app/commandstart.h"

#include "app/commandclient.h"
#include "app/instancename.h"
#include "app/systemtray.h"
#include "platform/console.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include <optional>

namespace
{

/// In a session that is just starting everything takes long.
constexpr int kStartTimeoutMs = 60000;
/// Nothing tells when somebody begins to listen.
constexpr int kLookEveryMs = 50;

/// Not freed: with the object the program would end.
QProcess &startedProgram()
{
    static auto *const program = new QProcess;
    return *program;
}

void start(QProcess &program, const QStringList &switches)
{
    // Whoever reads what the commands print waits until nobody can write there any more.
    program.setStandardInputFile(QProcess::nullDevice());
    program.setStandardOutputFile(QProcess::nullDevice());
    program.setStandardErrorFile(QProcess::nullDevice());
    leaveConsole(program);
    program.start(QCoreApplication::applicationFilePath(), switches);
}

int fail(const QString &message, int exitCode)
{
    CommandReply reply;
    reply.message = message;
    const int refused = CommandClient::report(reply);
    return exitCode == 0 ? refused : exitCode;
}

int failStarting(const QString &reason, int exitCode = 0)
{
    return fail(
        CommandStart::tr("程序无法启动（%1）。不带命令启动它可以看到原因").arg(reason), exitCode);
}

/// What the program's end means; nothing when it has left the desktop to another instance, which
/// may have come at the same moment or be its successor.
std::optional<int> failureOf(const QProcess &program)
{
    const int exitCode = program.exitCode();
    if (program.error() == QProcess::FailedToStart || program.exitStatus() == QProcess::CrashExit) {
        return failStarting(program.errorString());
    }
    if (exitCode == 0) {
        return std::nullopt;
    }
    return meansNoSystemTray(exitCode) ? fail(noSystemTrayText(), exitCode)
                                       : failStarting(QString::number(exitCode), exitCode);
}

} // namespace

int CommandStart::run(
    const QStringList &switches, const QString &display, const QList<Command> &commands)
{
    QProcess &program = startedProgram();
    start(program, switches);
    const InstanceName name(display);
    const QDeadlineTimer deadline(kStartTimeoutMs);
    const auto remaining = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    while (!deadline.hasExpired()) {
        if (const auto instance = name.connectToInstance()) {
            // It listens before it can carry anything out.
            const auto reply = CommandClient::ask(
                *instance, commands, CommandClient::kAnswerTimeoutMs + remaining());
            if (reply || instance->state() == QLocalSocket::ConnectedState) {
                return CommandClient::report(reply);
            }
            program.waitForFinished(remaining()); // it has let go of the name: it is ending
        }
        if (program.state() != QProcess::NotRunning) {
            program.waitForFinished(kLookEveryMs);
        } else if (const auto exitCode = failureOf(program)) {
            return *exitCode;
        } else {
            QThread::msleep(kLookEveryMs);
        }
    }
    return CommandClient::report(std::nullopt);
}
