#include "capture/linebuffer.h"

#include <algorithm>
#include <utility>

void LineBuffer::add(QByteArrayView piece, const std::function<void(const QString &)> &consume)
{
    for (qsizetype end = piece.indexOf('\n'); end >= 0; end = piece.indexOf('\n')) {
        keep(piece.first(end));
        piece = piece.sliced(end + 1);
        const QString line = takeRest();
        if (!line.isEmpty())
            consume(line);
    }
    keep(piece);
}

QString LineBuffer::takeRest()
{
    return QString::fromUtf8(std::exchange(m_pending, {})).trimmed();
}

void LineBuffer::keep(QByteArrayView part)
{
    m_pending += part.first(std::min(part.size(), kMaxBytes - m_pending.size()));
}
