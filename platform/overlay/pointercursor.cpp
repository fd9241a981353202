#include "platform/overlay/pointercursor.h"

#include "platform/overlay/cursorscale.h"

#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QQuickWindow>

namespace
{
/// The smallest rendering of the picture with at least `side` pixels, or the largest there is.
QImage rendering(const QString &path, int side)
{
    QImage found(path);
    for (const char *suffix : { "@2x", "@3x" }) {
        QString larger = path;
        larger.insert(path.lastIndexOf(u'.'), QLatin1String(suffix));
        if (found.width() >= side || !QFile::exists(larger))
            break;
        found.load(larger);
    }
    return found;
}
} // namespace

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
    if (!m_target)
        return;
    const QQuickWindow *window = m_target->window();
    const QString path = m_picture.scheme() == QLatin1String("qrc") ? u':' + m_picture.path()
                                                                    : m_picture.toLocalFile();
    m_target->setCursor(m_picture.isEmpty()
            ? QCursor(m_shape)
            : pictureCursor(
                path, m_size, m_offset, window ? window->effectiveDevicePixelRatio() : 1.0));
}

QCursor PointerCursor::pictureCursor(const QString &path, int size, QPointF offset, qreal ratio)
{
    const int side = qRound(size * ratio);
    QImage picture = rendering(path, side);
    if (picture.isNull())
        return QCursor(Qt::CrossCursor);
    picture = picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    const QPointF hotSpot = (QPointF(picture.width(), picture.height()) / (2 * ratio) - offset)
        * cursorHotSpotScale(ratio);
    return QCursor(QPixmap::fromImage(picture), qRound(hotSpot.x()), qRound(hotSpot.y()));
}
