#include "elements/lineelement.h"

#include <QPainter>

LineElement::LineElement(const QPoint &startPoint, const QPoint &endPoint, const QColor &penColor,
    int width, double penOpacity)
    : TwoPointElement(Line, startPoint, endPoint, penColor, width, penOpacity)
{
}

void LineElement::paint(QPainter *painter) const
{
    setUpPen(painter);
    painter->drawLine(start, end);
}

bool LineElement::contains(const QPoint &point, int tolerance) const
{
    const std::optional<double> share = projection(point);
    return share && shaftContains(point, *share, tolerance);
}
