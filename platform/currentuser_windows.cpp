#include "platform/currentuser.h"

#include <QByteArray>
#include <QFileInfo>

// The other headers need it first.
#include <windows.h>

#include <sddl.h>

namespace
{

/// The description of the user to whom the process's token belongs; empty when it cannot be had.
QByteArray tokenUser()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return {};
    }
    DWORD size = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    QByteArray user(static_cast<qsizetype>(size), '\0');
    const BOOL known = GetTokenInformation(token, TokenUser, user.data(), size, &size);
    CloseHandle(token);
    return known ? user : QByteArray();
}

} // namespace

QString currentUser()
{
    const QByteArray user = tokenUser();
    if (user.isEmpty()) {
        return {};
    }
    wchar_t *text = nullptr;
    if (!ConvertSidToStringSidW(
            reinterpret_cast<const TOKEN_USER *>(user.constData())->User.Sid, &text)) {
        return {};
    }
    const QString name = QString::fromWCharArray(text);
    LocalFree(text);
    return name;
}

bool belongsToAnotherUser(const QString & /*path*/)
{
    // The folder of temporary files is the user's own, and local sockets are no files.
    return false;
}

bool serverBelongsToAnotherUser(qintptr /*socket*/)
{
    // Pipes are made for their own user alone.
    return false;
}

bool isPlaceForOwnFile(const QString &path)
{
    const QFileInfo info(path);
    return !info.exists() || info.isFile();
}
