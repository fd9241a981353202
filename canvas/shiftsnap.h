#pragma once

#include <QPoint>

/// Where the pointer goes while Shift constrains a shape. Canvas coordinates.
namespace ShiftSnap
{

/// The point at the pointer's distance from `start` on the nearest of the eight directions.
[[nodiscard]] QPoint toEighthTurn(const QPoint &start, const QPoint &pos);

/// The far corner of the square that spans the larger of the two sides.
[[nodiscard]] QPoint toSquare(const QPoint &start, const QPoint &pos);

} // namespace ShiftSnap
