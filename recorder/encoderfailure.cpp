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

EncoderFailure EncoderFailure::hung(const QString &outputPath)
{
    return { Code::kEncoderFailed,
        QStringLiteral("FFmpeg did not finish in time; the last moment may be missing in %1.")
            .arg(outputPath) };
}

EncoderFailure EncoderFailure::fromWords(const QByteArray &words, const QString &outputPath)
{
    if (tellsFullDisk(words))
        return { Code::kDiskFull,
            QStringLiteral("The disk is full. What fitted is in %1; free some space in %2.")
                .arg(outputPath, QFileInfo(outputPath).absolutePath()) };
    if (words.contains("Cannot open display"))
        return { Code::kNoScreen, QStringLiteral("The X display cannot be opened.") };
    const QString last = lastLine(words);
    if (last.isEmpty())
        return { Code::kEncoderFailed, QStringLiteral("FFmpeg ended without saying why.") };
    return { Code::kEncoderFailed, QStringLiteral("FFmpeg failed: %1").arg(last) };
}
