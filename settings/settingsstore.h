#pragma once

#include <QSettings>
#include <QString>
#include <QVariantMap>

/// The per-user store. It is opened afresh by every function, so that each caller sees what the
/// others wrote; nothing is kept in memory. A write that fails leaves the store as it was.
namespace SettingsStore
{

/// Every stored setting, nested along the "/" of its key, with missing defaults filled in and
/// written back. Sizes and points become maps that the interface can read.
[[nodiscard]] QVariantMap loadAll();

/// QSettings::NoError; QSettings::AccessError when the store could not be written;
/// QSettings::FormatError when it was, without what had been unreadable in it.
QSettings::Status write(const QString &key, const QVariant &value);

/// Removes a key or a whole group; the same.
QSettings::Status remove(const QString &key);

/// Where the store lies, for people: a file, or a path in the system's registry.
[[nodiscard]] QString path();

/// What is stored under `key`; invalid when nothing is.
[[nodiscard]] QVariant read(const QString &key);

} // namespace SettingsStore
