#pragma once

#include <QPoint>

#include <vector>

class CanvasDocument;

/// Removes whole elements: everything that the eraser's path touches, or the topmost element
/// under a point.
class Eraser
{
public:
    explicit Eraser(CanvasDocument &document) : m_document(document) { }

    /// Opens a new group of erased elements: what a gesture erases is recorded above its marker.
    void beginGroup();
    /// Erases everything touched on the way from `previous` to `pos` (canvas coordinates), from
    /// the topmost element down.
    void erase(const QPoint &previous, const QPoint &pos);
    /// Removes the topmost element within `tolerance` pixels of `pos`; false when there is none.
    bool deleteAt(const QPoint &pos, int tolerance);

private:
    void eraseElement(int index);

    CanvasDocument &m_document;
};
