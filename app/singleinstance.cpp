#include "app/singleinstance.h"

#include "app/visitor.h"
#include "settings/processservices.h"

#include <QFile>
#include <QLocalSocket>
#include <QTextStream>

#include <algorithm>

namespace
{

constexpr int kSendTimeoutMs = 30000;
constexpr QLatin1Char kArgumentSeparator('|');
/// More at a time is no user with a keyboard.
constexpr qsizetype kMaxVisitors = 32;

void sendArguments(QLocalSocket &socket, const QStringList &arguments)
{
    QTextStream stream(&socket);
    stream << arguments.mid(1).join(kArgumentSeparator);
    stream.flush();
    socket.waitForBytesWritten(kSendTimeoutMs);
}

/// Why `server` could not listen.
bool nameBelongsToAnotherUser(const QLocalServer &server, const QString &name)
{
    return QFile::exists(InstanceName::pathOf(name))
        ? InstanceName::belongsElsewhere(name)
        : server.serverError() == QAbstractSocket::SocketAccessError;
}

} // namespace

SingleInstance::SingleInstance(const QString &display) : m_name(display)
{
}

SingleInstance::~SingleInstance()
{
    const InstanceLock lock;
    if (m_server && nameIsTakenOver()) {
        closeBesidesSuccessor();
    }
    m_server.reset(); // while the lock is held: a successor may be about to take the name
}

void SingleInstance::closeBesidesSuccessor()
{
    // A server removes the file of its name when it closes, and that is the successor's by now.
    // Whoever searches an instance in between waits for the lock.
    const QString socket = m_server->fullServerName();
    const QString aside = socket + QLatin1String(".aside");
    const bool moved = QFile::rename(socket, aside);
    m_server.reset();
    if (moved) {
        QFile::rename(aside, socket);
    }
}

SingleInstance::Claim SingleInstance::claim(const QStringList &arguments)
{
    const QString predecessor = ProcessServices::takePredecessorName();
    std::unique_ptr<QLocalSocket> running;
    {
        const InstanceLock lock;
        const bool takesOver = arguments.contains(QLatin1String(ProcessServices::kRestartSwitch));
        if (!takesOver) {
            running = m_name.connectToInstance();
        }
        if (!running) {
            return listen(takesOver ? m_name.toTakeOver(predecessor) : m_name.toTake())
                ? Claim::Granted
                : Claim::Refused;
        }
    }
    sendArguments(*running, arguments);
    return Claim::HandedOver;
}

bool SingleInstance::listen(const QString &name)
{
    m_server = std::make_unique<QLocalServer>();
    // Apart from keeping others out, this makes the new socket replace one that a killed process
    // or the predecessor of a restart left, in a single step.
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &SingleInstance::receiveVisitors);
    if (m_server->listen(name)) {
        m_socketIdentity = fileIdentity(m_server->fullServerName());
        ProcessServices::setInstanceName(name);
        return true;
    }
    return name != m_name.own() && nameBelongsToAnotherUser(*m_server, name)
        && listen(m_name.own());
}

bool SingleInstance::nameIsTakenOver() const
{
    return fileIdentity(m_server->fullServerName()) != m_socketIdentity;
}

void SingleInstance::receiveVisitors()
{
    // Connections that nobody takes would fill the queue and make a later start take this
    // instance for dead.
    while (QLocalSocket *connection = m_server->nextPendingConnection()) {
        if (makeRoom()) {
            receive(connection);
        } else {
            connection->deleteLater();
        }
    }
}

void SingleInstance::receive(QLocalSocket *connection)
{
    auto *visitor = new Visitor(connection, this); // deletes itself
    connect(visitor, &Visitor::startedAgain, this, &SingleInstance::startedAgain);
    connect(visitor, &Visitor::asked, this, [this, visitor](const QList<Command> &commands) {
        emit asked(
            commands, [visitor](const CommandReply &reply) { visitor->answer(reply); }, visitor);
    });
}

/// The one that has been silent for the longest time gives way to a new one.
bool SingleInstance::makeRoom()
{
    const auto visitors = findChildren<Visitor *>(QString(), Qt::FindDirectChildrenOnly);
    if (visitors.size() < kMaxVisitors) {
        return true;
    }
    const auto silent = std::ranges::find_if(visitors, &Visitor::isSilent);
    if (silent == visitors.end()) {
        return false;
    }
    (*silent)->dismiss();
    return true;
}
