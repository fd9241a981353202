#pragma once

#include "elements/arrowelement.h"
#include "elements/circleelement.h"
#include "elements/freehandelement.h"
#include "elements/lineelement.h"
#include "elements/numberedcircleelement.h"
#include "elements/rectangleelement.h"
#include "elements/textelement.h"

#include <QImage>
#include <QPainter>

#include <array>

/// One mark of every kind, for tests that hold for all of them.
namespace samples
{
inline constexpr std::array kAllKinds{ DrawingElement::Freehand, DrawingElement::Line,
    DrawingElement::Circle, DrawingElement::Rectangle, DrawingElement::Arrow, DrawingElement::Text,
    DrawingElement::NumberedCircle };

inline const char *nameOf(DrawingElement::Kind kind)
{
    constexpr std::array kNames{ "freehand", "line", "circle", "rectangle", "arrow", "text",
        "numberedcircle" };
    return kNames.at(kind);
}

struct Pen {
    QColor color = Qt::red;
    int width = 5;
    double opacity = 1.0;
};

inline ElementPtr freehand(const QList<QPoint> &points, const Pen &pen)
{
    auto stroke = std::make_unique<FreehandElement>(pen.color, pen.width, pen.opacity);
    stroke->points = points;
    return stroke;
}

/// A mark of about 56 by 40 pixels between two corners; a number sits in the middle.
inline ElementPtr make(DrawingElement::Kind kind, const QPoint &from, const QPoint &to,
    const Pen &pen, const QString &text = QStringLiteral("Ag 标\nfj"), int fontSize = 18)
{
    const QPoint middle((qint64(from.x()) + to.x()) / 2, (qint64(from.y()) + to.y()) / 2);
    const auto &[color, width, opacity] = pen;
    switch (kind) {
    case DrawingElement::Freehand:
        return freehand({ from, QPoint(middle.x(), from.y()), middle, QPoint(from.x(), to.y()),
                            QPoint(middle.x(), to.y()), QPoint(to.x(), middle.y()), to },
            pen);
    case DrawingElement::Line:
        return std::make_unique<LineElement>(from, to, color, width, opacity);
    case DrawingElement::Circle:
        return std::make_unique<CircleElement>(
            middle, to.y() / 2 - from.y() / 2, color, width, opacity);
    case DrawingElement::Rectangle:
        return std::make_unique<RectangleElement>(from, to, color, width, opacity);
    case DrawingElement::Arrow:
        return std::make_unique<ArrowElement>(from, to, color, width, opacity);
    case DrawingElement::Text:
        return std::make_unique<TextElement>(from, text, fontSize, color, width, opacity);
    case DrawingElement::NumberedCircle:
        return std::make_unique<NumberedCircleElement>(middle, 12, color, width, opacity);
    }
    return nullptr;
}

inline QImage blank(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

inline QImage painted(const DrawingElement &element, const QSize &size,
    const QPoint &origin = QPoint(), double magnification = 1.0)
{
    QImage image = blank(size * magnification);
    image.setDevicePixelRatio(magnification);
    QPainter painter(&image);
    painter.translate(-origin);
    element.paint(&painter);
    return image;
}
} // namespace samples
