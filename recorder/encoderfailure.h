#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

/// Why an encoder ended badly, as far as its own words tell.
struct EncoderFailure {
    QLatin1StringView code; ///< one of RecorderProtocol::Code
    QString text;

    /// `words` is what FFmpeg wrote to standard error.
    static EncoderFailure fromWords(const QByteArray &words, const QString &outputPath);
    /// It had to be killed, as it did not finish in time.
    static EncoderFailure hung(const QString &outputPath);
    /// Whether the words tell of something that could not be written. FFmpeg, asked to end, ends
    /// all the same as if nothing had happened.
    static bool tellsFailedWrite(const QByteArray &words);

private:
    static bool tellsFullDisk(const QByteArray &words);
};
