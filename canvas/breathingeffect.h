#pragma once

#include <QObject>
#include <QTimer>

class CanvasDocument;

/// Makes the newest mark pulse between nearly transparent and its own opacity, and follows the
/// newest mark as more are drawn.
class BreathingEffect : public QObject
{
    Q_OBJECT

public:
    static constexpr int kIntervalMs = 40;
    static constexpr int kDefaultPeriodMs = 3000;

    explicit BreathingEffect(CanvasDocument &document, QObject *parent = nullptr);

    /// Starts or restarts the pulse with this period in milliseconds; 0 stops it, a negative one
    /// keeps a running pulse.
    void start(int periodMs);
    /// One tick; the timer calls it, and a test may.
    void step();
    [[nodiscard]] bool isRunning() const { return m_timer.isActive(); }

private:
    static constexpr int kNoTarget = -1;

    void stop();
    void launch(int periodMs);
    void followNewest();
    void pulse();
    void restoreOpacity(int index);
    /// A lone mark with history may be fading away: the two effects must not fight over it.
    [[nodiscard]] bool loneMarkMayBeFading() const;

    CanvasDocument &m_document;
    QTimer m_timer{ this };
    int m_knownCount = 0; ///< elements when the target was last chosen
    /// The target as `start` chose it. The running pulse moves only its own copy, and a restart
    /// restores the opacity of the mark that `start` had chosen.
    int m_chosenTarget = kNoTarget;
    int m_pulseTarget = kNoTarget;
    double m_savedOpacity = 0;
    double m_baseOpacity = 1.0;
    int m_stepsPerPeriod = 1;
    int m_stepsDone = 0;
};
