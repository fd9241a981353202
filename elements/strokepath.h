#pragma once

#include <QList>
#include <QPainterPath>
#include <QPoint>
#include <QRectF>

/// The curve of a pen stroke: straight through its first three points, then smoothed; it ends half
/// way between the last two.
[[nodiscard]] QPainterPath smoothedPath(const QList<QPoint> &points);

/// The segments of a path that may come into `area`, in their order; the others are left out.
/// Stroking a path takes far more time than its length tells, the more the stroke crosses itself.
/// Inside of `area`, the outcome is the same for both paths, provided that `area` has been grown by
/// half of the pen's width.
[[nodiscard]] QPainterPath segmentsNear(const QPainterPath &path, const QRectF &area);
