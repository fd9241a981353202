#include "platform/trayhost.h"

#include "platform/xcbptr.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QGuiApplication>

namespace
{

bool busHasTray()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected()
        && bus.interface()->isServiceRegistered(QStringLiteral("org.kde.StatusNotifierWatcher"));
}

/// Whoever shows icons on an X server owns this selection of the screen.
bool xServerHasTray()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) {
        return false;
    }
    xcb_connection_t *connection = x11->connection();
    constexpr QByteArrayView kSelection("_NET_SYSTEM_TRAY_S0");
    const XcbPtr<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, kSelection.size(), kSelection.data()), nullptr));
    if (!atom) {
        return false;
    }
    const XcbPtr<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace

bool trayHostIsPresent()
{
    return xServerHasTray() || busHasTray();
}
