#include "canvas/coveragecache.h"

#include "canvas/devicepixels.h"

#include <QImage>
#include <QPainter>
#include <QRgba64>

#include <algorithm>
#include <cmath>

namespace
{

/// What recording may take in one repaint: a path is stroked, and the pixels around it are cleared
/// and looked through. Enough for a dozen ordinary strokes, and for a large one.
constexpr int kPathElementsPerRepaint = 4000;
constexpr qint64 kPixelsPerRepaint = 1024LL * 1024;

/// Whether coordinates times the ratio have few enough binary digits to be shifted without
/// rounding. At a ratio like 1.7 a shift may move an edge by the smallest step that QPainter knows.
bool shiftsExactly(qreal ratio)
{
    constexpr qreal kSteps = 64;
    return std::floor(ratio * kSteps) == ratio * kSteps;
}

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
    m_pixelsLeft = kPixelsPerRepaint;
}

bool CoverageCache::paint(QImage &picture, const QRect &pixels, const DrawingElement &element)
{
    const std::optional<PlainShape> shape = shapeOf(element);
    const Coverage *coverage = shape ? find(element, *shape) : nullptr;
    if (!coverage)
        return false;
    const QRgba64 ink = shape->color.rgba64();
    // With an invisible pen QPainter leaves alone even what blending nothing would round.
    if (!ink.isTransparent())
        coverage->fill(picture, pixels, ink.premultiplied().toArgb32());
    return true;
}

std::optional<PlainShape> CoverageCache::shapeOf(const DrawingElement &element) const
{
    return shiftsExactly(m_ratio) ? element.plainShape(m_ratio) : std::nullopt;
}

void CoverageCache::prepare(const DrawingElement &element)
{
    const std::optional<PlainShape> shape = shapeOf(element);
    if (shape && !m_entries.contains(Key(shape->outline, element.penWidth)))
        record(element, *shape);
}

const Coverage *CoverageCache::find(const DrawingElement &element, const PlainShape &shape)
{
    const Key key(shape.outline, element.penWidth);
    const Entry *entry = m_entries.object(key);
    if (!entry) {
        m_entries.insert(key, new Entry{ m_repaint, {} }, sizeof(Entry));
        return nullptr;
    }
    if (!entry->coverage && entry->seenIn != m_repaint)
        entry = record(element, shape);
    return entry && entry->coverage ? &*entry->coverage : nullptr;
}

const CoverageCache::Entry *CoverageCache::record(
    const DrawingElement &element, const PlainShape &shape)
{
    const QRect pixels = pixelsOf(element);
    const qint64 pixelCount = qint64(pixels.width()) * pixels.height();
    if (shape.pathElements > m_pathElementsLeft || pixelCount > m_pixelsLeft)
        return nullptr;
    m_pathElementsLeft -= shape.pathElements;
    m_pixelsLeft -= pixelCount;
    return keep(Key(shape.outline, element.penWidth), covered(element, pixels, m_ratio));
}

QRect CoverageCache::pixelsOf(const DrawingElement &element) const
{
    return devicePixels(element.paintedRect(), m_ratio) & m_picture;
}

Coverage CoverageCache::covered(const DrawingElement &element, const QRect &pixels, qreal ratio)
{
    if (pixels.isEmpty())
        return {};
    QImage shape(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    // QPainter cuts coordinates off towards zero. Shifted by whole pixels, and not past zero, they
    // keep the fractions of a pixel that they have in the picture.
    painter.setTransform(QTransform(ratio, 0, 0, ratio, -pixels.x(), -pixels.y()));
    element.paintPlainShape(&painter, Qt::white);
    return { shape, pixels.topLeft() };
}

const CoverageCache::Entry *CoverageCache::keep(const Key &key, Coverage coverage)
{
    const std::size_t cost = sizeof(Entry) + coverage.bytes();
    auto *entry = new Entry{ m_repaint, std::move(coverage) };
    return m_entries.insert(key, entry, qsizetype(cost)) ? entry : nullptr;
}
