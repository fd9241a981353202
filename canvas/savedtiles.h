#pragma once

#include <QHash>
#include <QImage>
#include <QPoint>
#include <QRect>

/// Pieces of a picture, kept to put them back. Areas are device pixels of the picture.
class SavedTiles
{
public:
    static constexpr int kTilePx = 64;

    /// The area grown to whole tiles, as far as the picture goes.
    [[nodiscard]] static QRect wholeTiles(const QRect &area, const QRect &picture);

    void clear() { m_tiles.clear(); }
    [[nodiscard]] bool covers(const QRect &area) const;
    /// Keeps what the picture shows in every tile that meets `area` and is not kept yet.
    void saveMissing(const QImage &picture, const QRect &area);
    /// Puts back what was kept. Every tile that meets `area` must have been saved.
    void restore(QImage &picture, const QRect &area) const;

private:
    template <typename Visit> static bool forEachTile(const QRect &area, Visit visit);

    QHash<QPoint, QImage> m_tiles; ///< by column and row
};
