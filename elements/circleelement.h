#pragma once

#include "elements/anchoredelement.h"

/// The outline of a circle.
class CircleElement : public AnchoredElement
{
public:
    CircleElement(const QPoint &centerPoint, int circleRadius, const QColor &penColor, int width,
        double penOpacity);

    void paint(QPainter *painter) const override;
    bool contains(const QPoint &point, int tolerance) const override;
    QRect boundingRect() const override;
    QRect paintedRect() const override;

    QPoint center;
    int radius; ///< pixels

protected:
    QPoint &anchor() override { return center; }
    void scaleLength(double factor) override;

private:
    QRectF outline() const;
};
