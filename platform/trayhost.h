#pragma once

/// True when something on this desktop shows notification area icons. Qt answers the same question
/// but remembers its first answer about the session bus, so this one is for waiting until a
/// desktop that is just starting is ready to be asked.
[[nodiscard]] bool trayHostIsPresent();
