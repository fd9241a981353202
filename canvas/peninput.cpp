#include "canvas/peninput.h"

#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/eraser.h"
#include "canvas/logtexts.h"
#include "canvas/numberstamp.h"
#include "canvas/shiftsnap.h"
#include "elements/arrowelement.h"
#include "elements/circleelement.h"
#include "elements/freehandelement.h"
#include "elements/geometry.h"
#include "elements/lineelement.h"
#include "elements/rectangleelement.h"

#include <QDebug>

#include <cmath>

namespace
{

int distanceBetween(const QPoint &from, const QPoint &to)
{
    const double dx = static_cast<double>(to.x()) - from.x();
    const double dy = static_cast<double>(to.y()) - from.y();
    return geometry::truncated(std::sqrt(dx * dx + dy * dy));
}

} // namespace

PenInput::PenInput(CanvasDocument &document, Eraser &eraser, NumberStamp &numbers)
    : m_document(document), m_eraser(eraser), m_numbers(numbers)
{
}

void PenInput::begin(const QPoint &pos)
{
    m_startPos = pos;
    m_justBegun = true;
    m_strokePoints = { pos };
    m_current.reset();
    if (m_drawMode == DrawingElement::NumberedCircle)
        m_numbers.stampAt(pos);
}

void PenInput::move(const QPoint &pos, bool shiftPressed)
{
    if (m_drawMode == DrawingElement::NumberedCircle)
        return;
    if (m_justBegun)
        m_startPos = pos;
    const QPoint previous = m_strokePoints.isEmpty() ? pos : m_strokePoints.constLast();
    m_strokePoints.append(pos);
    if (m_erasing && m_drawMode == DrawingElement::Freehand) {
        eraseTo(previous, pos);
        return;
    }
    // Every move counts twice; the curve looks the same for it, and strokes keep their shape.
    if (m_drawMode == DrawingElement::Freehand)
        m_strokePoints.append(pos);
    drawTo(snapped(pos, shiftPressed));
}

void PenInput::eraseTo(const QPoint &previous, const QPoint &pos)
{
    if (m_justBegun) {
        m_justBegun = false;
        m_eraser.beginGroup();
    }
    m_eraser.erase(previous, pos);
}

void PenInput::drawTo(const QPoint &target)
{
    if (m_justBegun) {
        if (ElementPtr element = createElement(target)) {
            m_justBegun = false;
            m_current = ElementRef(element.get());
            m_document.addElement(std::move(element));
            return;
        }
    }
    reshape(target);
}

void PenInput::reshape(const QPoint &target)
{
    DrawingElement *current = m_current.get();
    if (!current) {
        m_document.reportUnchanged();
        return;
    }
    // The curve is rebuilt at once: what can be seen can be hit, painted or not.
    if (auto *stroke = dynamic_cast<FreehandElement *>(current)) {
        m_document.reportReshaped(*stroke, stroke->replacePoints(m_strokePoints));
        return;
    }
    Damage damage(current->paintedRect());
    if (auto *circle = dynamic_cast<CircleElement *>(current)) {
        circle->radius = distanceBetween(m_startPos, target);
    } else if (auto *shape = dynamic_cast<TwoPointElement *>(current)) {
        shape->end = target;
    }
    damage.add(current->paintedRect());
    m_document.reportReshaped(*current, damage);
}

ElementPtr PenInput::createElement(const QPoint &target) const
{
    const auto &[color, size, opacity] = m_document.pen;
    switch (m_drawMode) {
    case DrawingElement::Freehand: {
        auto stroke = std::make_unique<FreehandElement>(color, size, opacity);
        stroke->points = m_strokePoints;
        stroke->rebuildPath();
        return stroke;
    }
    case DrawingElement::Line:
        return std::make_unique<LineElement>(m_startPos, target, color, size, opacity);
    case DrawingElement::Circle:
        return std::make_unique<CircleElement>(
            m_startPos, distanceBetween(m_startPos, target), color, size, opacity);
    case DrawingElement::Rectangle:
        return std::make_unique<RectangleElement>(m_startPos, target, color, size, opacity);
    case DrawingElement::Arrow:
        return std::make_unique<ArrowElement>(m_startPos, target, color, size, opacity);
    default:
        return nullptr;
    }
}

QPoint PenInput::snapped(const QPoint &pos, bool shiftPressed) const
{
    if (shiftPressed && m_drawMode == DrawingElement::Line)
        return ShiftSnap::toEighthTurn(m_startPos, pos);
    if (shiftPressed && m_drawMode == DrawingElement::Rectangle)
        return ShiftSnap::toSquare(m_startPos, pos);
    return pos;
}

void PenInput::end(const QPoint &pos, bool shiftPressed)
{
    if (m_drawMode == DrawingElement::NumberedCircle)
        return;
    if (!m_strokePoints.isEmpty() && m_strokePoints.constLast() != pos)
        m_strokePoints.append(pos);
    reshape(snapped(pos, shiftPressed));
    const QString finishedId = m_current ? m_current->id : QString();
    m_current.reset();
    m_strokePoints.clear();
    if (!finishedId.isEmpty()) {
        qDebug() << CanvasLog::kElementAdded << finishedId;
        m_document.events.elementCompleted(finishedId);
    }
}

void PenInput::setDrawMode(int mode)
{
    abandonGesture();
    m_startPos = QPoint();
    m_drawMode = mode;
}

void PenInput::setErasing(bool erasing)
{
    abandonGesture();
    m_erasing = erasing;
}

void PenInput::abandonGesture()
{
    m_current.reset();
    m_strokePoints.clear();
    m_justBegun = true;
}
