#pragma once

#include <QPoint>
#include <QRect>

/// Whole-pixel geometry whose every result is defined: sums and products are taken in 64 bits or in
/// doubles and saturate at the limits of `int`. A factor or an angle that is not a finite number
/// leaves what it is applied to as it was.
namespace geometry
{
[[nodiscard]] int saturated(qint64 value);
/// Rounds halves away from zero; NaN gives 0.
[[nodiscard]] int rounded(double value);
/// Cuts the fraction off, toward zero; NaN gives 0.
[[nodiscard]] int truncated(double value);

[[nodiscard]] QPoint translated(const QPoint &point, const QPoint &offset);
[[nodiscard]] QPoint scaled(
    const QPoint &point, double factorX, double factorY, const QPoint &center);
/// Clockwise on screen, in degrees.
[[nodiscard]] QPoint rotated(const QPoint &point, double angle, const QPoint &center);
/// Multiplies a radius or a font size; the fraction is cut off.
[[nodiscard]] int scaledLength(int length, double factor);

/// The rectangle with these edges and sizes. One that is wider or higher than `int` can tell loses
/// as much on either side, so that its size and its centre can still be computed.
[[nodiscard]] QRect saturatedRect(qint64 left, qint64 top, qint64 width, qint64 height);
/// A rectangle of whole pixels moved up and left by `before` and made larger by `extra`.
[[nodiscard]] QRect framed(const QRectF &area, qint64 before, qint64 extra);
/// The rectangle with `margin` more on every side.
[[nodiscard]] QRect grown(const QRect &rect, int margin);
/// The smallest whole-pixel rectangle around `area` grown by `margin` on every side, as far as
/// canvases reach: edges far outside are moved nearer.
[[nodiscard]] QRect enclosingRect(const QRectF &area, double margin);

[[nodiscard]] double squaredLength(const QPointF &vector);
[[nodiscard]] double squaredDistanceToSegment(
    const QPointF &point, const QPointF &from, const QPointF &to);
} // namespace geometry
