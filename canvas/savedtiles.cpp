#include "canvas/savedtiles.h"

#include <cstring>

namespace
{

QRect tileRect(const QPoint &tile)
{
    return { tile * SavedTiles::kTilePx, QSize(SavedTiles::kTilePx, SavedTiles::kTilePx) };
}

} // namespace

QRect SavedTiles::wholeTiles(const QRect &area, const QRect &picture)
{
    const QRect inside = area & picture;
    if (inside.isEmpty())
        return {};
    const auto tileOf = [](const QPoint &p) { return QPoint(p.x() / kTilePx, p.y() / kTilePx); };
    return (tileRect(tileOf(inside.topLeft())) | tileRect(tileOf(inside.bottomRight()))) & picture;
}

/// False as soon as one visit is.
template <typename Visit> bool SavedTiles::forEachTile(const QRect &area, Visit visit)
{
    if (area.isEmpty())
        return true;
    for (int row = area.top() / kTilePx; row <= area.bottom() / kTilePx; ++row) {
        for (int column = area.left() / kTilePx; column <= area.right() / kTilePx; ++column) {
            if (!visit(QPoint(column, row)))
                return false;
        }
    }
    return true;
}

bool SavedTiles::covers(const QRect &area) const
{
    return forEachTile(area, [this](const QPoint &tile) { return m_tiles.contains(tile); });
}

void SavedTiles::saveMissing(const QImage &picture, const QRect &area)
{
    forEachTile(area, [&](const QPoint &tile) {
        if (!m_tiles.contains(tile))
            m_tiles.insert(tile, picture.copy(tileRect(tile) & picture.rect()));
        return true;
    });
}

void SavedTiles::restore(QImage &picture, const QRect &area) const
{
    forEachTile(area, [&](const QPoint &tile) {
        const QImage &kept = *m_tiles.constFind(tile);
        const QPoint origin = tileRect(tile).topLeft();
        const QRect part = QRect(origin, kept.size()) & area;
        const auto length = static_cast<std::size_t>(part.width()) * sizeof(QRgb);
        for (int y = part.top(); y <= part.bottom(); ++y) {
            auto *to = reinterpret_cast<QRgb *>(picture.scanLine(y)) + part.left();
            const auto *from = reinterpret_cast<const QRgb *>(kept.constScanLine(y - origin.y()));
            std::memcpy(to, from + (part.left() - origin.x()), length);
        }
        return true;
    });
}
