#include "canvas/picturenode.h"

#include "canvas/tilerevisions.h"

#include <QImage>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <utility>

namespace
{

/// A part of the picture that shares its pixels: valid only as long as the picture is unchanged.
QImage pieceOf(const QImage &picture, const QRect &pixels)
{
    const uchar *first =
        picture.constScanLine(pixels.y()) + static_cast<std::size_t>(pixels.x()) * sizeof(QRgb);
    return { first, pixels.width(), pixels.height(), picture.bytesPerLine(), picture.format() };
}

bool isBlank(const QImage &piece)
{
    for (int y = 0; y < piece.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(piece.constScanLine(y));
        if (std::any_of(line, line + piece.width(), [](QRgb pixel) { return pixel != 0; }))
            return false;
    }
    return true;
}

QRectF canvasArea(const QRect &pixels, qreal ratio)
{
    return { pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio,
        pixels.height() / ratio };
}

} // namespace

void PictureNode::show(const QImage &picture, const TileRevisions &revisions, QQuickWindow &window)
{
    if (picture.size() != m_pictureSize || !qFuzzyCompare(picture.devicePixelRatio(), m_ratio))
        layOut(picture, revisions);
    auto tile = m_tiles.begin();
    for (int row = 0; row < revisions.rows(); ++row) {
        for (int column = 0; column < revisions.columns(); ++column, ++tile) {
            const quint64 revision = revisions.revision(column, row);
            if (tile->revision == revision)
                continue;
            tile->revision = revision;
            const QRect pixels = revisions.tileRect(column, row);
            renew(*tile, pieceOf(picture, pixels), canvasArea(pixels, m_ratio), window);
        }
    }
}

void PictureNode::layOut(const QImage &picture, const TileRevisions &revisions)
{
    for (const Tile &tile : m_tiles)
        delete tile.node;
    m_pictureSize = picture.size();
    m_ratio = picture.devicePixelRatio();
    m_tiles.assign(
        static_cast<std::size_t>(revisions.columns()) * static_cast<std::size_t>(revisions.rows()),
        {});
}

void PictureNode::renew(Tile &tile, const QImage &piece, const QRectF &area, QQuickWindow &window)
{
    if (isBlank(piece)) {
        delete std::exchange(tile.node, nullptr);
        return;
    }
    const bool isNew = !tile.node;
    if (isNew) {
        tile.node = window.createImageNode();
        tile.node->setOwnsTexture(true);
    }
    // The conversion also parts the texture from the picture, which may be painted before a
    // threaded scene graph gets round to uploading.
    tile.node->setTexture(
        window.createTextureFromImage(piece.convertToFormat(QImage::Format_ARGB32_Premultiplied)));
    tile.node->setSourceRect(QRectF(QPointF(), piece.size()));
    tile.node->setRect(area);
    if (isNew)
        appendChildNode(tile.node); // only now: the scene graph asks a node for its texture at once
}
