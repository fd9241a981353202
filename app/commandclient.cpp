#include "app/commandclient.h"

#include "app/commandwire.h"

#include <QDeadlineTimer>
#include <QFile>

#include <cstdio>

namespace
{

constexpr int kDone = 0;
constexpr int kRefused = 1;

QByteArray readLine(QLocalSocket &socket, const QDeadlineTimer &deadline)
{
    while (!socket.canReadLine() && !deadline.hasExpired()) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
            break;
        }
    }
    return socket.readLine(CommandWire::kMaxReplyBytes);
}

} // namespace

std::optional<CommandReply> CommandClient::ask(
    QLocalSocket &instance, const QList<Command> &commands, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    instance.write(CommandWire::request(commands));
    instance.flush();
    return CommandWire::readReply(readLine(instance, deadline));
}

int CommandClient::report(const std::optional<CommandReply> &answer)
{
    const CommandReply reply = answer.value_or(
        CommandReply{ false, {}, tr("正在运行的程序没有回应。请退出后重新启动它") });
    for (const QString &output : reply.outputs) {
        std::puts(QFile::encodeName(output).constData());
    }
    std::fflush(stdout);
    if (!reply.message.isEmpty()) {
        std::fputs((reply.message.simplified() + u'\n').toLocal8Bit().constData(), stderr);
    }
    return reply.done ? kDone : kRefused;
}
