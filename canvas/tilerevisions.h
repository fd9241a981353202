#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

/// Tells, tile by tile, whether a picture has been painted since somebody last looked: a tile's
/// revision grows whenever something is painted into it. Any number of onlookers may compare.
/// All areas are device pixels of the picture.
class TileRevisions
{
public:
    /// Small beside the screen, so that little is shown anew for a change, and large enough that a
    /// full 4K board is a few hundred pieces for the scene graph.
    static constexpr int kTilePx = 128;

    /// The picture has this size now, and all of it was painted.
    void reset(const QSize &picture);
    /// Something may have been painted here.
    void touch(const QRect &pixels);

    [[nodiscard]] int columns() const { return columnsOf(m_size.width()); }
    [[nodiscard]] int rows() const { return columnsOf(m_size.height()); }
    [[nodiscard]] quint64 revision(int column, int row) const;
    /// The tile's part of the picture.
    [[nodiscard]] QRect tileRect(int column, int row) const;

private:
    static int columnsOf(int pixels) { return (pixels + kTilePx - 1) / kTilePx; }
    [[nodiscard]] std::size_t index(int column, int row) const;

    QSize m_size{ 0, 0 };
    quint64 m_latest = 0;
    std::vector<quint64> m_revisions; ///< row by row
};
