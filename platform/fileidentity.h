#pragma once

#include <QString>

#include <optional>
#include <utility>

/// Device and number of a file on its file system: two paths with the same identity are the same
/// file, and a file that replaced another under the same path has a different one.
using FileIdentity = std::pair<quint64, quint64>;

/// The identity of what lies at `path` now; nothing when there is no file, or on a system whose
/// local sockets are no files.
[[nodiscard]] std::optional<FileIdentity> fileIdentity(const QString &path);
