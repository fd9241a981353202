#pragma once

#include <QSettings>

#include <functional>

/// Changing stored settings without ever losing them: by itself QSettings replaces a file by an
/// empty one when the disk has become full, and calls that success.
namespace SettingsFile
{

/// Has `change` edit what `settings` stands for. A file is edited as a copy beside it, which takes
/// its place only once everything in it could be read back from the disk. `settings` itself is not
/// changed; open it afresh to see the result. Returns QSettings::AccessError when nothing was
/// written, and QSettings::FormatError when it was, without what had been unreadable before.
[[nodiscard]] QSettings::Status edit(
    const QSettings &settings, const std::function<void(QSettings &)> &change);

} // namespace SettingsFile
