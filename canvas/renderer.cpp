#include "canvas/renderer.h"

#include "canvas/elementlist.h"
#include "elements/drawingelement.h"

#include <QPainter>

#include <utility>

namespace
{

constexpr QPainter::RenderHints kRenderHints =
    QPainter::Antialiasing | QPainter::SmoothPixmapTransform;

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

/// The whole device pixels that `area` touches.
QRect devicePixels(const QRect &area, qreal ratio)
{
    return QRectF(area.x() * ratio, area.y() * ratio, area.width() * ratio, area.height() * ratio)
        .toAlignedRect();
}

} // namespace

void Renderer::contentChanged(const QRect &area, const QSize &size)
{
    if (m_staleAfterResize || m_picture.isNull() || size != m_size) {
        rebuild(size);
        return;
    }
    m_damage |= area.intersected(QRect(QPoint(), size));
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
    else if (!m_damage.isEmpty())
        repaintDamage();
    m_damage = QRect();
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
    if (m_picture.isNull())
        return;
    QPainter painter(&m_picture);
    painter.setRenderHints(kRenderHints);
    paintElements(painter, m_elements);
}

void Renderer::repaintDamage()
{
    const QRect pixels =
        devicePixels(m_damage, m_picture.devicePixelRatio()).intersected(m_picture.rect());
    if (pixels.isEmpty())
        return;
    QPainter painter(&m_picture);
    painter.setRenderHints(kRenderHints);
    // The clip is given in device pixels: a logical rectangle would cut through pixels at
    // fractional ratios.
    painter.scale(1 / m_picture.devicePixelRatio(), 1 / m_picture.devicePixelRatio());
    painter.setClipRect(pixels);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(pixels, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.resetTransform();
    for (const ElementPtr &element : m_elements) {
        if (element->paintedRect().intersects(m_damage))
            paintElement(painter, *element);
    }
}
