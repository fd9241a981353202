#pragma once

#include <QByteArray>
#include <QString>

namespace FileOutput
{

/// Decodes `data` (base64, or a data URL whose text after the first comma is base64) and writes
/// the bytes to `fileName` under the application directory, creating missing directories.
/// False, with a log line, when that fails; then an older file is still what it was.
[[nodiscard]] bool saveBesideExecutable(const QByteArray &data, const QString &fileName);

} // namespace FileOutput
