#include "elements/twopointelement.h"

#include "elements/geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

TwoPointElement::TwoPointElement(qint32 kind, const QPoint &startPoint, const QPoint &endPoint,
    const QColor &penColor, int width, double penOpacity)
    : DrawingElement(kind, penColor, width, penOpacity), start(startPoint), end(endPoint)
{
}

void TwoPointElement::move(const QPoint &offset)
{
    start = geometry::translated(start, offset);
    end = geometry::translated(end, offset);
}

void TwoPointElement::scale(double factor, const QPoint &center)
{
    TwoPointElement::scaleAxes(factor, factor, center);
}

void TwoPointElement::rotate(double angle, const QPoint &center)
{
    start = geometry::rotated(start, angle, center);
    end = geometry::rotated(end, angle, center);
}

void TwoPointElement::scaleAxes(double factorX, double factorY, const QPoint &center)
{
    start = geometry::scaled(start, factorX, factorY, center);
    end = geometry::scaled(end, factorX, factorY, center);
}

QRect TwoPointElement::boundingRect() const
{
    return geometry::framed(pointsArea(), penWidth / 2, penWidth);
}

QRect TwoPointElement::paintedRect() const
{
    return geometry::enclosingRect(pointsArea(), penReach());
}

QRectF TwoPointElement::pointsArea() const
{
    return QRectF(QPointF(start), QPointF(end)).normalized();
}

std::optional<double> TwoPointElement::projection(const QPoint &point) const
{
    const QPointF along = QPointF(end) - QPointF(start);
    const double length = std::trunc(std::sqrt(geometry::squaredLength(along)));
    if (length == 0.0)
        return std::nullopt;
    return QPointF::dotProduct(QPointF(point) - QPointF(start), along) / (length * length);
}

bool TwoPointElement::shaftContains(const QPoint &point, double share, int tolerance) const
{
    const QPointF from(start);
    const QPointF foot = from + std::clamp(share, 0.0, 1.0) * (QPointF(end) - from);
    const double reach = double(penWidth) + tolerance;
    return reach * reach >= geometry::squaredLength(QPointF(point) - foot);
}
