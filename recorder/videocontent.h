#pragma once

#include <QFile>

/// What a video file of the recorder holds, for the recorder and for whoever started it.
namespace VideoContent
{

/// Whether there are pictures in it; a missing file or a mere header holds none.
inline bool holdsPictures(const QString &path)
{
    constexpr qint64 kHeaderBytes = 16 * 1024; // more than the header takes
    QFile file(path);
    // Pictures come in fragments, the first of which follows the header.
    return !path.isEmpty() && file.open(QIODevice::ReadOnly)
        && file.read(kHeaderBytes).contains("moof");
}

} // namespace VideoContent
