#include "tests/canvas/common/referencepainter.h"

#include "canvas/elementlist.h"
#include "elements/cloneelement.h"

#include <QPainter>

QImage referencePicture(const ElementList &elements, const QSize &size, qreal devicePixelRatio)
{
    if (size.isEmpty())
        return {};
    QImage picture(size * devicePixelRatio, QImage::Format_ARGB32);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    for (const ElementPtr &element : elements) {
        QPainter painter(&picture); // a new one has nothing left over from the element before
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.setBrush(QBrush(Qt::transparent, Qt::SolidPattern));
        // Painting may fill an element's caches: a copy keeps the original as the canvas left it.
        copyOf(element.get())->paint(&painter);
    }
    return picture;
}
