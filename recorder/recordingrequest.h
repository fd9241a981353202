#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

/// What one run of the recorder is asked to do.
struct RecordingRequest {
    QRect areaPx; ///< physical pixels of the desktop
    QString output; ///< a folder that ends in "/", or a file
    bool microphone = true;
    bool systemSound = true;

    /// Reads the six positional arguments: x, y, width, height, output path, audio option.
    /// On failure returns false and says why.
    static bool parse(const QStringList &arguments, RecordingRequest *request, QString *reason);
};
