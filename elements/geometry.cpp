#include "elements/geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr qint64 kIntMin = std::numeric_limits<int>::min();
constexpr qint64 kIntMax = std::numeric_limits<int>::max();

/// Expects a whole number or NaN.
int saturatedWhole(double value)
{
    if (std::isnan(value))
        return 0;
    return static_cast<int>(
        std::clamp(value, static_cast<double>(kIntMin), static_cast<double>(kIntMax)));
}

/// Expects a whole number.
qint64 wholeEdge(double edge)
{
    // Far outside any canvas, but small enough for 64-bit sums.
    constexpr double kLimit = 1e15;
    return static_cast<qint64>(std::clamp(edge, -kLimit, kLimit));
}

/// An edge far outside any canvas, brought near enough for the distance of two to fit an `int`.
int nearEdge(double edge)
{
    constexpr double kFar = 1 << 29;
    return static_cast<int>(std::clamp(edge, -kFar, kFar));
}

struct Span {
    int from;
    int to;
};

/// First and last pixel of a length, cut evenly where the length does not fit into an `int`.
Span saturatedSpan(qint64 from, qint64 length)
{
    const qint64 fitting = std::clamp(length, -kIntMax, kIntMax);
    const int first = geometry::saturated(from + (length - fitting) / 2);
    return { first, geometry::saturated(first + fitting - 1) };
}
} // namespace

namespace geometry
{
int saturated(qint64 value)
{
    return static_cast<int>(std::clamp(value, kIntMin, kIntMax));
}

int rounded(double value)
{
    return saturatedWhole(std::round(value));
}

int truncated(double value)
{
    return saturatedWhole(std::trunc(value));
}

QPoint translated(const QPoint &point, const QPoint &offset)
{
    return { saturated(qint64(point.x()) + offset.x()), saturated(qint64(point.y()) + offset.y()) };
}

QPoint scaled(const QPoint &point, double factorX, double factorY, const QPoint &center)
{
    if (!std::isfinite(factorX) || !std::isfinite(factorY))
        return point;
    const QPointF delta = QPointF(point) - QPointF(center);
    return { rounded(center.x() + delta.x() * factorX), rounded(center.y() + delta.y() * factorY) };
}

QPoint rotated(const QPoint &point, double angle, const QPoint &center)
{
    if (!std::isfinite(angle))
        return point;
    const double radians = angle * kRadiansPerDegree;
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    const QPointF delta = QPointF(point) - QPointF(center);
    return { rounded(delta.x() * cosine - delta.y() * sine + center.x()),
        rounded(delta.y() * cosine + delta.x() * sine + center.y()) };
}

int scaledLength(int length, double factor)
{
    return std::isfinite(factor) ? truncated(length * factor) : length;
}

QRect saturatedRect(qint64 left, qint64 top, qint64 width, qint64 height)
{
    const Span columns = saturatedSpan(left, width);
    const Span rows = saturatedSpan(top, height);
    return { QPoint(columns.from, rows.from), QPoint(columns.to, rows.to) };
}

QRect framed(const QRectF &area, qint64 before, qint64 extra)
{
    return saturatedRect(wholeEdge(area.left()) - before, wholeEdge(area.top()) - before,
        wholeEdge(area.width()) + extra, wholeEdge(area.height()) + extra);
}

QRect grown(const QRect &rect, int margin)
{
    return framed(QRectF(rect), margin, 2 * qint64(margin));
}

QRect enclosingRect(const QRectF &area, double margin)
{
    const QPoint topLeft(
        nearEdge(std::floor(area.left() - margin)), nearEdge(std::floor(area.top() - margin)));
    const QPoint end(
        nearEdge(std::ceil(area.right() + margin)), nearEdge(std::ceil(area.bottom() + margin)));
    return { topLeft, end - QPoint(1, 1) };
}

double squaredLength(const QPointF &vector)
{
    return QPointF::dotProduct(vector, vector);
}

double squaredDistanceToSegment(const QPointF &point, const QPointF &from, const QPointF &to)
{
    const QPointF along = to - from;
    const double length = squaredLength(along);
    if (length == 0.0)
        return squaredLength(point - from);
    const double share = std::clamp(QPointF::dotProduct(point - from, along) / length, 0.0, 1.0);
    return squaredLength(point - (from + share * along));
}
} // namespace geometry
