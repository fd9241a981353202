#include "canvas/numberstamp.h"

#include "canvas/canvasdocument.h"
#include "canvas/logtexts.h"
#include "elements/numberedcircleelement.h"

#include <QDebug>

void NumberStamp::stampAt(const QPoint &center)
{
    ++m_lastNumber;
    const PenState &pen = m_document.pen;
    auto circle = std::make_unique<NumberedCircleElement>(
        center, m_lastNumber, pen.color, pen.size, pen.opacity);
    const QString id = circle->id;
    m_document.addElement(std::move(circle));
    qDebug() << CanvasLog::kNumberAdded << id;
}

void NumberStamp::stepBack()
{
    if (m_lastNumber > 0)
        --m_lastNumber;
}

void NumberStamp::stepForward()
{
    ++m_lastNumber;
}
