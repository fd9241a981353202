#include "app/instancename.h"

#include "app/commandwire.h"
#include "platform/currentuser.h"
#include "platform/display.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

namespace
{

constexpr char kSharedName[] = "morvale.sketchorb";
constexpr int kConnectTimeoutMs = 500;
/// Taking and giving up the name are quick; whoever holds the lock longer hangs.
constexpr int kLockTimeoutMs = 2000;
/// The path of a socket may be only some hundred bytes long, and that of a display be as long.
constexpr int kDisplayDigits = 8;

QString userName()
{
    return InstanceName::shared() + u'-' + currentUser();
}

QString ownName(const QString &display)
{
    const QByteArray digest =
        QCryptographicHash::hash(display.toUtf8(), QCryptographicHash::Sha1).toHex();
    return userName() + u'-' + QString::fromLatin1(digest.left(kDisplayDigits));
}

/// Connected to whoever listens under the name, unless it is another user's: the superuser would be
/// let in. The file spares that user the visit; what counts is who answers, since the file may have
/// been exchanged meanwhile.
std::unique_ptr<QLocalSocket> connectTo(const QString &name)
{
    if (InstanceName::belongsElsewhere(name)) {
        return nullptr;
    }
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(name);
    if (!socket->waitForConnected(kConnectTimeoutMs)
        || serverBelongsToAnotherUser(socket->socketDescriptor())) {
        return nullptr;
    }
    return socket;
}

/// Whoever connects and says nothing counts as another start.
void excuse(QLocalSocket &holder)
{
    holder.write(CommandWire::nothing());
    holder.waitForBytesWritten(kConnectTimeoutMs);
}

} // namespace

InstanceName::InstanceName(const QString &display) : m_display(display), m_own(ownName(display))
{
}

QString InstanceName::shared()
{
    return QLatin1String(kSharedName);
}

std::unique_ptr<QLocalSocket> InstanceName::connectToInstance() const
{
    if (auto socket = connectTo(m_own)) {
        return socket;
    }
    auto socket = connectTo(shared());
    if (socket && isOnOtherDisplay(*socket)) {
        excuse(*socket);
        return nullptr;
    }
    return socket;
}

QString InstanceName::toTake() const
{
    if (belongsElsewhere(shared())) {
        return m_own;
    }
    const auto holder = connectTo(shared());
    if (!holder) {
        return shared();
    }
    excuse(*holder);
    return isOnOtherDisplay(*holder) ? m_own : shared();
}

QString InstanceName::toTakeOver(const QString &predecessor) const
{
    const bool isOwn = predecessor == m_own
        || (predecessor != shared() && QFile::exists(pathOf(m_own))) || belongsElsewhere(shared());
    return isOwn ? m_own : shared();
}

QString InstanceName::pathOf(const QString &name)
{
    return QDir::tempPath() + u'/' + name;
}

bool InstanceName::belongsElsewhere(const QString &name)
{
    // Sockets of all users of the machine may lie in one folder.
    return belongsToAnotherUser(pathOf(name));
}

/// A holder of whom nothing is known counts as this display's own.
bool InstanceName::isOnOtherDisplay(const QLocalSocket &holder) const
{
    const auto display = displayOfServer(holder.socketDescriptor());
    return display && !display->isEmpty() && !m_display.isEmpty() && *display != m_display;
}

InstanceLock::InstanceLock() : m_file(InstanceName::pathOf(userName() + QLatin1String(".lock")))
{
    // Anything else in its place would be waited for in vain.
    if (isPlaceForOwnFile(m_file.fileName())) {
        m_file.tryLock(kLockTimeoutMs);
    }
}
