#include "fluentui/flukeycapture.h"

#include "fluentui/shortcutkeys.h"

#include <QKeyEvent>

bool FluKeyCapture::event(QEvent *event)
{
    // Keeps shortcuts of the program from acting on what is being captured.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QQuickItem::event(event);
}

void FluKeyCapture::keyPressEvent(QKeyEvent *event)
{
    const QStringList keys = shortcutKeyNames(Qt::Key(event->key()), event->modifiers());
    if (keys.isEmpty() || event->isAutoRepeat()) {
        event->ignore();
        return;
    }
    Q_EMIT captured(keys);
}

void FluKeyCapture::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemActiveFocusHasChanged) {
        if (data.boolValue)
            m_suspension.emplace();
        else
            m_suspension.reset();
    }
    QQuickItem::itemChange(change, data);
}
