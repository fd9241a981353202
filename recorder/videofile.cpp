#include "recorder/videofile.h"

#include "recorder/videocontent.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

/// More files than this in one second mean that something else is wrong.
constexpr int kMaxNumber = 1000;

QString wantedPath(const QString &output, const QDateTime &now)
{
    const bool isFolder =
        output.endsWith(u'/') || output.endsWith(QDir::separator()) || QFileInfo(output).isDir();
    if (!isFolder)
        return QFileInfo(output).absoluteFilePath();
    const QString name = now.toString(QStringLiteral("'record_'yyyyMMdd_hhmmss'.mp4'"));
    return QFileInfo(QDir(output), name).absoluteFilePath();
}

QString numbered(const QString &path, int number)
{
    if (number == 1)
        return path;
    const QFileInfo info(path);
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    return info.dir().filePath(info.completeBaseName() + u'_' + QString::number(number) + suffix);
}

} // namespace

bool VideoFile::reserve(const QString &output, const QDateTime &now, QString *reason)
{
    const QString wanted = wantedPath(output, now);
    const QString folder = QFileInfo(wanted).absolutePath();
    if (!QDir().mkpath(folder)) {
        *reason = QStringLiteral("the folder %1 cannot be created").arg(folder);
        return false;
    }
    for (int number = 1; number <= kMaxNumber; ++number) {
        QFile file(numbered(wanted, number));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            m_path = file.fileName();
            return true;
        }
        if (!file.exists()) {
            *reason = QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
            return false;
        }
    }
    *reason = QStringLiteral("%1 and its numbered successors exist").arg(wanted);
    return false;
}

bool VideoFile::isEmpty() const
{
    return !VideoContent::holdsPictures(m_path);
}

void VideoFile::discardIfEmpty() const
{
    if (!m_path.isEmpty() && isEmpty())
        QFile::remove(m_path);
}
