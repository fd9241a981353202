#pragma once

#include "elements/anchoredelement.h"

/// A small circle of fixed size with a number in it.
class NumberedCircleElement : public AnchoredElement
{
public:
    NumberedCircleElement(const QPoint &centerPoint, int shownNumber, const QColor &penColor,
        int width, double penOpacity);

    void paint(QPainter *painter) const override;
    bool contains(const QPoint &point, int tolerance) const override;
    QRect boundingRect() const override;
    QRect paintedRect() const override;

    QPoint center;
    int number;

protected:
    QPoint &anchor() override { return center; }

private:
    /// The square that the ring fills.
    QRectF outline() const;
};
