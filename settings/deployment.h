#pragma once

#include <QString>

/// Values of the installation, by group and key: config.ini beside the executable or, where that
/// folder cannot be written, the user's own file before it.
namespace Deployment
{

/// An empty text when no file knows the key.
[[nodiscard]] QString value(const QString &group, const QString &key);

/// Without effect, and unreported, where nothing can be written.
void setValue(const QString &group, const QString &key, const QString &value);

} // namespace Deployment
