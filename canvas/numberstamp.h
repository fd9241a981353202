#pragma once

#include <QPoint>

class CanvasDocument;

/// Stamps circles that number themselves 1, 2, 3 and so on.
class NumberStamp
{
public:
    explicit NumberStamp(CanvasDocument &document) : m_document(document) { }

    /// Places the next number at `center` (canvas coordinates).
    void stampAt(const QPoint &center);
    /// The running number follows undo and redo while the tool is in use, whatever they change.
    void stepBack();
    void stepForward();
    void reset() { m_lastNumber = 0; }
    [[nodiscard]] int lastNumber() const { return m_lastNumber; }

private:
    CanvasDocument &m_document;
    int m_lastNumber = 0;
};
