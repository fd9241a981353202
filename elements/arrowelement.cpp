#include "elements/arrowelement.h"

#include "elements/geometry.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{
constexpr double kSmallestHeadPx = 15.0;
/// From this share of the way on a hit is decided by the head alone.
constexpr double kHeadShare = 0.8;
} // namespace

ArrowElement::ArrowElement(const QPoint &startPoint, const QPoint &endPoint, const QColor &penColor,
    int width, double penOpacity)
    : TwoPointElement(Arrow, startPoint, endPoint, penColor, width, penOpacity)
{
}

void ArrowElement::paint(QPainter *painter) const
{
    setUpPen(painter);
    painter->drawLine(start, end);
    const QPolygon triangle = head();
    if (triangle.isEmpty())
        return;
    painter->setBrush(painter->pen().color());
    painter->drawPolygon(triangle, Qt::OddEvenFill);
}

bool ArrowElement::contains(const QPoint &point, int tolerance) const
{
    const std::optional<double> share = projection(point);
    if (!share)
        return false;
    if (*share <= kHeadShare || *share > 1.0)
        return shaftContains(point, *share, tolerance);

    const QPolygonF triangle(head());
    if (triangle.containsPoint(point, Qt::OddEvenFill))
        return true;
    if (tolerance < 0)
        return false;
    const double reach = double(tolerance) * tolerance;
    for (qsizetype i = 0; i < triangle.size(); ++i) {
        const QPointF &next = triangle.at((i + 1) % triangle.size());
        if (geometry::squaredDistanceToSegment(point, triangle.at(i), next) <= reach)
            return true;
    }
    return false;
}

QRect ArrowElement::boundingRect() const
{
    const qint64 margin = qint64(headLength()) + penWidth / 2;
    return geometry::framed(pointsArea(), margin, 2 * margin);
}

QRect ArrowElement::paintedRect() const
{
    // An arrow without a head may be a point, and uniting that with nothing would lose it.
    const QPolygonF triangle(head());
    const QRectF area = triangle.isEmpty() ? pointsArea() : pointsArea() | triangle.boundingRect();
    return geometry::enclosingRect(area, penReach());
}

double ArrowElement::headLength() const
{
    return std::max(2.0 * penWidth, kSmallestHeadPx);
}

QPolygon ArrowElement::head() const
{
    const QPointF tip(end);
    const QPointF shaft = tip - QPointF(start);
    const double length = std::sqrt(geometry::squaredLength(shaft));
    if (length < 1.0)
        return {};
    const QPointF unit = shaft / length;
    const QPointF base = tip - headLength() * unit;
    const double halfWidth = headLength() * 0.5;
    const auto corner = [&](double side) {
        return QPoint(geometry::truncated(base.x() - side * unit.y()),
            geometry::truncated(base.y() + side * unit.x()));
    };
    return QPolygon({ end, corner(halfWidth), corner(-halfWidth) });
}
