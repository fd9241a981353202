#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// Where the windows of this process go, as a text to compare: the X server or Wayland session, the
/// seat or remote session. `arguments` is the whole command line, from before the application
/// object took its own out. Empty where there is none to show windows on.
[[nodiscard]] QString ownDisplay(const QStringList &arguments);

/// The same of the process that listens at the other end of a connected local socket; nothing where
/// the system does not tell, or where another program listens there.
[[nodiscard]] std::optional<QString> displayOfServer(qintptr socket);
