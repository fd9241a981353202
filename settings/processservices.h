#pragma once

#include <QString>

/// Leaving or replacing the running program.
namespace ProcessServices
{

/// Tells the new process that its predecessor may still be closing.
inline constexpr char kRestartSwitch[] = "--restart";
/// Starts also where there is no notification area; a restart hands it on.
inline constexpr char kWithoutTraySwitch[] = "--without-tray";

/// Starts a new instance of this executable, which this one gives way to by ending. False when it
/// cannot be started.
[[nodiscard]] bool startAnew();

/// Starts a new instance of this executable and asks this one to quit. When the new one cannot be
/// started this one stays; may then block for a second.
void restartApplication();

/// Starts `exeName` from the application directory and asks this program to quit, unless there is
/// no such file.
void startAndQuit(const QString &exeName);

} // namespace ProcessServices
