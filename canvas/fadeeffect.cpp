#include "canvas/fadeeffect.h"

#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/logtexts.h"

#include <QDebug>

#include <algorithm>

namespace
{

constexpr double kLowestOpacity = 0.01;

} // namespace

FadeEffect::FadeEffect(CanvasDocument &document, QObject *parent)
    : QObject(parent), m_document(document), m_startOpacity(document.elements.at(kTarget)->opacity)
{
    qDebug() << CanvasLog::kFadeSteps << kSteps << CanvasLog::kFadeOpacity << m_startOpacity;
    connect(&m_timer, &QTimer::timeout, this, &FadeEffect::step);
    m_timer.start(kIntervalMs);
}

void FadeEffect::step()
{
    ++m_stepsDone;
    if (m_document.elements.isEmpty()) {
        finish();
        return;
    }
    const double progress = static_cast<double>(m_stepsDone) / kSteps;
    m_document.setElementOpacity(
        kTarget, std::max((1.0 - progress) * m_startOpacity, kLowestOpacity));
    if (m_stepsDone < kSteps)
        return;
    qDebug() << CanvasLog::kFadeDone;
    if (!m_document.elements.isEmpty()) // a listener may have emptied the board meanwhile
        removeTarget();
    finish();
}

void FadeEffect::removeTarget()
{
    Damage damage;
    damage.add(*m_document.elements.at(kTarget));
    m_document.removeElement(kTarget);
    m_document.reportBothStacks();
    m_document.events.contentChanged(damage, kTarget);
}

void FadeEffect::finish()
{
    m_timer.stop();
    deleteLater();
}
