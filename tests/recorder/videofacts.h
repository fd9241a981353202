#pragma once

#include <QString>

/// What an independent look at a video file finds.
struct VideoFacts {
    bool plays = false; ///< it has a picture track whose every picture decodes
    double seconds = 0; ///< how long the picture track lasts

    static VideoFacts of(const QString &path);
    /// How much of the sound's energy, 0 to 1, lies at this frequency.
    static double toneShare(const QString &path, int hertz);
};
