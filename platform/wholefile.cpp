#include "platform/wholefile.h"

#include "platform/filesync.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

namespace
{

/// The last bytes leave the program's memory only here, and a full disk shows only now:
/// QSaveFile::commit() by itself does not notice.
QString flush(QFileDevice &file)
{
    if (!file.flush()) {
        return file.errorString();
    }
    return syncFile(file) ? QString() : qt_error_string();
}

} // namespace

QString WholeFile::write(const QString &path, const std::function<QString(QFileDevice &file)> &fill)
{
    const QFileInfo present(path);
    if (present.exists() && !present.isFile()) {
        return QCoreApplication::translate("WholeFile", "这不是一个文件");
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    QString problem = fill(file);
    if (problem.isEmpty()) {
        problem = flush(file);
    }
    if (!problem.isEmpty()) {
        file.cancelWriting();
        file.commit();
        return problem;
    }
    return file.commit() ? QString() : file.errorString();
}
