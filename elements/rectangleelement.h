#pragma once

#include "elements/twopointelement.h"

/// The outline of an axis-aligned rectangle; start and end are opposite corners in any order.
class RectangleElement : public TwoPointElement
{
public:
    RectangleElement(const QPoint &startPoint, const QPoint &endPoint, const QColor &penColor,
        int width, double penOpacity);

    void paint(QPainter *painter) const override;
    bool contains(const QPoint &point, int tolerance) const override;
};
