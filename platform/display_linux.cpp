#include "platform/display.h"

#include "platform/displayname.h"

#include <QFile>
#include <QFileInfo>
#include <QList>

#include <sys/socket.h>

namespace
{

/// One of the lists that the system keeps of how a process was started; empty when it may not be
/// read.
QList<QByteArray> startList(pid_t process, const char *name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\0') : QList<QByteArray>();
}

QString valueIn(const QList<QByteArray> &environment, const QByteArray &name)
{
    const QByteArray start = name + '=';
    for (const QByteArray &entry : environment) {
        if (entry.startsWith(start)) {
            return QFile::decodeName(entry.mid(start.size()));
        }
    }
    return {};
}

/// The name of the file that a process runs, also after an update has replaced that file.
QString programOf(const QString &process)
{
    const QString path =
        QFile::symLinkTarget(QLatin1String("/proc/") + process + QLatin1String("/exe"));
    const QLatin1String replaced(" (deleted)");
    return QFileInfo(path.endsWith(replaced) ? path.chopped(replaced.size()) : path).fileName();
}

} // namespace

QString ownDisplay(const QStringList &arguments)
{
    return displayName(arguments, [](const char *name) { return qEnvironmentVariable(name); });
}

std::optional<QString> displayOfServer(qintptr socket)
{
    ucred server{};
    socklen_t size = sizeof(server);
    if (::getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &server, &size) != 0
        || server.pid <= 0) {
        return std::nullopt;
    }
    if (programOf(QString::number(server.pid)) != programOf(QStringLiteral("self"))) {
        return std::nullopt;
    }
    // As the process was started: whether it still answers does not matter.
    const QList<QByteArray> environment = startList(server.pid, "environ");
    if (environment.isEmpty()) {
        return std::nullopt;
    }
    QStringList arguments;
    for (const QByteArray &argument : startList(server.pid, "cmdline")) {
        arguments << QFile::decodeName(argument);
    }
    return displayName(arguments,
        [&environment](const char *name) { return valueIn(environment, QByteArray(name)); });
}
