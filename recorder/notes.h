#pragma once

#include <QLatin1StringView>
#include <QString>

/// The recorder's lines to whoever started it; see recorderprotocol.h.
namespace Notes
{

void file(const QString &path);
void warning(QLatin1StringView code, const QString &text);
void error(QLatin1StringView code, const QString &text);

} // namespace Notes
