#pragma once

#include <QString>

class QApplication;

/// The exit code of a program that found no notification area.
inline constexpr int kExitNoTray = -1;

/// The same of a process that has ended: the system may have kept but its lowest byte.
[[nodiscard]] bool meansNoSystemTray(int exitCode);

/// For people, in the language that is loaded now.
[[nodiscard]] QString noSystemTrayText();

/// True when icons can be shown in the notification area. In a session that is just starting the
/// panel may come up after this program, so it is waited for, some seconds at most.
[[nodiscard]] bool waitForSystemTray();

/// Logs that there is no notification area and asks the desktop to tell the user, in the language
/// that the interface would have had.
void reportNoSystemTray(QApplication &application);
