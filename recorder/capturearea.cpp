#include "recorder/capturearea.h"

QRect encodableArea(const QRect &wanted, const QRect &screen)
{
    if (wanted.isEmpty())
        return {};
    QRect area = wanted & screen;
    area.setSize(QSize(area.width() & ~1, area.height() & ~1));
    return area.isEmpty() ? QRect() : area;
}
