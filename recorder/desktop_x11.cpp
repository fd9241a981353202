#include "recorder/desktop.h"

#include <xcb/xcb.h>

#include <memory>

std::optional<Desktop> Desktop::current()
{
    int number = 0;
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, &number), xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0)
        return std::nullopt;
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    return Desktop{ QRect(0, 0, screens.data->width_in_pixels, screens.data->height_in_pixels),
        qEnvironmentVariable("DISPLAY"), ScreenGrabber::X11 };
}
