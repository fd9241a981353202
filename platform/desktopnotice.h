#pragma once

#include <QString>

/// Asks the desktop to show a short notice in its own way, for what must be said when no window of
/// this program can. Where the desktop has no such service nothing is shown.
void showDesktopNotice(const QString &title, const QString &text);
