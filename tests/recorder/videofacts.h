#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>

#include <vector>

/// What an independent look at a video file finds.
struct VideoFacts {
    bool plays = false; ///< it has a picture track whose every picture decodes
    double seconds = 0; ///< how long the picture track lasts

    static VideoFacts of(const QString &path);
    /// How much of the sound's energy, 0 to 1, lies at this frequency.
    static double toneShare(const QString &path, int hertz);

    /// What the picture says of its colours: range, matrix, transfer, primaries.
    static QByteArray colourTags(const QString &path);
    /// The colour of the first picture's middle for a player that takes it for BT.709.
    static QColor colourAsBt709(const QString &path);

    struct Event {
        double seconds; ///< when the picture changed
        double soundLate; ///< how many seconds later it was heard; negative when it led
    };
    /// The moments at which the picture turned from dark to bright or back and a click was heard.
    static std::vector<Event> flashesAndClicks(const QString &path);
};
