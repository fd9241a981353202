#pragma once

#include "platform/xcbptr.h"

#include <QByteArrayView>
#include <QList>

#include <array>

/// The connection to the X server that Qt opened, with the few requests that this program makes
/// itself. A light handle: copy it freely. Positions and sizes are native pixels.
class X11Connection
{
public:
    /// Invalid when the program does not run on X11.
    static X11Connection current();

    [[nodiscard]] bool isValid() const { return m_connection != nullptr; }
    [[nodiscard]] xcb_connection_t *get() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    [[nodiscard]] int screenNumber() const { return m_screenNumber; }

    /// Asks the server, so whoever needs the atom often keeps it.
    [[nodiscard]] xcb_atom_t atom(QByteArrayView name) const;
    /// The items of a 32-bit property; empty when the window does not have it.
    [[nodiscard]] QList<quint32> property(xcb_window_t window, xcb_atom_t name) const;
    void setProperty(
        xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const QList<quint32> &items) const;
    /// Asks the window manager for something about `window`, as pagers and applications do.
    void askWindowManager(
        xcb_window_t window, xcb_atom_t message, const std::array<quint32, 5> &data) const;
    void flush() const { xcb_flush(m_connection); }

private:
    xcb_connection_t *m_connection = nullptr;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    int m_screenNumber = 0;
};
