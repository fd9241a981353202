#include "elements/drawingelement.h"

#include "elements/geometry.h"

#include <QPainter>
#include <QPen>
#include <QUuid>

#include <algorithm>

namespace
{
/// From this opacity on a mark counts as opaque and keeps the alpha of its colour.
constexpr double kOpaqueFrom = 0.99;
/// Room for antialiasing and for the curves that stand in for round caps and joins.
constexpr double kAntialiasingPx = 2.0;
constexpr int kUnknownKindMarginPx = 16;
} // namespace

DrawingElement::DrawingElement(qint32 kind, const QColor &penColor, int width, double penOpacity)
    : id(QUuid::createUuid().toString()), type(kind), color(penColor), penWidth(width),
      opacity(penOpacity)
{
}

DrawingElement::~DrawingElement() = default;

void DrawingElement::scaleAxes(double factorX, double factorY, const QPoint &center)
{
    scale((factorX + factorY) * 0.5, center);
}

QRect DrawingElement::paintedRect() const
{
    return geometry::enclosingRect(
        QRectF(boundingRect()), std::max(penWidth, 0) + double(kUnknownKindMarginPx));
}

std::vector<QRect> DrawingElement::paintedPieces() const
{
    return { paintedRect() };
}

bool DrawingElement::paintsInto(const QRect &area) const
{
    return paintedRect().intersects(area);
}

std::optional<PlainShape> DrawingElement::plainShape(qreal) const
{
    return std::nullopt;
}

void DrawingElement::paintPlainShape(QPainter *, const QColor &) const
{
}

QColor DrawingElement::paintedColor() const
{
    QColor painted = color;
    if (opacity < kOpaqueFrom)
        painted.setAlphaF(static_cast<float>(std::max(opacity, 0.0)));
    return painted;
}

void DrawingElement::setUpPen(QPainter *painter) const
{
    setUpPen(painter, paintedColor());
}

void DrawingElement::setUpPen(QPainter *painter, const QColor &penColor) const
{
    painter->setPen(
        QPen(penColor, std::max(penWidth, 0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setRenderHint(QPainter::Antialiasing);
}

double DrawingElement::penReach() const
{
    return std::max(penWidth, 0) / 2.0 + kAntialiasingPx;
}
