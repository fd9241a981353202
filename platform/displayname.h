#pragma once

#include <QString>
#include <QStringList>

#include <functional>

using EnvironmentLookup = std::function<QString(const char *name)>;

/// What a process with this command line and environment draws on, each display by one name however
/// it is written: "x11 :0" for ":0.0", "wayland /run/user/1000/wayland-0", or another platform's
/// own name. Empty where none is named.
[[nodiscard]] QString displayName(const QStringList &arguments, const EnvironmentLookup &variable);
