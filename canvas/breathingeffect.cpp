#include "canvas/breathingeffect.h"

#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/logtexts.h"

#include <QDebug>

#include <cmath>

namespace
{

constexpr double kLowestOpacity = 0.05;
constexpr double kFaintOpacity = 0.5;
constexpr int kShortestPeriodMs = 100;
constexpr double kPi = 3.141592653589793;

} // namespace

BreathingEffect::BreathingEffect(CanvasDocument &document, QObject *parent)
    : QObject(parent), m_document(document)
{
    connect(&m_timer, &QTimer::timeout, this, &BreathingEffect::step);
}

void BreathingEffect::start(int periodMs)
{
    const ElementList &elements = m_document.elements;
    if (elements.isEmpty() || periodMs == 0) {
        stop();
        return;
    }
    if (periodMs < 0 && elements.size() == m_knownCount && isRunning())
        return;
    if (isRunning()) {
        restoreOpacity(m_chosenTarget);
        m_timer.stop();
    }
    m_knownCount = elements.size();
    m_chosenTarget = m_knownCount - 1;
    if (loneMarkMayBeFading()) {
        qDebug() << CanvasLog::kBreathRefused;
        m_document.events.breathingReported(false);
        return;
    }
    launch(periodMs);
}

void BreathingEffect::stop()
{
    m_timer.stop();
    m_knownCount = 0;
    m_chosenTarget = kNoTarget;
    m_document.events.breathingReported(false);
}

void BreathingEffect::launch(int periodMs)
{
    const int period = periodMs > kShortestPeriodMs ? periodMs : kDefaultPeriodMs;
    m_savedOpacity = m_document.elements.at(m_chosenTarget)->opacity;
    m_baseOpacity = m_savedOpacity > kFaintOpacity ? m_savedOpacity : 1.0;
    m_stepsPerPeriod = period / kIntervalMs;
    m_stepsDone = 0;
    m_pulseTarget = m_chosenTarget;
    m_timer.start(kIntervalMs);
    qDebug() << CanvasLog::kBreathStarted << period << CanvasLog::kBreathTarget << m_chosenTarget;
}

void BreathingEffect::step()
{
    if (loneMarkMayBeFading()) {
        if (m_pulseTarget == 0)
            restoreOpacity(m_pulseTarget);
        m_timer.stop();
        m_document.events.breathingReported(false);
        return;
    }
    if (m_document.elements.size() != m_knownCount)
        followNewest();
    if (m_document.elements.isValid(m_pulseTarget))
        pulse();
    else
        m_timer.stop();
}

void BreathingEffect::followNewest()
{
    restoreOpacity(m_pulseTarget);
    m_knownCount = m_document.elements.size();
    m_pulseTarget = m_knownCount - 1;
    if (m_document.elements.isValid(m_pulseTarget))
        m_savedOpacity = m_document.elements.at(m_pulseTarget)->opacity;
    qDebug() << CanvasLog::kBreathMoved << m_pulseTarget << CanvasLog::kBreathRestored
             << m_savedOpacity;
    m_stepsDone = 0;
}

void BreathingEffect::pulse()
{
    ++m_stepsDone;
    const double phase = static_cast<double>(m_stepsDone % m_stepsPerPeriod) / m_stepsPerPeriod;
    const double wave = (std::cos(2 * phase * kPi) + 1) * 0.5;
    const int target = m_pulseTarget;
    DrawingElement *element = m_document.elements.at(target);
    Damage damage;
    damage.add(*element);
    element->opacity = wave * (m_baseOpacity - kLowestOpacity) + kLowestOpacity;
    m_document.events.breathingReported(true);
    // A listener may have changed the board, and then the element may lie elsewhere in the list.
    const ElementList &elements = m_document.elements;
    const bool stays = elements.isValid(target) && elements.at(target) == element;
    m_document.events.contentChanged(damage, stays ? target : 0);
}

void BreathingEffect::restoreOpacity(int index)
{
    if (m_document.elements.isValid(index))
        m_document.setElementOpacity(index, m_savedOpacity);
}

bool BreathingEffect::loneMarkMayBeFading() const
{
    return m_document.elements.size() == 1 && m_document.history.canUndo();
}
