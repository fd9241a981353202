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

QString fillWholly(QFileDevice &file, const std::function<QString(QFileDevice &file)> &fill)
{
    const QString problem = fill(file);
    return problem.isEmpty() ? flush(file) : problem;
}

/// Unbuffered: bytes that found no room are not kept to be written after all.
constexpr QIODevice::OpenMode kInPlace =
    QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered;

/// For a file in a folder that takes no new one. Its former bytes leave room for themselves, should
/// there be none for the new ones.
QString overwrite(QFile &file, const std::function<QString(QFileDevice &file)> &fill)
{
    const QByteArray former = file.readAll();
    if (file.size() != former.size() || !file.seek(0) || !file.resize(0)) {
        return file.errorString();
    }
    const QString problem = fillWholly(file, fill);
    if (!problem.isEmpty()) {
        file.seek(0);
        file.resize(0);
        file.write(former);
        flush(file);
        return problem;
    }
    file.close();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
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
        QFile inPlace(path);
        return inPlace.open(kInPlace) ? overwrite(inPlace, fill) : file.errorString();
    }
    const QString problem = fillWholly(file, fill);
    if (!problem.isEmpty()) {
        file.cancelWriting();
        file.commit();
        return problem;
    }
    return file.commit() ? QString() : file.errorString();
}

bool WholeFile::copy(const QString &path, const QString &copy)
{
    if (!QFile::copy(path, copy)) {
        return false;
    }
    QFile file(copy);
    const bool isWhole = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)
        && file.size() == QFileInfo(path).size() && syncFile(file);
    if (!isWhole) {
        file.remove();
    }
    return isWhole;
}
