#pragma once

#include "canvas/mypainter.h"
#include "elements/drawingelement.h"

#include <QStringList>
#include <QTimer>

/// A canvas without a window, and shorthand for what people do on it.
class TestCanvas : public MyPainter
{
public:
    explicit TestCanvas(const QSizeF &size = QSizeF(200, 150)) { setSize(size); }

    [[nodiscard]] const ElementList &elements() const { return document().elements; }
    [[nodiscard]] const History &history() const { return document().history; }

    /// Presses at the first point, moves through all of them and releases at the last one.
    /// Returns the topmost element.
    DrawingElement *drag(int mode, const QList<QPoint> &points, bool shift = false)
    {
        setDrawMode(mode);
        stroke(points, shift);
        return elements().isEmpty() ? nullptr : elements().last();
    }
    /// The same with the tool in hand.
    void stroke(const QList<QPoint> &points, bool shift = false)
    {
        beginPaint(points.first());
        for (const QPoint &point : points)
            movePaint(point, shift);
        endPaint(points.last(), shift);
    }
    DrawingElement *line(const QPoint &from, const QPoint &to)
    {
        return drag(LineMode, { from, to });
    }
    /// The topmost element, which must be of this class.
    template <typename Element> [[nodiscard]] Element *top() const
    {
        return dynamic_cast<Element *>(elements().last());
    }

    [[nodiscard]] QStringList ids() const
    {
        QStringList ids;
        for (const ElementPtr &element : elements())
            ids.append(element->id);
        return ids;
    }
    /// The kinds of a stack's entries, one letter each, the top of the stack last: `A`dd,
    /// `D`elete, `E`rase, `G`roup of erasures, `M`odify, `T`ransform.
    [[nodiscard]] static QString kinds(const std::vector<HistoryEntry> &stack)
    {
        QString kinds;
        for (const HistoryEntry &entry : stack)
            kinds.append(QStringLiteral("ADEGMT").at(entry.kind));
        return kinds;
    }
    [[nodiscard]] QString undoKinds() const { return kinds(history().undoEntries()); }
    [[nodiscard]] QString redoKinds() const { return kinds(history().redoEntries()); }

    /// The timers that run.
    [[nodiscard]] QList<QTimer *> runningTimers() const
    {
        QList<QTimer *> timers = findChildren<QTimer *>();
        timers.removeIf([](const QTimer *timer) { return !timer->isActive(); });
        return timers;
    }
    /// Lets every effect that runs take so many steps.
    void tick(int times = 1) const
    {
        for (int i = 0; i < times; ++i) {
            for (QTimer *timer : runningTimers())
                QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
        }
    }
};
