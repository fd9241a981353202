#pragma once

#include "recorder/ffmpegcommand.h"

#include <QRect>
#include <QString>

#include <optional>

/// The desktop that the recorder was started on.
struct Desktop {
    QRect areaPx; ///< all screens together, physical pixels, in the grabber's coordinates
    QString display; ///< the X display's name, empty elsewhere
    ScreenGrabber grabber;

    /// Empty when there is no desktop that could be recorded.
    static std::optional<Desktop> current();
};
