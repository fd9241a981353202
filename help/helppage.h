#pragma once

#include <QString>
#include <QVariantMap>

/// Pages for a browser: each one file in UTF-8 that needs no other and no network.
namespace HelpPage
{

/// All tools, gestures and keys on one sheet of A4, in the interface's language. `settings` is the
/// map of all stored settings.
[[nodiscard]] QString sheet(const QVariantMap &settings);

/// A plain text as it stands.
[[nodiscard]] QString document(const QString &title, const QString &text);

} // namespace HelpPage
