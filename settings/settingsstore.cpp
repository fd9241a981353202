#include "settings/settingsstore.h"

#include "platform/userhome.h"
#include "settings/logtexts.h"
#include "settings/places.h"
#include "settings/settingsfile.h"
#include "settings/settingskeys.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QPoint>
#include <QSettings>
#include <QSize>
#include <QStringList>

namespace
{

class UserStore : public QSettings
{
public:
    UserStore()
        : QSettings(QLatin1String(SettingsKeys::kStoreOrganization),
            QLatin1String(SettingsKeys::kStoreApplication))
    {
    }
};

/// Sizes and points have no properties in script; a map has.
QVariant readableByScript(const QVariant &value)
{
    if (value.canConvert<QSize>()) {
        const auto size = value.value<QSize>();
        return QVariantMap{
            { QStringLiteral("width"), size.width() },
            { QStringLiteral("height"), size.height() },
        };
    }
    if (value.canConvert<QPoint>()) {
        const auto point = value.value<QPoint>();
        return QVariantMap{
            { QStringLiteral("x"), point.x() },
            { QStringLiteral("y"), point.y() },
        };
    }
    return value;
}

void insertNested(QVariantMap &map, const QStringList &path, const QVariant &value)
{
    if (path.size() == 1) {
        map.insert(path.first(), value);
        return;
    }
    QVariantMap inner = map.value(path.first()).toMap();
    insertNested(inner, path.mid(1), value);
    map.insert(path.first(), inner);
}

QVariantMap readAll(const QSettings &store)
{
    const QStringList keys = store.allKeys();
    qDebug() << LogTexts::kFoundSettings << keys.size() << LogTexts::kFoundSettingsUnit << keys;
    QVariantMap settings;
    for (const QString &key : keys) {
        const QVariant value = store.value(key);
        qDebug() << LogTexts::kLoadedSetting << key << LogTexts::kLoadedSettingValue
                 << value.toString();
        insertNested(settings, key.split(QLatin1Char('/')), readableByScript(value));
    }
    return settings;
}

/// Puts the default of the folder for captures into `settings` and returns what is to be stored.
QVariantMap fillInSavePath(QVariantMap &settings)
{
    const QString key = QLatin1String(SettingsKeys::kScreenSavePath);
    if (!Places::isUnset(settings.value(key).toString())) {
        return {};
    }
    const QString folder = Places::captures();
    qDebug() << LogTexts::kDefaultSavePath << folder;
    settings.insert(key, folder);
    // Without a folder to store, a later run may find one.
    return folder.isEmpty() ? QVariantMap() : QVariantMap{ { key, folder } };
}

/// The same for the shortcuts.
QVariantMap fillInShortcuts(QVariantMap &settings)
{
    QVariantMap missing;
    for (const SettingsKeys::ShortcutDefault &shortcut : SettingsKeys::kShortcutDefaults) {
        const QString key = QLatin1String(shortcut.key);
        if (settings.value(key).isValid()) {
            continue;
        }
        const QString sequence = QLatin1String(shortcut.sequence);
        qDebug() << LogTexts::kDefaultShortcut << key << "=" << sequence;
        settings.insert(key, sequence);
        missing.insert(key, sequence);
    }
    return missing;
}

QSettings::Status edit(const std::function<void(QSettings &)> &change)
{
    return UserHome::hasConfiguration() ? SettingsFile::edit(UserStore(), change)
                                        : QSettings::AccessError;
}

void storeAll(const QVariantMap &values)
{
    edit([&](QSettings &store) {
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            store.setValue(it.key(), it.value());
        }
    });
}

} // namespace

namespace SettingsStore
{

QVariantMap loadAll()
{
    const QString applicationDirectory =
        QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    qDebug() << LogTexts::kApplicationDirectory << applicationDirectory;
    qDebug() << LogTexts::kLoadingSettings;
    QVariantMap settings = readAll(UserStore());
    QVariantMap missing = fillInSavePath(settings);
    missing.insert(fillInShortcuts(settings));
    if (!missing.isEmpty()) {
        storeAll(missing);
    }
    qDebug() << LogTexts::kSettingsLoaded << settings;
    return settings;
}

QSettings::Status write(const QString &key, const QVariant &value)
{
    return edit([&](QSettings &store) { store.setValue(key, value); });
}

QSettings::Status remove(const QString &key)
{
    return edit([&](QSettings &store) { store.remove(key); });
}

QString path()
{
    return QDir::toNativeSeparators(UserStore().fileName());
}

QVariant read(const QString &key)
{
    return UserStore().value(key);
}

} // namespace SettingsStore
