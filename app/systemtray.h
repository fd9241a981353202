#pragma once

class QApplication;

/// True when icons can be shown in the notification area. In a session that is just starting the
/// panel may come up after this program, so it is waited for, some seconds at most.
[[nodiscard]] bool waitForSystemTray();

/// Logs that there is no notification area and asks the desktop to tell the user, in the language
/// that the interface would have had.
void reportNoSystemTray(QApplication &application);
