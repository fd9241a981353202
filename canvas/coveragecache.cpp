#include "canvas/coveragecache.h"

#include "canvas/devicepixels.h"
#include "elements/drawingelement.h"

#include <QImage>
#include <QPainter>
#include <QRgba64>

#include <algorithm>

namespace
{

/// A dozen ordinary strokes.
constexpr int kPathElementsPerRepaint = 4000;
/// What a mark may take to be recorded, which is done in one go.
constexpr int kMostPathElements = 3000;
constexpr qint64 kMostPixels = 1024LL * 1024;

} // namespace

void CoverageCache::beginRepaint(const QSize &pixels, qreal ratio)
{
    const QRect picture(QPoint(), pixels);
    if (picture != m_picture || !qFuzzyCompare(ratio, m_ratio))
        m_entries.clear();
    m_picture = picture;
    m_ratio = ratio;
    ++m_repaint;
    m_pathElementsLeft = kPathElementsPerRepaint;
}

bool CoverageCache::paint(QImage &picture, const QRect &pixels, const DrawingElement &element)
{
    const std::optional<PlainShape> shape = element.plainShape(m_ratio);
    const Coverage *coverage = shape ? find(element, *shape) : nullptr;
    if (!coverage)
        return false;
    const QRgba64 ink = shape->color.rgba64();
    // With an invisible pen QPainter leaves alone even what blending nothing would round.
    if (!ink.isTransparent())
        coverage->fill(picture, pixels, ink.premultiplied().toArgb32());
    return true;
}

const Coverage *CoverageCache::find(const DrawingElement &element, const PlainShape &shape)
{
    const Key key(shape.outline, element.penWidth);
    const Entry *entry = m_entries.object(key);
    if (!entry) {
        m_entries.insert(key, new Entry{ m_repaint, {} }, sizeof(Entry));
        return nullptr;
    }
    if (!entry->coverage && entry->seenIn != m_repaint && isWorthRecording(element, shape)) {
        m_pathElementsLeft -= shape.pathElements;
        entry = keep(key, recorded(element));
    }
    return entry && entry->coverage ? &*entry->coverage : nullptr;
}

bool CoverageCache::isWorthRecording(const DrawingElement &element, const PlainShape &shape) const
{
    const QRect pixels = pixelsOf(element);
    return shape.pathElements <= std::min(m_pathElementsLeft, kMostPathElements)
        && qint64(pixels.width()) * pixels.height() <= kMostPixels;
}

QRect CoverageCache::pixelsOf(const DrawingElement &element) const
{
    return devicePixels(element.paintedRect(), m_ratio) & m_picture;
}

Coverage CoverageCache::recorded(const DrawingElement &element) const
{
    const QRect pixels = pixelsOf(element);
    QImage shape(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    // QPainter cuts coordinates off towards zero. Shifted by whole pixels, and not past zero, they
    // keep the fractions of a pixel that they have in the picture.
    painter.setTransform(QTransform(m_ratio, 0, 0, m_ratio, -pixels.x(), -pixels.y()));
    element.paintPlainShape(&painter, Qt::white);
    return { shape, pixels.topLeft() };
}

const CoverageCache::Entry *CoverageCache::keep(const Key &key, Coverage coverage)
{
    const std::size_t cost = sizeof(Entry) + coverage.bytes();
    auto *entry = new Entry{ m_repaint, std::move(coverage) };
    return m_entries.insert(key, entry, qsizetype(cost)) ? entry : nullptr;
}
