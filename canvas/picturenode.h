#pragma once

#include <QSGNode>
#include <QSize>

#include <vector>

class QImage;
class QQuickWindow;
class QSGImageNode;
class TileRevisions;

/// Shows a picture on the scene graph in small pieces, so that what a change costs on its way to
/// the screen depends on the size of the change and not of the screen. Tiles without a mark have
/// no piece at all.
///
/// Lives in the scene graph and is used while the GUI thread waits for it, as every node is.
class PictureNode : public QSGNode
{
public:
    /// Brings the tiles painted since the last call up to date. The picture's top-left corner
    /// stands at the origin, each of its pixels on one pixel of the window.
    void show(const QImage &picture, const TileRevisions &revisions, QQuickWindow &window);

private:
    struct Tile {
        quint64 revision = 0;
        QSGImageNode *node = nullptr; ///< a child of this node; null when there is nothing to show
    };

    void layOut(const QImage &picture, const TileRevisions &revisions);
    void renew(Tile &tile, const QImage &piece, const QRectF &area, QQuickWindow &window);

    QSize m_pictureSize;
    qreal m_ratio = 0;
    std::vector<Tile> m_tiles; ///< row by row
};
