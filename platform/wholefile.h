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
/// followed; what is neither missing nor a file is refused.
[[nodiscard]] QString write(
    const QString &path, const std::function<QString(QFileDevice &file)> &fill);

} // namespace WholeFile
