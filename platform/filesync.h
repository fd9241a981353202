#pragma once

#include <QString>

class QFileDevice;

/// Waits until the bytes of an open file have reached the disk; what the program still buffers is
/// to be flushed first. False, with `errno` set on Unix, when they may not have: some file systems
/// find out only now that they are full.
[[nodiscard]] bool syncFile(const QFileDevice &file);

/// The same for the names in a folder, so that a renamed file is found under its new name after
/// the power failed. Without effect on systems that do this by themselves.
void syncFolder(const QString &path);
