#include "canvas/numberstamp.h"

#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/logtexts.h"
#include "elements/numberedcircleelement.h"

#include <QDebug>

void NumberStamp::stampAt(const QPoint &center)
{
    ++m_lastNumber;
    const PenState &pen = m_document.pen;
    const DrawingElement *circle = m_document.addElement(std::make_unique<NumberedCircleElement>(
        center, m_lastNumber, pen.color, pen.size, pen.opacity));
    m_document.events.contentChanged(circle->paintedRect());
    qDebug() << CanvasLog::kNumberAdded << circle->id;
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
