#include "platform/desktopnotice.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

void showDesktopNotice(const QString &title, const QString &text)
{
    QDBusMessage notify =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
            QStringLiteral("/org/freedesktop/Notifications"),
            QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    constexpr uint kReplacesNothing = 0;
    constexpr int kDesktopDecidesHowLong = -1;
    notify << title << kReplacesNothing << QString() << title << text << QStringList()
           << QVariantMap() << kDesktopDecidesHowLong;
    QDBusConnection::sessionBus().send(notify);
}
