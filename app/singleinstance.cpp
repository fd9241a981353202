#include "app/singleinstance.h"

#include "settings/processservices.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>
#include <QTextStream>

namespace
{

constexpr char kServerName[] = "morvale.sketchorb";
constexpr int kConnectTimeoutMs = 500;
constexpr int kSendTimeoutMs = 30000;
/// Taking and giving up the name are quick; whoever holds the lock longer hangs.
constexpr int kLockTimeoutMs = 2000;
constexpr QLatin1Char kArgumentSeparator('|');

uint currentUser()
{
    return QFileInfo(QDir::homePath()).ownerId();
}

QString sharedName()
{
    return QLatin1String(kServerName);
}

/// Sockets of all users of the machine may lie in one folder. Whoever finds the name held by
/// another user goes by this one.
QString ownName()
{
    return sharedName() + QLatin1Char('-') + QString::number(currentUser());
}

/// Two starts at the same moment must not both find the name free, and a start must not take the
/// name while the one before is giving it up. Whoever cannot get the lock goes on without it.
class NameLock
{
public:
    NameLock() : m_file(QDir::tempPath() + QLatin1Char('/') + ownName() + QLatin1String(".lock"))
    {
        m_file.tryLock(kLockTimeoutMs);
    }

private:
    QLockFile m_file;
};

QString socketPath(const QString &name)
{
    return QDir::tempPath() + QLatin1Char('/') + name;
}

bool isHeldByAnotherUser(const QString &name)
{
    const QFileInfo socketFile(socketPath(name));
    return socketFile.exists() && socketFile.ownerId() != currentUser();
}

/// Connected to the running instance, or nothing.
std::unique_ptr<QLocalSocket> connectToRunningInstance()
{
    for (const QString &name : { sharedName(), ownName() }) {
        if (isHeldByAnotherUser(name)) {
            continue; // the superuser would be let in
        }
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(name);
        if (socket->waitForConnected(kConnectTimeoutMs)) {
            return socket;
        }
    }
    return nullptr;
}

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
    return QFile::exists(socketPath(name))
        ? isHeldByAnotherUser(name)
        : server.serverError() == QAbstractSocket::SocketAccessError;
}

} // namespace

SingleInstance::~SingleInstance()
{
    const NameLock lock;
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
    std::unique_ptr<QLocalSocket> running;
    {
        const NameLock lock;
        if (!arguments.contains(QLatin1String(ProcessServices::kRestartSwitch))) {
            running = connectToRunningInstance();
        }
        if (!running) {
            return listen(sharedName()) ? Claim::Granted : Claim::Refused;
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
    connect(
        m_server.get(), &QLocalServer::newConnection, this, &SingleInstance::receiveAnotherStart);
    if (m_server->listen(name)) {
        m_socketIdentity = fileIdentity(m_server->fullServerName());
        return true;
    }
    return name != ownName() && nameBelongsToAnotherUser(*m_server, name) && listen(ownName());
}

bool SingleInstance::nameIsTakenOver() const
{
    return fileIdentity(m_server->fullServerName()) != m_socketIdentity;
}

void SingleInstance::receiveAnotherStart()
{
    // Connections that nobody takes would fill the queue and make a later start take this
    // instance for dead.
    while (QLocalSocket *connection = m_server->nextPendingConnection()) {
        connect(connection, &QLocalSocket::disconnected, connection, &QObject::deleteLater);
        emit startedAgain();
    }
}
