#pragma once

#include "elements/twopointelement.h"

/// A straight line.
class LineElement : public TwoPointElement
{
public:
    LineElement(const QPoint &startPoint, const QPoint &endPoint, const QColor &penColor, int width,
        double penOpacity);

    void paint(QPainter *painter) const override;
    bool contains(const QPoint &point, int tolerance) const override;
};
