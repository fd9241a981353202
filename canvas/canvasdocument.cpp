#include "canvas/canvasdocument.h"

#include "canvas/canvasevents.h"

void CanvasDocument::addElement(ElementPtr element)
{
    const QRect area = element->paintedRect();
    history.push({ HistoryEntry::Add, element->id });
    const int index = elements.size();
    elements.append(std::move(element));
    history.clearRedo();
    reportBothStacks();
    events.contentChanged(area, index);
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

void CanvasDocument::setElementOpacity(int index, double opacity)
{
    DrawingElement &element = *elements.at(index);
    element.opacity = opacity;
    events.contentChanged(element.paintedRect(), index);
}

void CanvasDocument::reportReshaped(const DrawingElement &element, const QRect &area)
{
    events.contentChanged(area, elements.placeOf(element));
}

void CanvasDocument::reportUnchanged()
{
    events.contentChanged(QRect(), elements.size());
}
