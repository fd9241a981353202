#pragma once

#include <QObject>
#include <QTimer>

class CanvasDocument;

/// Fades the oldest mark away over one second and then removes it, in a way that undo can bring
/// it back. Every step addresses the mark that is the oldest at that moment. Deletes itself when
/// it ends; several may run at once.
class FadeEffect : public QObject
{
    Q_OBJECT

public:
    static constexpr int kIntervalMs = 50;
    static constexpr int kSteps = 20;

    /// Starts at once. The document must outlive the parent and hold at least one element.
    FadeEffect(CanvasDocument &document, QObject *parent);

    /// One tick; the timer calls it, and a test may.
    void step();

private:
    void removeTarget();
    void finish();

    static constexpr int kTarget = 0;

    CanvasDocument &m_document;
    QTimer m_timer{ this };
    double m_startOpacity;
    int m_stepsDone = 0;
};
