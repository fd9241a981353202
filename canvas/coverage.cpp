#include "canvas/coverage.h"

#include "canvas/pixelblend.h"

#include <algorithm>
#include <iterator>

Coverage::Coverage(const QImage &shape, const QPoint &origin) : m_origin(origin)
{
    m_rows.reserve(std::size_t(shape.height()) + 1);
    for (int y = 0; y < shape.height(); ++y)
        addRow(reinterpret_cast<const QRgb *>(shape.constScanLine(y)), shape.width());
    m_rows.push_back({ quint32(m_runs.size()), quint32(m_values.size()) });
    m_runs.shrink_to_fit();
    m_values.shrink_to_fit();
}

void Coverage::addRow(const QRgb *pixels, int width)
{
    m_rows.push_back({ quint32(m_runs.size()), quint32(m_values.size()) });
    const QRgb *end = pixels + width;
    const auto isCovered = [](QRgb pixel) { return qAlpha(pixel) != 0; };
    for (const QRgb *at = std::find_if(pixels, end, isCovered); at != end;) {
        const QRgb *stop = std::find_if_not(at, end, isCovered);
        m_runs.push_back({ quint16(at - pixels), quint16(stop - at) });
        std::transform(at, stop, std::back_inserter(m_values),
            [](QRgb pixel) { return uchar(qAlpha(pixel)); });
        at = std::find_if(stop, end, isCovered);
    }
}

void Coverage::fill(QImage &picture, const QRect &clip, QRgb ink) const
{
    const PixelBlend &blend = PixelBlend::instance();
    const int top = std::max(clip.top(), m_origin.y());
    const int end = std::min(clip.bottom() + 1, m_origin.y() + int(m_rows.size()) - 1);
    for (int y = top; y < end; ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(picture.scanLine(y));
        const Row &row = m_rows[std::size_t(y - m_origin.y())];
        const quint32 endRun = m_rows[std::size_t(y - m_origin.y()) + 1].firstRun;
        const uchar *values = m_values.data() + row.firstValue;
        for (quint32 i = row.firstRun; i < endRun; ++i) {
            const Run &run = m_runs[i];
            const int x = m_origin.x() + run.x;
            const int stop = std::min(clip.right() + 1, x + run.length);
            for (int at = std::max(clip.left(), x); at < stop; ++at)
                blend.cover(pixels[at], ink, values[at - x]);
            values += run.length;
        }
    }
}

std::size_t Coverage::bytes() const
{
    return sizeof(Coverage) + m_rows.size() * sizeof(Row) + m_runs.size() * sizeof(Run)
        + m_values.size();
}
