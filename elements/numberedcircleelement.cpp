#include "elements/numberedcircleelement.h"

#include "elements/geometry.h"
#include "elements/textlayout.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{
constexpr int kRadiusPx = 12;
constexpr int kDiameterPx = 2 * kRadiusPx + 1;
constexpr int kNumberPointSize = 12;

QFont numberFont()
{
    QFont font = elementFont(kNumberPointSize);
    font.setBold(true);
    return font;
}

/// A size that no digit or sign exceeds, asked of the font once: it never changes.
QSizeF largestDigit()
{
    static const QSizeF size = [] {
        const QFontMetrics metrics(numberFont());
        int width = 0;
        for (const QChar digit : QStringLiteral("0123456789-"))
            width = std::max(width, metrics.horizontalAdvance(digit));
        return QSizeF(width, metrics.height());
    }();
    return size;
}
} // namespace

NumberedCircleElement::NumberedCircleElement(const QPoint &centerPoint, int shownNumber,
    const QColor &penColor, int width, double penOpacity)
    : AnchoredElement(NumberedCircle, penColor, width, penOpacity), center(centerPoint),
      number(shownNumber)
{
}

void NumberedCircleElement::paint(QPainter *painter) const
{
    setUpPen(painter);
    painter->setBrush(QColor(Qt::transparent));
    painter->drawEllipse(outline());
    painter->setFont(numberFont());
    // A number of many digits stays legible when it may run across the ring.
    if (isWithinTextRange(outline().topLeft()))
        painter->drawText(outline(), Qt::AlignCenter | Qt::TextDontClip, QString::number(number));
}

bool NumberedCircleElement::contains(const QPoint &point, int tolerance) const
{
    const double reach = double(tolerance) + kRadiusPx;
    return std::sqrt(geometry::squaredLength(QPointF(point) - QPointF(center))) <= reach;
}

QRect NumberedCircleElement::boundingRect() const
{
    const qint64 reach = kRadiusPx + penWidth / 2;
    const qint64 side = qint64(kDiameterPx) + penWidth;
    return geometry::saturatedRect(center.x() - reach, center.y() - reach, side, side);
}

QRect NumberedCircleElement::paintedRect() const
{
    const QSizeF digit = largestDigit();
    QRectF label(0, 0, digit.width() * double(QString::number(number).size()), digit.height());
    label.moveCenter(outline().center());
    return geometry::enclosingRect(outline() | label, penReach());
}

QRectF NumberedCircleElement::outline() const
{
    return { QPointF(center) - QPointF(kRadiusPx, kRadiusPx), QSizeF(kDiameterPx, kDiameterPx) };
}
