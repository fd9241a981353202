#include "platform/userhome.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <pwd.h>
#include <unistd.h>

namespace
{

constexpr char kHome[] = "HOME";

bool isFolder(const QByteArray &path)
{
    return path.startsWith('/') && QDir(QFile::decodeName(path)).exists();
}

} // namespace

void UserHome::adopt()
{
    if (exists()) {
        return;
    }
    const passwd *account = ::getpwuid(::geteuid());
    if (account && isFolder(account->pw_dir)) {
        qputenv(kHome, account->pw_dir);
    }
}

bool UserHome::exists()
{
    return isFolder(qgetenv(kHome));
}

bool UserHome::hasConfiguration()
{
    return exists() || isFolder(qgetenv("XDG_CONFIG_HOME"));
}
