#pragma once

#include <QRect>

/// The whole device pixels that an area of the canvas touches.
inline QRect devicePixels(const QRect &area, qreal ratio)
{
    return QRectF(area.x() * ratio, area.y() * ratio, area.width() * ratio, area.height() * ratio)
        .toAlignedRect();
}
