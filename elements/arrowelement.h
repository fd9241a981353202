#pragma once

#include "elements/twopointelement.h"

#include <QPolygon>

/// A shaft from start (tail) to end (tip) with a filled triangular head at the tip.
class ArrowElement : public TwoPointElement
{
public:
    ArrowElement(const QPoint &startPoint, const QPoint &endPoint, const QColor &penColor,
        int width, double penOpacity);

    void paint(QPainter *painter) const override;
    bool contains(const QPoint &point, int tolerance) const override;
    QRect boundingRect() const override;
    QRect paintedRect() const override;

private:
    double headLength() const;
    /// Tip and two base corners, in whole pixels; empty when the arrow is shorter than a pixel.
    QPolygon head() const;
};
