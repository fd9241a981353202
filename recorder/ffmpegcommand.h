#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

/// Where FFmpeg takes sound from. Several inputs are mixed into one track.
struct SoundInput {
    QStringList options; ///< everything up to the "-i"
    QString source;
};

/// Where FFmpeg takes the picture from.
enum class ScreenGrabber { X11, Gdi };

/// The command line of one recording.
struct FfmpegCommand {
    ScreenGrabber grabber = ScreenGrabber::X11;
    QString display; ///< the X display, used by the X11 grabber only
    QRect areaPx; ///< even sides, physical pixels of the desktop
    QVector<SoundInput> sound; ///< none records no sound track
    /// The wall clock at which the recording's time begins, seconds since the epoch.
    double epochSeconds = 0;
    QString outputPath;

    [[nodiscard]] QStringList arguments() const;

private:
    QStringList pictureInput() const;
    QString preset() const;
    QString filterGraph() const;
};
