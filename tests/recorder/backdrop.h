#pragma once

#include <QByteArray>
#include <QColor>

#include <xcb/xcb.h>

/// A window of one colour over the whole of a screen.
class Backdrop
{
public:
    Backdrop(const QByteArray &display, QRgb colour);
    ~Backdrop();
    Backdrop(const Backdrop &) = delete;
    Backdrop &operator=(const Backdrop &) = delete;

    /// Returns once it is shown.
    void setColour(QRgb colour);

private:
    xcb_connection_t *m_connection;
    xcb_window_t m_window;
};
