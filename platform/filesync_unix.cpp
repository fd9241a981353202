#include "platform/filesync.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

bool syncFile(const QFileDevice &file)
{
    // Pipes and some file systems know no waiting; they lose nothing by it either.
    return ::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

void syncFolder(const QString &path)
{
    const int folder =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) {
        return;
    }
    ::fsync(folder);
    ::close(folder);
}
