#pragma once

#include <QString>
#include <QStringList>

/// Where files go for which nobody has chosen a place: beside the executable where that folder can
/// be written, else to the user's own folders. Paths have native separators.
namespace Places
{

/// The folder for captures. It is made when it is missing; empty when the user has no folder.
[[nodiscard]] QString captures();

/// Whether `folder`, the stored folder for captures, stands for no choice: it is empty, or it is
/// the program's own folder, which an earlier run stored but which cannot be written.
[[nodiscard]] bool isUnset(const QString &folder);

/// The folder for recordings when captures go to `chosen`, which may be empty: the same one, unless
/// that is only the user's folder for pictures by default; then the one for videos. Never empty
/// where `captures` is not.
[[nodiscard]] QString recordings(const QString &chosen);

/// The deployment files that are read, the first that knows a key first.
[[nodiscard]] QStringList deploymentFiles();

/// The one that is written; empty when there is none.
[[nodiscard]] QString writtenDeploymentFile();

} // namespace Places
