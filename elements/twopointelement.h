#pragma once

#include "elements/drawingelement.h"

#include <optional>

/// What line, rectangle and arrow share: two points that move, scale and rotate alike.
class TwoPointElement : public DrawingElement
{
public:
    void move(const QPoint &offset) override;
    void scale(double factor, const QPoint &center) override;
    void rotate(double angle, const QPoint &center) override;
    QRect boundingRect() const override;
    void scaleAxes(double factorX, double factorY, const QPoint &center) override;
    QRect paintedRect() const override;

    QPoint start;
    QPoint end;

protected:
    TwoPointElement(qint32 kind, const QPoint &startPoint, const QPoint &endPoint,
        const QColor &penColor, int width, double penOpacity);

    /// The rectangle between both points, in doubles so that it cannot overflow.
    QRectF pointsArea() const;
    /// Where the point falls on the way from start (0) to end (1), unclamped; nothing when the
    /// points are less than a pixel apart. The way is measured in whole pixels, so the answer runs
    /// slightly ahead of the exact one.
    std::optional<double> projection(const QPoint &point) const;
    /// Whether the point is within the pen width plus `tolerance` of the place at `share`.
    bool shaftContains(const QPoint &point, double share, int tolerance) const;
};
