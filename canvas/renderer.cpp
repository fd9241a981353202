#include "canvas/renderer.h"

#include "canvas/devicepixels.h"
#include "canvas/elementlist.h"
#include "elements/drawingelement.h"

#include <QDebug>
#include <QPainter>

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace
{

constexpr QPainter::RenderHints kRenderHints =
    QPainter::Antialiasing | QPainter::SmoothPixmapTransform;
constexpr int kNothingChanged = std::numeric_limits<int>::max();

bool checksRepaints = false;

void paintElement(QPainter &painter, const DrawingElement &element)
{
    // Nothing of an element may leak into the next one: neither its fill, nor what the painting
    // engine keeps of its pen. After an invisible pen it blends glyphs otherwise, so a picture
    // would tell whether an element was skipped.
    painter.save();
    painter.setBrush(QBrush(Qt::transparent, Qt::SolidPattern));
    element.paint(&painter);
    painter.restore();
}

} // namespace

void Renderer::contentChanged(const Damage &damage, int lowest, const QSize &size)
{
    if (m_staleAfterResize || m_picture.isNull() || size != m_size) {
        rebuild(size);
        return;
    }
    m_lowest = std::min(m_lowest, lowest);
    m_damage.add(damage);
}

void Renderer::rebuild(const QSize &size)
{
    m_size = size;
    m_rebuildPending = true;
    m_staleAfterResize = false;
}

void Renderer::resize(const QSize &size)
{
    const QImage blank = emptyPicture(size);
    const QImage &old = picture();
    m_picture = old.isNull() || blank.isNull() ? blank : old.copy(blank.rect());
    m_revisions.reset(m_picture.size());
    m_size = size;
    m_staleAfterResize = true;
}

bool Renderer::setDevicePixelRatio(qreal ratio)
{
    return !qFuzzyCompare(std::exchange(m_ratio, ratio), ratio);
}

const QImage &Renderer::picture()
{
    if (std::exchange(m_rebuildPending, false))
        repaintAll();
    else if (m_lowest != kNothingChanged)
        repaintDamage();
    m_damage.clear();
    m_lowest = kNothingChanged;
    return m_picture;
}

void Renderer::paintElements(QPainter &painter, const ElementList &elements)
{
    for (const ElementPtr &element : elements)
        paintElement(painter, *element);
}

QImage Renderer::emptyPicture(const QSize &size) const
{
    QImage image(size * m_ratio, QImage::Format_ARGB32);
    image.setDevicePixelRatio(m_ratio);
    image.fill(Qt::transparent);
    return image;
}

void Renderer::repaintAll()
{
    m_picture = emptyPicture(m_size);
    m_revisions.reset(m_picture.size());
    forgetBeneath();
    m_paintedCount = m_elements.size();
    if (m_picture.isNull())
        return;
    QPainter painter(&m_picture);
    painter.setRenderHints(kRenderHints);
    paintElements(painter, m_elements);
}

void Renderer::repaintDamage()
{
    const int topmost = m_elements.size() - 1;
    const int paintedCount = std::exchange(m_paintedCount, m_elements.size());
    const bool onlyAppended = topmost == paintedCount && m_lowest >= paintedCount;
    if (onlyAppended || m_beneathCount != topmost) {
        forgetBeneath();
        m_beneathCount = topmost;
        m_picturesBeneath = onlyAppended;
    }
    if (topmost < 0 || m_lowest < topmost)
        forgetBeneath();
    m_coverages.beginRepaint(m_picture.size(), m_picture.devicePixelRatio());
    // The mark before is finished: record it now, so that an eraser finds the whole board so.
    if (onlyAppended && topmost > 0)
        m_coverages.prepare(*m_elements.at(topmost - 1));
    for (const QRect &area : m_damage.areas())
        repaintArea(area & QRect(QPoint(), m_size));
    if (checksRepaints)
        checkPicture();
}

void Renderer::repaintArea(const QRect &area)
{
    const QRect pixels =
        devicePixels(area, m_picture.devicePixelRatio()).intersected(m_picture.rect());
    if (pixels.isEmpty())
        return;
    m_revisions.touch(pixels);
    if (m_beneathCount >= 0)
        repaintTopmost(pixels);
    else
        repaint(pixels, m_elements.size() - 1);
}

void Renderer::repaintTopmost(const QRect &pixels)
{
    QRect changed = pixels;
    if (m_picturesBeneath) {
        m_beneath.saveMissing(m_picture, pixels);
    } else if (!m_beneath.covers(pixels)) {
        changed = SavedTiles::wholeTiles(pixels, m_picture.rect());
        repaint(changed, m_beneathCount - 1);
        m_beneath.saveMissing(m_picture, changed);
    }
    m_beneath.restore(m_picture, changed);
    paintInto(changed, m_beneathCount, m_beneathCount);
}

void Renderer::repaint(const QRect &pixels, int last)
{
    const auto length = static_cast<std::size_t>(pixels.width()) * sizeof(QRgb);
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        std::memset(m_picture.scanLine(y) + pixels.left() * sizeof(QRgb), 0, length);
    paintInto(pixels, 0, last);
}

void Renderer::paintInto(const QRect &pixels, int first, int last)
{
    const qreal ratio = m_picture.devicePixelRatio();
    const QRect area = QRectF(
        pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio, pixels.height() / ratio)
                           .toAlignedRect();
    QPainter painter(&m_picture);
    painter.setRenderHints(kRenderHints);
    // The clip is given in device pixels: a logical rectangle would cut through pixels at
    // fractional ratios.
    painter.scale(1 / ratio, 1 / ratio);
    painter.setClipRect(pixels);
    painter.resetTransform();
    for (int i = first; i <= last; ++i) {
        if (m_elements.at(i)->paintsInto(area))
            paintElementInto(painter, pixels, i);
    }
}

void Renderer::paintElementInto(QPainter &painter, const QRect &pixels, int index)
{
    const DrawingElement &element = *m_elements.at(index);
    // The topmost may be growing under the pen.
    const bool mayChange = index == m_elements.size() - 1;
    if (mayChange || !m_coverages.paint(m_picture, pixels, element))
        paintElement(painter, element);
}

void Renderer::forgetBeneath()
{
    m_beneath.clear();
    m_beneathCount = -1;
    m_picturesBeneath = false;
}

void Renderer::checkRepaints(bool on)
{
    checksRepaints = on;
}

void Renderer::checkPicture() const
{
    QImage whole = emptyPicture(m_size);
    QPainter painter(&whole);
    painter.setRenderHints(kRenderHints);
    paintElements(painter, m_elements);
    painter.end();
    if (whole != m_picture)
        qWarning() << "Repainting" << m_damage.areas() << "from element" << m_lowest
                   << "on gave another picture than repainting everything";
}
