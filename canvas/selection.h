#pragma once

#include "elements/elementref.h"

#include <QPoint>
#include <QRectF>
#include <QString>

class CanvasDocument;

/// At most one selected element, and the transforms that act on it. A drag is wrapped in a batch,
/// so that its many small transforms become one history entry.
class Selection
{
public:
    /// How far from an outline a press still selects, in pixels.
    static constexpr int kTolerance = 10;

    explicit Selection(CanvasDocument &document) : m_document(document) { }

    bool selectAt(const QPoint &pos);
    bool selectById(const QString &elementId);
    bool selectLast();
    void clear();
    [[nodiscard]] bool hasElement() const { return element() != nullptr; }
    /// The selected element's bounds in canvas coordinates; null without a selection.
    [[nodiscard]] QRectF boundingRect() const;

    void translate(int dx, int dy);
    void scale(double factor);
    void scale(double factorX, double factorY);
    /// Degrees, clockwise on screen.
    void rotate(double degrees);
    void beginBatch();
    void endBatch();

    /// Forgets selection and batch without a word; for a canvas that is emptied.
    void reset();

private:
    /// The selected element, or null. When undo or redo has replaced the object, the one with the
    /// same id takes its place.
    [[nodiscard]] DrawingElement *element() const;
    /// The same, saying so on the log when there is none.
    [[nodiscard]] DrawingElement *elementToTransform() const;
    void select(DrawingElement *element);
    template <typename Change> void transform(DrawingElement &element, Change change);
    void record(ElementPtr before, const DrawingElement &element);

    CanvasDocument &m_document;
    mutable ElementRef m_element;
    QString m_elementId;
    ElementPtr m_batchStart; ///< while a batch runs: what was selected, as it was then
};
