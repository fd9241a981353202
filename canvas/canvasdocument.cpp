#include "canvas/canvasdocument.h"

#include "canvas/canvasevents.h"

DrawingElement *CanvasDocument::addElement(ElementPtr element)
{
    DrawingElement *added = elements.append(std::move(element));
    history.push({ HistoryEntry::Add, added->id });
    history.clearRedo();
    reportBothStacks();
    return added;
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
