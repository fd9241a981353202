#pragma once

#include "elements/drawingelement.h"

#include "elements/strokepath.h"

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
    std::vector<QRect> paintedPieces() const override;
    bool paintsInto(const QRect &area) const override;
    std::optional<PlainShape> plainShape(qreal devicePixelRatio) const override;
    void paintPlainShape(QPainter *painter, const QColor &fillColor) const override;
    /// Takes these points, rebuilds the curve and answers every pixel that may have changed. While
    /// a stroke grows, each list being the one before with more points at its end, that is only its
    /// end, and costs no more than its end does, however long it has become.
    QRect replacePoints(const QList<QPoint> &replacement);
    /// Builds the curve anew from the points.
    void rebuildPath();

    QList<QPoint> points;
    /// The smoothed curve; empty means that it has not been built yet. Whoever changes `points`
    /// either rebuilds it or sets it to an empty path.
    mutable QPainterPath path;

private:
    /// The rectangle around the points from this index on; there must be one.
    QRectF areaOfPoints(qsizetype first) const;
    /// The rectangle around all points; there must be one.
    QRectF pointsArea() const;
    /// Whether the points before were the first of these, and nobody has touched them since.
    bool isGrownTo(const QList<QPoint> &replacement) const;
    void grow(const QList<QPoint> &replacement);
    /// Brings what is derived from the path up to date with it.
    const StretchIndex &stretches() const;
    /// What changed since the stroke ended before this point.
    QRect paintedRectFrom(qsizetype firstNewPoint) const;
    void buildPath() const;
    void drawPath(QPainter *painter) const;
    /// Whether a piece of what the path paints is what a piece of the path paints there.
    bool isDivisible(const QTransform &transform) const;
    /// The path without what the painter's clip hides.
    QPainterPath visiblePath(const QPainter &painter) const;
    /// Replaces every point and rebuilds the path.
    template <typename Transform> void transformPoints(Transform transform);

    qsizetype m_growingCount = 0; ///< points at the last `replacePoints`; 0 when touched since
    // Derived from the path, for as long as it is not empty and has as many elements.
    mutable StretchIndex m_stretches;
    mutable int m_indexedElements = 0;
    mutable quint64 m_outline = 0; ///< this path's number; 0 when it has none yet
    mutable QRectF m_area;
    mutable qsizetype m_areaCount = 0; ///< points inside `m_area`
};
