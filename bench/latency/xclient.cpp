#include "bench/latency/xclient.h"

#include "platform/xcbptr.h"

#include <stdexcept>

XClient::XClient() : m_connection(xcb_connect(nullptr, nullptr), xcb_disconnect)
{
    expectAlive();
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(connection())).data;
}

void XClient::expectAlive() const
{
    if (xcb_connection_has_error(connection()) != 0)
        throw std::runtime_error("no connection to the X server");
}

void XClient::sync() const
{
    const XcbPtr<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
    expectAlive();
}
