#include "platform/currentuser.h"

#include <QFile>

#include <cerrno>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using FileStatus = struct stat;

/// Nothing where there is no file; then `errno` says why.
std::optional<FileStatus> statusOf(const QString &path)
{
    FileStatus status{};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return status;
}

} // namespace

QString currentUser()
{
    return QString::number(::geteuid());
}

bool belongsToAnotherUser(const QString &path)
{
    const auto status = statusOf(path);
    return status && status->st_uid != ::geteuid();
}

bool serverBelongsToAnotherUser(qintptr socket)
{
#ifdef SO_PEERCRED
    ucred server{};
    socklen_t size = sizeof(server);
    return ::getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &server, &size) == 0
        && server.uid != ::geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(static_cast<int>(socket), &user, &group) == 0 && user != ::geteuid();
#endif
}

bool isPlaceForOwnFile(const QString &path)
{
    const auto status = statusOf(path);
    if (!status) {
        return errno == ENOENT;
    }
    return S_ISREG(status->st_mode) && status->st_uid == ::geteuid();
}
