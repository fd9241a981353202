#pragma once

#include <QString>

#include <functional>

class QFileDevice;

/// Writing files that are there whole or not at all.
namespace WholeFile
{

/// Has `fill` write a file beside `path` and puts it in the place of `path` once every byte has
/// reached the disk. `fill` returns an empty text, or why it failed. Returns an empty text, or what
/// went wrong, for people: then whatever was at `path` before is still there, unchanged. A link is
/// followed; what is neither missing nor a file is refused. Only where a file may be written, but
/// its folder takes no new one, it is written in its place and could be lost with the power.
[[nodiscard]] QString write(
    const QString &path, const std::function<QString(QFileDevice &file)> &fill);

/// Copies a file to `copy`, where nothing may be yet. False, and no copy, unless every byte of it
/// has reached the disk: on a full one QFile::copy() may call half a copy a success.
[[nodiscard]] bool copy(const QString &path, const QString &copy);

} // namespace WholeFile
