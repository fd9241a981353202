#include "app/commandclient.h"

#include "app/commandwire.h"
#include "app/remote.h"

#include <QDeadlineTimer>
#include <QFile>

#include <cstdio>

namespace
{

constexpr int kDone = 0;
constexpr int kRefused = 1;
/// Longer than the instance itself waits for a command.
constexpr int kAnswerTimeoutMs = Remote::kTimeoutMs + 5000;

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

CommandReply CommandClient::ask(QLocalSocket &instance, const QList<Command> &commands)
{
    const QDeadlineTimer deadline(kAnswerTimeoutMs);
    instance.write(CommandWire::request(commands));
    instance.flush();
    if (const auto reply = CommandWire::readReply(readLine(instance, deadline))) {
        return *reply;
    }
    return { false, {}, tr("正在运行的程序没有回应。请退出后重新启动它") };
}

int CommandClient::report(const CommandReply &reply)
{
    for (const QString &output : reply.outputs) {
        std::puts(QFile::encodeName(output).constData());
    }
    std::fflush(stdout);
    if (!reply.message.isEmpty()) {
        std::fputs((reply.message.simplified() + u'\n').toLocal8Bit().constData(), stderr);
    }
    return reply.done ? kDone : kRefused;
}
