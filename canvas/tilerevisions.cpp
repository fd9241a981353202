#include "canvas/tilerevisions.h"

void TileRevisions::reset(const QSize &picture)
{
    m_size = picture.expandedTo({ 0, 0 });
    ++m_latest;
    m_revisions.assign(
        static_cast<std::size_t>(columns()) * static_cast<std::size_t>(rows()), m_latest);
}

void TileRevisions::touch(const QRect &pixels)
{
    const QRect area = pixels & QRect(QPoint(), m_size);
    if (area.isEmpty())
        return;
    ++m_latest;
    for (int row = area.top() / kTilePx; row <= area.bottom() / kTilePx; ++row) {
        for (int column = area.left() / kTilePx; column <= area.right() / kTilePx; ++column)
            m_revisions[index(column, row)] = m_latest;
    }
}

quint64 TileRevisions::revision(int column, int row) const
{
    return m_revisions[index(column, row)];
}

QRect TileRevisions::tileRect(int column, int row) const
{
    return QRect(column * kTilePx, row * kTilePx, kTilePx, kTilePx) & QRect(QPoint(), m_size);
}

std::size_t TileRevisions::index(int column, int row) const
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns())
        + static_cast<std::size_t>(column);
}
