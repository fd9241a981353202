#include "elements/strokepath.h"

#include <algorithm>
#include <array>

namespace
{
/// The first segments stay straight; curves begin with the segment that ends at this point.
constexpr qsizetype kFirstCurvedPoint = 3;

using Element = QPainterPath::Element;

/// Elements of a path that make a stretch: large enough to skip much at once, small enough to skip
/// most of a long stroke.
constexpr int kStretch = 48;

/// Unlike those of Qt, empty rectangles also meet others, and edges count.
bool meets(const QRectF &bounds, const QRectF &area)
{
    return bounds.left() <= area.right() && bounds.right() >= area.left()
        && bounds.top() <= area.bottom() && bounds.bottom() >= area.top();
}

void include(QRectF &bounds, const QPointF &point)
{
    bounds.setLeft(std::min(bounds.left(), point.x()));
    bounds.setRight(std::max(bounds.right(), point.x()));
    bounds.setTop(std::min(bounds.top(), point.y()));
    bounds.setBottom(std::max(bounds.bottom(), point.y()));
}

/// Whether the rectangle around the segment's start and the elements that make it meets `area`.
bool comesInto(const QRectF &area, const Element &start, const Element *elements, int count)
{
    QRectF bounds{ QPointF(start), QSizeF(0, 0) };
    for (const Element *element = elements; element < elements + count; ++element)
        include(bounds, *element);
    return meets(bounds, area);
}

/// Adds the segments from `first` to before `end` that come into `area`. `connected` tells whether
/// the segment before has been added; the answer, whether the last one has.
bool addNearby(QPainterPath &nearby, const QPainterPath &path, int first, int end,
    const QRectF &area, bool connected)
{
    for (int i = first; i < end;) {
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
    return connected;
}
} // namespace

QPainterPath smoothedPath(const QList<QPoint> &points)
{
    QPainterPath path;
    if (points.isEmpty())
        return path;
    path.moveTo(points.first());
    extendSmoothedPath(path, points, 1);
    return path;
}

void extendSmoothedPath(QPainterPath &path, const QList<QPoint> &points, qsizetype from)
{
    for (qsizetype i = from; i < points.size(); ++i) {
        const QPointF current(points.at(i));
        const QPointF previous(points.at(i - 1));
        if (i < kFirstCurvedPoint)
            path.lineTo(current);
        else
            path.quadTo(previous, (previous + current) * 0.5);
    }
}

void StretchIndex::extend(const QPainterPath &path)
{
    const int count = path.elementCount();
    int i = m_stretches.empty() ? 1 : m_stretches.back().end;
    while (i < count) {
        if (m_stretches.empty() || m_stretches.back().end - m_stretches.back().first >= kStretch)
            m_stretches.push_back({ i, i, QRectF(QPointF(path.elementAt(i - 1)), QSizeF(0, 0)) });
        Stretch &stretch = m_stretches.back();
        const int length = path.elementAt(i).isCurveTo() ? 3 : 1;
        for (const int end = i + length; i < end; ++i)
            include(stretch.bounds, path.elementAt(i));
        stretch.end = i;
    }
}

QPainterPath segmentsNear(const QPainterPath &path, const StretchIndex &index, const QRectF &area)
{
    const int count = path.elementCount();
    // Leaving segments out of a closed path would put two caps where it has a join.
    if (count == 0 || QPointF(path.elementAt(0)) == path.currentPosition())
        return path;

    QPainterPath nearby;
    bool connected = false;
    for (const StretchIndex::Stretch &stretch : index.stretches()) {
        connected = meets(stretch.bounds, area)
            && addNearby(nearby, path, stretch.first, stretch.end, area, connected);
    }
    return nearby;
}
