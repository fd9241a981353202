#pragma once

#include "elements/drawingelement.h"

/// What circle, text and numbered circle share: one anchor point that moves and rotates.
class AnchoredElement : public DrawingElement
{
public:
    void move(const QPoint &offset) override;
    void scale(double factor, const QPoint &center) override;
    void rotate(double angle, const QPoint &center) override;
    void scaleAxes(double factorX, double factorY, const QPoint &center) override;

protected:
    AnchoredElement(qint32 kind, const QColor &penColor, int width, double penOpacity);
    /// The point that the transforms act on.
    virtual QPoint &anchor() = 0;
    /// Multiplies the element's own length, if it has one; truncates toward zero.
    virtual void scaleLength(double factor);
};
