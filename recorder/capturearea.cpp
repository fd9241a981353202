#include "recorder/capturearea.h"

QRect encodableArea(const QRect &wanted, const QRect &screen)
{
    QRect area = wanted & screen;
    area.setSize(QSize(area.width() & ~1, area.height() & ~1));
    return area.isEmpty() ? QRect() : area;
}
