#pragma once

#include <QString>

#include <optional>

/// Shows the native directory chooser over the active window, starting at `startPath` or, when
/// that is empty, at the user's home. Blocks until it closes. An empty text when cancelled; nothing
/// when the application has no widgets to show it with.
[[nodiscard]] std::optional<QString> chooseDirectory(const QString &startPath);
