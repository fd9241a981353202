#include "tests/recorder/backdrop.h"

#include <cstdlib>

Backdrop::Backdrop(const QByteArray &display, QRgb colour)
    : m_connection(xcb_connect(display.constData(), nullptr)),
      m_window(xcb_generate_id(m_connection))
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const uint32_t unmanaged = 1;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0,
        screen->width_in_pixels, screen->height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
    xcb_map_window(m_connection, m_window);
    setColour(colour);
}

Backdrop::~Backdrop()
{
    xcb_disconnect(m_connection);
}

void Backdrop::setColour(QRgb colour)
{
    const uint32_t pixel = colour & RGB_MASK;
    xcb_change_window_attributes(m_connection, m_window, XCB_CW_BACK_PIXEL, &pixel);
    xcb_clear_area(m_connection, 0, m_window, 0, 0, 0, 0);
    std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}
