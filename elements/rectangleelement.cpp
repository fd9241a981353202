#include "elements/rectangleelement.h"

#include <QPainter>

#include <cmath>

RectangleElement::RectangleElement(const QPoint &startPoint, const QPoint &endPoint,
    const QColor &penColor, int width, double penOpacity)
    : TwoPointElement(Rectangle, startPoint, endPoint, penColor, width, penOpacity)
{
}

void RectangleElement::paint(QPainter *painter) const
{
    setUpPen(painter);
    painter->setBrush(QColor(Qt::transparent));
    painter->drawRect(pointsArea());
}

bool RectangleElement::contains(const QPoint &point, int tolerance) const
{
    const QPointF p(point);
    const QRectF outline = pointsArea();
    const auto near = [tolerance](double value, double edge) {
        return std::abs(value - edge) <= tolerance;
    };
    const auto within = [tolerance](double value, double from, double to) {
        return from - tolerance <= value && value <= to + tolerance;
    };
    const bool onHorizontalEdge = near(p.y(), outline.top()) || near(p.y(), outline.bottom());
    const bool onVerticalEdge = near(p.x(), outline.left()) || near(p.x(), outline.right());
    return (onHorizontalEdge && within(p.x(), outline.left(), outline.right()))
        || (onVerticalEdge && within(p.y(), outline.top(), outline.bottom()));
}
