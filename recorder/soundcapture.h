#pragma once

#include "recorder/ffmpegcommand.h"

#include <QVector>

#include <memory>

class QIODevice;

/// The sound of a recording. Whatever cannot be had is told as a warning and left out.
class SoundCapture
{
public:
    /// Opens the default microphone, the system's sound, or both. Null when there is nothing to
    /// hear. Blocks until the sound server has answered, for a second and a half at most.
    static std::unique_ptr<SoundCapture> open(bool microphone, bool systemSound);

    virtual ~SoundCapture() = default;

    /// Where FFmpeg finds the sound.
    virtual QVector<SoundInput> inputs() const = 0;
    /// The recording's time zero is now. `encoder` is FFmpeg's standard input; it outlives this
    /// object or `end`.
    virtual void begin(QIODevice *encoder) = 0;
    /// Hands over what was heard until now; nothing is written to the encoder any more.
    virtual void end() = 0;
};
