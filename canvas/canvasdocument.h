#pragma once

#include "canvas/damage.h"
#include "canvas/elementlist.h"
#include "canvas/history.h"

#include <QColor>
#include <QPoint>

class CanvasEvents;

/// The look that new elements take. Later changes do not touch elements already made.
struct PenState {
    QColor color = QColor(QStringLiteral("red"));
    int size = 5; ///< pixels
    double opacity = 1.0; ///< 0.0 to 1.0
};

/// What the canvas holds: the visible elements, their history and the pen. The collaborators work
/// on one document and report through its events; none of them knows the canvas item.
class CanvasDocument
{
public:
    explicit CanvasDocument(CanvasEvents &listener) : events(listener) { }
    Q_DISABLE_COPY_MOVE(CanvasDocument)

    /// Puts a new element on top, records the addition, empties the redo stack and reports all of
    /// it. Listeners may change the board at once: only an `ElementRef` still knows the element.
    void addElement(ElementPtr element);
    /// Takes the element at `index` out of the list and records its removal as a `Delete`, which
    /// limits the history. Does not touch the redo stack.
    void removeElement(int index);
    void reportBothStacks();
    /// Changes the opacity of the element at a valid index.
    void setElementOpacity(int index, double opacity);
    /// Reports that the element at a valid index looks different where it is.
    void reportElement(int index);
    /// Reports that this element, which may be gone from the list, looks different.
    void reportReshaped(const DrawingElement &element, const Damage &damage);
    /// Has the picture brought up to date, though no element looks different.
    void reportUnchanged();

    ElementList elements;
    History history;
    PenState pen;
    CanvasEvents &events;
};
