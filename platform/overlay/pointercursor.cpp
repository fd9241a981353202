#include "platform/overlay/pointercursor.h"

#include "platform/overlay/cursorscale.h"

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QQuickWindow>

void PointerCursor::setTarget(QQuickItem *target)
{
    if (target == m_target)
        return;
    if (m_target) {
        m_target->unsetCursor();
        m_target->disconnect(this);
    }
    m_target = target;
    if (m_target)
        connect(m_target, &QQuickItem::windowChanged, this, &PointerCursor::apply);
    apply();
    emit changed();
}

void PointerCursor::apply()
{
    if (m_target)
        m_target->setCursor(m_picture.isEmpty() ? QCursor(m_shape) : pictureCursor());
}

QCursor PointerCursor::pictureCursor() const
{
    const QQuickWindow *window = m_target->window();
    const qreal ratio = window ? window->effectiveDevicePixelRatio() : 1.0;
    const QString path = m_picture.scheme() == QLatin1String("qrc") ? u':' + m_picture.path()
                                                                    : m_picture.toLocalFile();
    const QPixmap pixmap = QIcon(path).pixmap(QSize(m_size, m_size), ratio);
    if (pixmap.isNull())
        return QCursor(Qt::CrossCursor);
    const QPointF hotSpot = QPointF(m_size, m_size) / 2 - m_offset;
    const qreal scale = cursorHotSpotScale(ratio);
    return QCursor(pixmap, qRound(hotSpot.x() * scale), qRound(hotSpot.y() * scale));
}
