#include "recorder/encoderfailure.h"

#include "recorder/recorderprotocol.h"

#include <QFileInfo>

using namespace RecorderProtocol;

namespace
{

QString lastLine(const QByteArray &words)
{
    const QByteArray trimmed = words.trimmed();
    return QString::fromUtf8(trimmed.mid(trimmed.lastIndexOf('\n') + 1)).trimmed();
}

} // namespace

bool EncoderFailure::tellsFullDisk(const QByteArray &words)
{
    return words.contains("No space left on device") || words.contains("Disk quota exceeded")
        || words.contains("There is not enough space on the disk");
}

bool EncoderFailure::tellsFailedWrite(const QByteArray &words)
{
    return tellsFullDisk(words) || words.contains("Error writing trailer")
        || words.contains("Error closing file") || words.contains("av_interleaved_write_frame()");
}

EncoderFailure EncoderFailure::hung(const QString &outputPath)
{
    return { Code::kEncoderHung,
        QStringLiteral("FFmpeg did not finish in time; the last moment may be missing in %1.")
            .arg(outputPath) };
}

EncoderFailure EncoderFailure::fromWords(const QByteArray &words, const QString &outputPath)
{
    if (tellsFullDisk(words))
        return { Code::kDiskFull,
            QStringLiteral("The disk is full. Free some space in %1.")
                .arg(QFileInfo(outputPath).absolutePath()) };
    if (words.contains("Cannot open display"))
        return { Code::kNoScreen, QStringLiteral("The X display cannot be opened.") };
    if (words.contains("Unknown encoder"))
        return { Code::kEncoderLacking,
            QStringLiteral("This FFmpeg cannot encode H.264 or AAC; install a complete one.") };
    const QString last = lastLine(words);
    if (last.isEmpty())
        return { Code::kEncoderEnded, QStringLiteral("FFmpeg ended without saying why.") };
    return { Code::kEncoderFailed, QStringLiteral("FFmpeg failed: %1").arg(last) };
}
