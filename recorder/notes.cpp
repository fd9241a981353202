#include "recorder/notes.h"

#include "recorder/recorderprotocol.h"

#include <cstdio>

namespace
{

/// Lines reach the reader at once, as the next one may never come.
void write(std::FILE *stream, const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void Notes::file(const QString &path)
{
    write(stdout, RecorderProtocol::kFilePrefix + path);
}

void Notes::warning(QLatin1StringView code, const QString &text)
{
    write(stderr,
        RecorderProtocol::kWarningPrefix + QString(code) + RecorderProtocol::kCodeEnd + text);
}

void Notes::error(QLatin1StringView code, const QString &text)
{
    write(
        stderr, RecorderProtocol::kErrorPrefix + QString(code) + RecorderProtocol::kCodeEnd + text);
}
