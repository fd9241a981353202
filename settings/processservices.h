#pragma once

#include <QString>
#include <QStringList>

/// Leaving or replacing the running program.
namespace ProcessServices
{

/// Tells the new process that its predecessor may still be closing.
inline constexpr char kRestartSwitch[] = "--restart";
/// Starts also where there is no notification area; a restart hands it on.
inline constexpr char kWithoutTraySwitch[] = "--without-tray";

/// Under which name other starts find this instance; its successor learns it.
void setInstanceName(const QString &name);

/// The name of the instance that has started this one in its own place, if it did. To be asked
/// once: it does not go on to what this process starts.
[[nodiscard]] QString takePredecessorName();

/// Starts a new instance of this executable, which this one gives way to by ending, with the same
/// `arguments`. False when it cannot be started.
[[nodiscard]] bool startAnew(const QStringList &arguments);

/// Starts a new instance of this executable and asks this one to quit. When the new one cannot be
/// started this one stays; may then block for a second.
void restartApplication();

/// Starts `exeName` from the application directory and asks this program to quit, unless there is
/// no such file.
void startAndQuit(const QString &exeName);

} // namespace ProcessServices
