#pragma once

#include <QByteArray>
#include <QString>

/// The sound devices of Windows, as FFmpeg lists them.
struct DshowDevices {
    QString microphone; ///< empty without one
    QString systemSound; ///< a device that records what the system plays; most machines hide theirs

    /// `listing` is what FFmpeg's DirectShow device list prints.
    static DshowDevices fromListing(const QByteArray &listing);
};
