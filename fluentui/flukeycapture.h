#pragma once

#include "platform/globalhotkeys.h"

#include <QQuickItem>
#include <QStringList>

#include <optional>

/// Takes every key combination while it has the active focus, those of hot keys included: these
/// rest meanwhile, so that pressing one captures it instead of firing it.
class FluKeyCapture : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QQuickItem::QQuickItem;

Q_SIGNALS:
    /// Names of the pressed keys in the order Alt, Ctrl, Shift, key; joined by "+" they are a
    /// sequence for FluHotkey. Not sent for modifiers alone and for keys that cannot be chosen.
    void captured(const QStringList &keys);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    std::optional<GlobalHotKeySuspension> m_suspension;
};
