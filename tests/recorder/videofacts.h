#pragma once

#include <QColor>
#include <QSize>
#include <QString>

/// What an independent look at a video file finds.
struct VideoFacts {
    bool plays = false; ///< it has a picture track whose every picture decodes
    QSize size;
    int pictures = 0;
    double seconds = 0; ///< how long the picture track lasts
    bool hasSound = false;

    double picturesPerSecond() const { return seconds > 0 ? pictures / seconds : 0; }

    static VideoFacts of(const QString &path);
    /// The colour in the middle of the picture at that time.
    static QColor colourAt(const QString &path, double seconds);
    /// How much of the sound's energy, 0 to 1, lies at this frequency.
    static double toneShare(const QString &path, int hertz);
};
