#include "elements/circleelement.h"

#include "elements/geometry.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

CircleElement::CircleElement(const QPoint &centerPoint, int circleRadius, const QColor &penColor,
    int width, double penOpacity)
    : AnchoredElement(Circle, penColor, width, penOpacity), center(centerPoint),
      radius(circleRadius)
{
}

void CircleElement::paint(QPainter *painter) const
{
    setUpPen(painter);
    painter->setBrush(QColor(Qt::transparent));
    painter->drawEllipse(outline());
}

bool CircleElement::contains(const QPoint &point, int tolerance) const
{
    const double distance = std::sqrt(geometry::squaredLength(QPointF(point) - QPointF(center)));
    const double reach = double(penWidth) + tolerance;
    return std::max(0.0, radius - reach) <= distance && distance <= radius + reach;
}

QRect CircleElement::boundingRect() const
{
    const qint64 reach = qint64(radius) + penWidth / 2;
    return geometry::saturatedRect(center.x() - reach, center.y() - reach, 2 * reach, 2 * reach);
}

QRect CircleElement::paintedRect() const
{
    return geometry::enclosingRect(outline(), penReach());
}

QRectF CircleElement::outline() const
{
    const double side = 2.0 * radius;
    return QRectF(double(center.x()) - radius, double(center.y()) - radius, side, side)
        .normalized();
}

void CircleElement::scaleLength(double factor)
{
    radius = geometry::scaledLength(radius, factor);
}
