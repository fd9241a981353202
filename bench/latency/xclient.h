#pragma once

#include <xcb/xcb.h>

#include <memory>

/// A connection to the X server that DISPLAY names. Throws std::runtime_error without one.
class XClient
{
public:
    XClient();

    [[nodiscard]] xcb_connection_t *connection() const { return m_connection.get(); }
    [[nodiscard]] const xcb_screen_t &screen() const { return *m_screen; }

    /// Throws when the connection has broken.
    void expectAlive() const;
    /// Returns once the server has handled all that was sent.
    void sync() const;

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_connection;
    const xcb_screen_t *m_screen = nullptr; ///< owned by the connection
};
