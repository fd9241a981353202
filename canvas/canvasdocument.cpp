#include "canvas/canvasdocument.h"

#include "canvas/canvasevents.h"

void CanvasDocument::addElement(ElementPtr element)
{
    Damage damage;
    damage.add(*element);
    history.push({ HistoryEntry::Add, element->id });
    const int index = elements.size();
    elements.append(std::move(element));
    history.clearRedo();
    reportBothStacks();
    events.contentChanged(damage, index);
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
    reportElement(index);
}

void CanvasDocument::reportElement(int index)
{
    Damage damage;
    damage.add(*elements.at(index));
    events.contentChanged(damage, index);
}

void CanvasDocument::reportReshaped(const DrawingElement &element, const Damage &damage)
{
    events.contentChanged(damage, elements.placeOf(element));
}

void CanvasDocument::reportUnchanged()
{
    events.contentChanged(Damage(), elements.size());
}
