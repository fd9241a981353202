#include "elements/strokepath.h"

#include <algorithm>
#include <array>

namespace
{
/// The first segments stay straight; curves begin with the segment that ends at this point.
constexpr qsizetype kFirstCurvedPoint = 3;

using Element = QPainterPath::Element;

/// Whether the rectangle around the segment's start and the elements that make it meets `area`.
bool comesInto(const QRectF &area, const Element &start, const Element *elements, int count)
{
    double left = start.x;
    double right = start.x;
    double top = start.y;
    double bottom = start.y;
    for (const Element *element = elements; element < elements + count; ++element) {
        left = std::min(left, element->x);
        right = std::max(right, element->x);
        top = std::min(top, element->y);
        bottom = std::max(bottom, element->y);
    }
    return left <= area.right() && right >= area.left() && top <= area.bottom()
        && bottom >= area.top();
}
} // namespace

QPainterPath smoothedPath(const QList<QPoint> &points)
{
    QPainterPath path;
    if (points.isEmpty())
        return path;
    path.moveTo(points.first());
    for (qsizetype i = 1; i < points.size(); ++i) {
        const QPointF current(points.at(i));
        const QPointF previous(points.at(i - 1));
        if (i < kFirstCurvedPoint)
            path.lineTo(current);
        else
            path.quadTo(previous, (previous + current) * 0.5);
    }
    return path;
}

QPainterPath segmentsNear(const QPainterPath &path, const QRectF &area)
{
    const int count = path.elementCount();
    // Leaving segments out of a closed path would put two caps where it has a join.
    if (count == 0 || QPointF(path.elementAt(0)) == path.currentPosition())
        return path;

    QPainterPath nearby;
    bool connected = false;
    for (int i = 1; i < count;) {
        std::array<Element, 3> segment{ path.elementAt(i) };
        int length = 1;
        if (segment[0].isCurveTo()) {
            length = 3;
            segment[1] = path.elementAt(i + 1);
            segment[2] = path.elementAt(i + 2);
        }
        const Element start = path.elementAt(i - 1);
        const bool wanted =
            !segment[0].isMoveTo() && comesInto(area, start, segment.data(), length);
        if (wanted) {
            if (!connected)
                nearby.moveTo(start);
            if (length == 1)
                nearby.lineTo(segment[0]);
            else
                nearby.cubicTo(segment[0], segment[1], segment[2]);
        }
        connected = wanted;
        i += length;
    }
    return nearby;
}
