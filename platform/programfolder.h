#pragma once

#include <QString>

/// The folder of the running executable, and what may be done with it.
namespace ProgramFolder
{

[[nodiscard]] QString path();

/// Whether a package manager put the program there, which then alone changes it. It leaves the file
/// "packaged" beside the executable.
[[nodiscard]] bool isPackaged();

/// Whether files of this program may be made there. Tried for real, since permission bits tell
/// neither of read-only disks nor of access lists nor of the administrator; once, so that nothing
/// the program keeps there moves while it runs. A full disk counts as writable.
[[nodiscard]] bool isWritable();

} // namespace ProgramFolder
