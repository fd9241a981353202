#include "settings/settingsfile.h"

#include "platform/filesync.h"
#include "platform/wholefile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

#include <filesystem>

namespace
{

constexpr int kLockTimeoutMs = 5000;
constexpr int kMostLinks = 40; // as many as the system follows

/// The texts of all values: what is read back has no other types.
QVariantMap texts(const QSettings &settings)
{
    QVariantMap all;
    for (const QString &key : settings.allKeys()) {
        all.insert(key, settings.value(key).toString());
    }
    return all;
}

bool rename(const QString &from, const QString &to)
{
    std::error_code problem;
    std::filesystem::rename(QFileInfo(from).filesystemAbsoluteFilePath(),
        QFileInfo(to).filesystemAbsoluteFilePath(), problem);
    return !problem;
}

/// What a link points to is replaced, not the link; it may point to a further link, or to a file
/// that is still to be made.
QString behindLinks(const QString &path)
{
    QFileInfo place(path);
    if (place.exists()) {
        return place.canonicalFilePath();
    }
    for (int links = 0; place.isSymLink() && links < kMostLinks; ++links) {
        place.setFile(place.symLinkTarget());
    }
    return place.filePath();
}

bool reachedTheDisk(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) && syncFile(file);
}

/// Whoever has read the former file looks at its size and time, in milliseconds, to see that it is
/// another one.
void distinguish(const QString &path, const QFileInfo &former)
{
    const QDateTime stamp = former.lastModified();
    QFile file(path);
    if (QFileInfo(path).lastModified() <= stamp && file.open(QIODevice::ReadWrite)) {
        file.setFileTime(stamp.addMSecs(1), QFileDevice::FileModificationTime);
    }
}

/// A copy of a settings file in a folder of its own, which goes with it.
class Copy
{
public:
    Copy(const QFileInfo &original, QSettings::Format format)
        : m_original(original), m_format(format),
          m_folder(original.path() + QLatin1String("/.settings-XXXXXX"))
    {
    }

    QSettings::Status edit(const std::function<void(QSettings &)> &change)
    {
        if (!m_folder.isValid() || !copyOriginal()) {
            return QSettings::AccessError;
        }
        QSettings settings(edited(), m_format);
        change(settings);
        settings.sync();
        m_expected = texts(settings);
        return settings.status();
    }

    /// Under another name it is read afresh: what was just written is still kept in memory.
    bool isWhole()
    {
        return rename(edited(), proven()) && texts(QSettings(proven(), m_format)) == m_expected
            && reachedTheDisk(proven());
    }

    bool takePlace()
    {
        // A store of the user's own is nobody else's business.
        if (!m_original.exists() && m_format == QSettings::NativeFormat) {
            QFile::setPermissions(proven(), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        }
        distinguish(proven(), m_original);
        if (!rename(proven(), m_original.filePath())) {
            return false;
        }
        syncFolder(m_original.path());
        return true;
    }

private:
    /// A copy that a full disk cut short would otherwise be taken for all that is stored.
    bool copyOriginal()
    {
        return !m_original.exists() || WholeFile::copy(m_original.filePath(), edited());
    }
    [[nodiscard]] QString edited() const { return m_folder.filePath(QStringLiteral("edited")); }
    [[nodiscard]] QString proven() const { return m_folder.filePath(QStringLiteral("proven")); }

    QFileInfo m_original;
    QSettings::Format m_format;
    QTemporaryDir m_folder;
    QVariantMap m_expected;
};

QSettings::Status editFile(
    const QString &path, QSettings::Format format, const std::function<void(QSettings &)> &change)
{
    const QFileInfo original(behindLinks(path));
    if (original.exists() && (!original.isFile() || !original.isWritable())) {
        return QSettings::AccessError;
    }
    QDir().mkpath(original.path());
    // The same name that QSettings locks.
    QLockFile lock(original.filePath() + QLatin1String(".lock"));
    if (!lock.tryLock(kLockTimeoutMs)) {
        return QSettings::AccessError;
    }
    Copy copy(original, format);
    const QSettings::Status status = copy.edit(change);
    if (status == QSettings::AccessError || !copy.isWhole() || !copy.takePlace()) {
        return QSettings::AccessError;
    }
    return status;
}

} // namespace

QSettings::Status SettingsFile::edit(
    const QSettings &settings, const std::function<void(QSettings &)> &change)
{
    if (settings.fileName().startsWith(QLatin1String("\\HKEY_"))) {
        QSettings registry(settings.fileName(), settings.format());
        change(registry);
        registry.sync();
        return registry.status();
    }
    return editFile(settings.fileName(), settings.format(), change);
}
