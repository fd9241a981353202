#include "platform/programfolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryFile>

namespace
{

bool probe()
{
    QTemporaryFile file(ProgramFolder::path() + QLatin1String("/.writable-XXXXXX"));
    return file.open();
}

} // namespace

QString ProgramFolder::path()
{
    return QCoreApplication::applicationDirPath();
}

bool ProgramFolder::isPackaged()
{
    return QFileInfo::exists(path() + QLatin1String("/packaged"));
}

bool ProgramFolder::isWritable()
{
    static const bool writable = !isPackaged() && probe();
    return writable;
}
