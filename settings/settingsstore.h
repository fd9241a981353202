#pragma once

#include <QString>
#include <QVariantMap>

/// The per-user store. It is opened afresh by every function, so that each caller sees what the
/// others wrote; nothing is kept in memory.
namespace SettingsStore
{

/// Every stored setting, nested along the "/" of its key, with missing defaults filled in and
/// written back. Sizes and points become maps that the interface can read.
[[nodiscard]] QVariantMap loadAll();

/// False when the store could not be written.
bool write(const QString &key, const QVariant &value);

/// Removes a key or a whole group. False when the store could not be written.
bool remove(const QString &key);

/// What is stored under `key`; invalid when nothing is.
[[nodiscard]] QVariant read(const QString &key);

} // namespace SettingsStore
