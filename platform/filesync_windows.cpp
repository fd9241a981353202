#include "platform/filesync.h"

#include <QFileDevice>

#include <io.h>
#include <windows.h>

bool syncFile(const QFileDevice &file)
{
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(file.handle()));
    return handle != INVALID_HANDLE_VALUE && ::FlushFileBuffers(handle);
}

void syncFolder(const QString & /*path*/)
{
    // NTFS keeps its own journal of names.
}
