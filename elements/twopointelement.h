#pragma once

#include "elements/drawingelement.h"

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
};
