#include "platform/overlay/x11connection.h"

#include <QGuiApplication>

namespace
{
constexpr quint32 kLongestProperty = 4096; // in 32-bit units; window lists are far shorter

/// The screen of the display string: the server's other screens are other desktops.
int screenNumberOfDisplay()
{
    char *host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) == 0)
        return 0;
    std::free(host); // NOLINT(*-no-malloc)
    return screen;
}
} // namespace

X11Connection X11Connection::current()
{
    X11Connection result;
    const auto *native =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!native || !native->connection())
        return result;
    result.m_connection = native->connection();
    result.m_screenNumber = screenNumberOfDisplay();
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(result.m_connection));
    for (int i = 0; i < result.m_screenNumber && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    result.m_root = screens.data->root;
    return result;
}

xcb_atom_t X11Connection::atom(QByteArrayView name) const
{
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.data());
    const XcbPtr<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QList<quint32> X11Connection::property(xcb_window_t window, xcb_atom_t name) const
{
    const auto cookie = xcb_get_property(
        m_connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestProperty);
    const XcbPtr<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *items = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return QList<quint32>(items, items + reply->value_len);
}

void X11Connection::setProperty(
    xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const QList<quint32> &items) const
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, name, type, 32,
        static_cast<uint32_t>(items.size()), items.constData());
}

void X11Connection::askWindowManager(
    xcb_window_t window, xcb_atom_t message, const std::array<quint32, 5> &data) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = message;
    std::copy(data.begin(), data.end(), event.data.data32);
    xcb_send_event(m_connection, 0, m_root,
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char *>(&event));
}
