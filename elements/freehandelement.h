#pragma once

#include "elements/drawingelement.h"

#include <QList>
#include <QPainterPath>

/// A pen stroke: the points that the pointer passed through, drawn as one smoothed curve.
/// With `isEraser` set it clears what lies under it instead.
class FreehandElement : public DrawingElement
{
public:
    FreehandElement(const QColor &penColor, int width, double penOpacity);

    void paint(QPainter *painter) const override;
    bool contains(const QPoint &point, int tolerance) const override;
    void move(const QPoint &offset) override;
    void scale(double factor, const QPoint &center) override;
    void rotate(double angle, const QPoint &center) override;
    QRect boundingRect() const override;
    void scaleAxes(double factorX, double factorY, const QPoint &center) override;
    QRect paintedRect() const override;
    /// Takes these points, rebuilds the curve and answers every pixel that may have changed. While
    /// a stroke grows that is only its end, however long it has become.
    QRect replacePoints(const QList<QPoint> &replacement);
    /// Builds the curve anew from the points.
    void rebuildPath();

    QList<QPoint> points;
    /// The smoothed curve; empty means that it has not been built yet. Whoever changes `points`
    /// either rebuilds it or sets it to an empty path.
    mutable QPainterPath path;

private:
    /// The rectangle around the points from this index on; there must be one.
    QRectF pointsArea(qsizetype first = 0) const;
    /// What changed since the stroke ended before this point.
    QRect paintedRectFrom(qsizetype firstNewPoint) const;
    void drawPath(QPainter *painter) const;
    /// The path without what the painter's clip hides.
    QPainterPath visiblePath(const QPainter &painter) const;
    /// Replaces every point and rebuilds the path.
    template <typename Transform> void transformPoints(Transform transform);
};
