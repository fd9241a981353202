#include "settings/fileoutput.h"

#include "platform/wholefile.h"
#include "settings/logtexts.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace
{

/// Either separator may occur: the file name comes from script as it stands.
QString directoryOf(const QString &path)
{
    qsizetype separator = path.lastIndexOf(QLatin1Char('/'));
    if (separator < 0) {
        separator = path.lastIndexOf(QLatin1Char('\\'));
    }
    return separator < 0 ? QStringLiteral(".") : path.left(separator);
}

std::optional<QByteArray> decode(const QByteArray &data)
{
    if (!data.startsWith("data:")) {
        return QByteArray::fromBase64(data);
    }
    const qsizetype comma = data.indexOf(',');
    if (comma < 0) {
        return std::nullopt;
    }
    return QByteArray::fromBase64(data.mid(comma + 1));
}

/// The log is no part of the interface and does not change its language with it.
QString refusal(const QString &path, const QString &problem)
{
    QFile file(path);
    return QFileInfo(path).isDir() && !file.open(QIODevice::WriteOnly) ? file.errorString()
                                                                       : problem;
}

bool write(const QByteArray &payload, const QString &path)
{
    bool opened = false;
    const QString problem = WholeFile::write(path, [&](QFileDevice &file) {
        opened = true;
        return file.write(payload) == payload.size() ? QString() : file.errorString();
    });
    if (!opened) {
        qWarning() << LogTexts::kCannotOpenFile << path << LogTexts::kCannotOpenFileError
                   << refusal(path, problem);
        return false;
    }
    if (!problem.isEmpty()) {
        qWarning() << LogTexts::kFileIncomplete << path;
        return false;
    }
    qDebug() << LogTexts::kFileSaved << path << "(" << payload.size() << "bytes)";
    return true;
}

} // namespace

bool FileOutput::saveBesideExecutable(const QByteArray &data, const QString &fileName)
{
    const QString path = QDir::toNativeSeparators(QCoreApplication::applicationDirPath())
        + QDir::separator() + fileName;
    qDebug() << LogTexts::kSavingFile << path;
    const QString directory = directoryOf(path);
    if (!QDir(directory).exists() && !QDir().mkpath(directory)) {
        qWarning() << LogTexts::kCannotCreateDirectory << directory;
        return false;
    }
    const std::optional<QByteArray> payload = decode(data);
    if (!payload) {
        qWarning() << LogTexts::kInvalidDataUrl;
        return false;
    }
    return write(*payload, path);
}
