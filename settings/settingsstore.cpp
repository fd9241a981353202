#include "settings/settingsstore.h"

#include "settings/logtexts.h"
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

void fillInSavePath(QVariantMap &settings, QSettings &store, const QString &applicationDirectory)
{
    const QString key = QLatin1String(SettingsKeys::kScreenSavePath);
    if (!settings.value(key).toString().isEmpty()) {
        return;
    }
    qDebug() << LogTexts::kDefaultSavePath << applicationDirectory;
    settings.insert(key, applicationDirectory);
    store.setValue(key, applicationDirectory);
}

void fillInShortcuts(QVariantMap &settings, QSettings &store)
{
    for (const SettingsKeys::ShortcutDefault &shortcut : SettingsKeys::kShortcutDefaults) {
        const QString key = QLatin1String(shortcut.key);
        if (settings.value(key).isValid()) {
            continue;
        }
        const QString sequence = QLatin1String(shortcut.sequence);
        qDebug() << LogTexts::kDefaultShortcut << key << "=" << sequence;
        settings.insert(key, sequence);
        store.setValue(key, sequence);
    }
}

} // namespace

namespace SettingsStore
{

QVariantMap loadAll()
{
    UserStore store;
    const QString applicationDirectory =
        QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    qDebug() << LogTexts::kApplicationDirectory << applicationDirectory;
    qDebug() << LogTexts::kLoadingSettings;
    QVariantMap settings = readAll(store);
    fillInSavePath(settings, store, applicationDirectory);
    fillInShortcuts(settings, store);
    store.sync();
    qDebug() << LogTexts::kSettingsLoaded << settings;
    return settings;
}

bool write(const QString &key, const QVariant &value)
{
    UserStore store;
    store.setValue(key, value);
    store.sync();
    return store.status() == QSettings::NoError;
}

bool remove(const QString &key)
{
    UserStore store;
    store.remove(key);
    store.sync();
    return store.status() == QSettings::NoError;
}

QVariant read(const QString &key)
{
    return UserStore().value(key);
}

} // namespace SettingsStore
