#pragma once

#include "settings/settingskeys.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

/// A per-user store of the test's own. To be called from initMain(), before anything asks where
/// settings lie.
namespace ThrowawayStore
{

inline QString folder()
{
    static const QTemporaryDir temporary;
    return temporary.path();
}

inline void use()
{
    qputenv("XDG_CONFIG_HOME", folder().toLocal8Bit());
}

/// The store as another process would see it.
class Store : public QSettings
{
public:
    Store()
        : QSettings(QLatin1String(SettingsKeys::kStoreOrganization),
            QLatin1String(SettingsKeys::kStoreApplication))
    {
    }
};

inline void clear()
{
    Store store;
    store.clear();
    store.sync();
    QVERIFY(store.fileName().startsWith(folder()));
}

/// A directory where the file should be cannot be written, not even by the system's administrator.
class Unwritable
{
public:
    Unwritable() : m_path(folder() + QLatin1String("/korvath/settings.conf"))
    {
        QFile::remove(m_path);
        QDir().mkpath(m_path);
    }
    ~Unwritable() { QDir().rmdir(m_path); }
    Q_DISABLE_COPY_MOVE(Unwritable)

private:
    QString m_path;
};

} // namespace ThrowawayStore
