#pragma once

#include <QList>
#include <QPainterPath>
#include <QPoint>
#include <QRectF>

#include <vector>

/// The curve of a pen stroke: straight through its first three points, then smoothed; it ends half
/// way between the last two.
[[nodiscard]] QPainterPath smoothedPath(const QList<QPoint> &points);
/// Adds the points from index `from` on to the smoothed path of those before, which is not empty.
void extendSmoothedPath(QPainterPath &path, const QList<QPoint> &points, qsizetype from);

/// Where the segments of a path are, roughly: the rectangles around stretches of them. It grows
/// with a path at the cost of what is new.
class StretchIndex
{
public:
    struct Stretch {
        int first; ///< path element that begins its first segment
        int end; ///< path element after its last
        QRectF bounds; ///< of its segments, their starts and control points included
    };

    void clear() { m_stretches.clear(); }
    /// Takes in what the path has more than at the last call.
    void extend(const QPainterPath &path);
    [[nodiscard]] const std::vector<Stretch> &stretches() const { return m_stretches; }

private:
    std::vector<Stretch> m_stretches;
};

/// The segments of a path that may come into `area`, in their order; the others are left out.
/// Stroking a path takes far more time than its length tells, the more the stroke crosses itself.
/// Inside of `area`, the outcome is the same for both paths, provided that `area` has been grown by
/// half of the pen's width.
/// `index` is that of the path.
[[nodiscard]] QPainterPath segmentsNear(
    const QPainterPath &path, const StretchIndex &index, const QRectF &area);
