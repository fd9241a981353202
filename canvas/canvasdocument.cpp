#include "canvas/canvasdocument.h"

#include "canvas/canvasevents.h"

void CanvasDocument::addElement(ElementPtr element)
{
    const QRect area = element->paintedRect();
    history.push({ HistoryEntry::Add, element->id });
    elements.append(std::move(element));
    history.clearRedo();
    reportBothStacks();
    events.contentChanged(area);
}

void CanvasDocument::removeElement(int index)
{
    ElementPtr element = elements.take(index);
    const QString id = element->id;
    history.push({ HistoryEntry::Delete, id, std::move(element) });
    history.trim();
}

void CanvasDocument::reportBothStacks()
{
    events.undoStackChanged();
    events.redoStackChanged();
}

void CanvasDocument::setElementOpacity(DrawingElement &element, double opacity)
{
    element.opacity = opacity;
    events.contentChanged(element.paintedRect());
}
