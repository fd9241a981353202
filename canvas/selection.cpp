#include "canvas/selection.h"

#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/logtexts.h"
#include "elements/cloneelement.h"

#include <QDebug>

#include <cmath>

namespace
{

/// No number and infinity are refused like what is not above zero.
bool isUsable(double factor)
{
    return std::isfinite(factor) && factor > 0;
}

} // namespace

DrawingElement *Selection::element() const
{
    if (DrawingElement *element = m_element.get())
        return element;
    if (m_elementId.isEmpty())
        return nullptr;
    m_element = ElementRef(m_document.elements.find(m_elementId));
    return m_element.get();
}

DrawingElement *Selection::elementToTransform() const
{
    DrawingElement *selected = element();
    if (!selected)
        qDebug() << CanvasLog::kNothingSelected;
    return selected;
}

void Selection::select(DrawingElement *element)
{
    m_element = ElementRef(element);
    m_elementId = element ? element->id : QString();
    m_document.events.selectionChanged();
    m_document.reportUnchanged();
}

bool Selection::selectAt(const QPoint &pos)
{
    const int index = m_document.elements.topmostAt(pos, kTolerance);
    if (index == ElementList::kNotFound)
        return false;
    DrawingElement *hit = m_document.elements.at(index);
    qDebug() << CanvasLog::kSelected << hit->id << ":" << hit->type;
    select(hit);
    return true;
}

bool Selection::selectById(const QString &elementId)
{
    qDebug() << CanvasLog::kSelectById << elementId << CanvasLog::kElementCount
             << m_document.elements.size();
    DrawingElement *found = m_document.elements.find(elementId);
    if (!found) {
        qDebug() << CanvasLog::kIdNotFound << elementId;
        return false;
    }
    qDebug() << CanvasLog::kSelectedById << found->id << CanvasLog::kElementKind << found->type;
    select(found);
    return true;
}

bool Selection::selectLast()
{
    if (m_document.elements.isEmpty()) {
        qDebug() << CanvasLog::kNothingToSelect;
        return false;
    }
    DrawingElement *last = m_document.elements.last();
    qDebug() << CanvasLog::kSelectedLast << last->id;
    select(last);
    return true;
}

void Selection::clear()
{
    qDebug() << CanvasLog::kSelectionCleared;
    select(nullptr);
}

QRectF Selection::boundingRect() const
{
    const DrawingElement *selected = element();
    return selected ? QRectF(selected->boundingRect()) : QRectF();
}

template <typename Change> void Selection::transform(DrawingElement &element, Change change)
{
    ElementPtr before = m_batchStart ? nullptr : copyOf(&element);
    Damage damage;
    damage.add(element);
    change(element);
    damage.add(element);
    const int place = m_document.elements.placeOf(element);
    if (before) {
        record(std::move(before), element);
        qDebug() << CanvasLog::kUndoNote;
    }
    m_document.events.contentChanged(damage, place);
}

void Selection::record(ElementPtr before, const DrawingElement &element)
{
    // A batch may end with another element selected than it began with: undo puts the state of
    // the one it began with back, and leaves the other alone.
    const QString id = before->id;
    m_document.history.push(
        { HistoryEntry::Transform, id, nullptr, std::move(before), copyOf(&element) });
    m_document.history.clearRedo(); // may destroy the element, when only the redo stack held it
    m_document.reportBothStacks();
}

void Selection::translate(int dx, int dy)
{
    DrawingElement *selected = elementToTransform();
    if (!selected)
        return;
    const QPoint offset(dx, dy);
    qDebug() << CanvasLog::kTranslated << CanvasLog::kOffset << offset;
    transform(*selected, [&](DrawingElement &element) { element.move(offset); });
}

void Selection::scale(double factor)
{
    DrawingElement *selected = elementToTransform();
    if (!selected)
        return;
    if (!isUsable(factor)) {
        qDebug() << CanvasLog::kBadFactor;
        return;
    }
    qDebug() << CanvasLog::kScaled << CanvasLog::kFactor << factor;
    transform(*selected,
        [=](DrawingElement &element) { element.scale(factor, element.boundingRect().center()); });
}

void Selection::scale(double factorX, double factorY)
{
    DrawingElement *selected = elementToTransform();
    if (!selected)
        return;
    if (!isUsable(factorX) || !isUsable(factorY)) {
        qDebug() << CanvasLog::kBadFactor;
        return;
    }
    qDebug() << CanvasLog::kScaled << CanvasLog::kFactorX << factorX << CanvasLog::kFactorY
             << factorY;
    transform(*selected, [=](DrawingElement &element) {
        element.scaleAxes(factorX, factorY, element.boundingRect().center());
    });
}

void Selection::rotate(double degrees)
{
    DrawingElement *selected = elementToTransform();
    if (!selected)
        return;
    if (!std::isfinite(degrees)) {
        qDebug() << CanvasLog::kBadAngle;
        return;
    }
    qDebug() << CanvasLog::kRotated;
    transform(*selected,
        [=](DrawingElement &element) { element.rotate(degrees, element.boundingRect().center()); });
}

void Selection::beginBatch()
{
    const DrawingElement *selected = element();
    if (!selected) {
        qDebug() << CanvasLog::kBatchNeedsSelection;
        return;
    }
    if (m_batchStart) {
        qDebug() << CanvasLog::kBatchRunning;
        return;
    }
    m_batchStart = copyOf(selected);
    qDebug() << CanvasLog::kBatchStarted << selected->id;
}

void Selection::endBatch()
{
    const DrawingElement *selected = element();
    if (!m_batchStart || !selected) {
        qDebug() << CanvasLog::kBatchMissing;
        return;
    }
    ElementPtr start = std::move(m_batchStart);
    const QString id = selected->id;
    if (start->boundingRect() == selected->boundingRect()) {
        qDebug() << CanvasLog::kBatchUnchanged << id;
        return;
    }
    record(std::move(start), *selected);
    qDebug() << CanvasLog::kBatchEnded << id;
}

void Selection::reset()
{
    m_element.reset();
    m_elementId.clear();
    m_batchStart.reset();
}
