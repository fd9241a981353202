#include "elements/anchoredelement.h"

#include "elements/geometry.h"

AnchoredElement::AnchoredElement(qint32 kind, const QColor &penColor, int width, double penOpacity)
    : DrawingElement(kind, penColor, width, penOpacity)
{
}

void AnchoredElement::move(const QPoint &offset)
{
    anchor() = geometry::translated(anchor(), offset);
}

void AnchoredElement::scale(double factor, const QPoint &center)
{
    AnchoredElement::scaleAxes(factor, factor, center);
}

void AnchoredElement::rotate(double angle, const QPoint &center)
{
    anchor() = geometry::rotated(anchor(), angle, center);
}

void AnchoredElement::scaleAxes(double factorX, double factorY, const QPoint &center)
{
    anchor() = geometry::scaled(anchor(), factorX, factorY, center);
    scaleLength((factorX + factorY) * 0.5);
}

void AnchoredElement::scaleLength(double)
{
}
