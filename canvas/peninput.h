#pragma once

#include "elements/elementref.h"

#include <QList>
#include <QPoint>
#include <QRect>

class CanvasDocument;
class Eraser;
class NumberStamp;

/// Turns a press, its moves and the release into an element, or into erasing. All positions are
/// canvas coordinates in whole pixels.
class PenInput
{
public:
    PenInput(CanvasDocument &document, Eraser &eraser, NumberStamp &numbers);

    void begin(const QPoint &pos);
    void move(const QPoint &pos, bool shiftPressed);
    void end(const QPoint &pos, bool shiftPressed);

    [[nodiscard]] int drawMode() const { return m_drawMode; }
    [[nodiscard]] bool isErasing() const { return m_erasing; }
    /// A change of tool in the middle of a gesture: the element made so far stays, the gesture
    /// starts anew.
    void setDrawMode(int mode);
    void setErasing(bool erasing);
    /// Forgets the gesture in progress; a following move may start a new one.
    void abandonGesture();

private:
    void eraseTo(const QPoint &previous, const QPoint &pos);
    void drawTo(const QPoint &target);
    /// Gives the element in progress its geometry so far, and reports what changed.
    void reshape(const QPoint &target);
    /// Null for tools whose marks are placed, not dragged.
    [[nodiscard]] ElementPtr createElement(const QPoint &target) const;
    [[nodiscard]] QPoint snapped(const QPoint &pos, bool shiftPressed) const;

    CanvasDocument &m_document;
    Eraser &m_eraser;
    NumberStamp &m_numbers;

    QList<QPoint> m_strokePoints;
    QPoint m_startPos;
    ElementRef m_current;
    int m_drawMode = 0;
    bool m_erasing = false;
    /// No move has been handled since the press: the next one may create an element or open a
    /// new group of erased elements.
    bool m_justBegun = false;
};
