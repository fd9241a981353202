#include "bench/latency/barepen.h"

#include "platform/xcbptr.h"

#include <stdexcept>

namespace
{

constexpr uint8_t kDepthWithAlpha = 32;
constexpr uint32_t kOpaque = 0xFF000000;

} // namespace

BarePen::BarePen(uint32_t inkRgb, uint32_t widthPx)
    : m_window(xcb_generate_id(m_client.connection())),
      m_context(xcb_generate_id(m_client.connection()))
{
    createWindow();
    const uint32_t values[] = { kOpaque | inkRgb, widthPx, XCB_CAP_STYLE_ROUND };
    xcb_create_gc(m_client.connection(), m_context, m_window,
        XCB_GC_FOREGROUND | XCB_GC_LINE_WIDTH | XCB_GC_CAP_STYLE, values);
    xcb_map_window(m_client.connection(), m_window);
    xcb_flush(m_client.connection());
}

void BarePen::createWindow()
{
    xcb_connection_t *connection = m_client.connection();
    const xcb_screen_t &screen = m_client.screen();
    const xcb_visualid_t visual = translucentVisual();
    const xcb_colormap_t colours = xcb_generate_id(connection);
    xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, colours, screen.root, visual);
    const uint32_t values[] = { 0, 0, 1,
        XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_MOTION,
        colours };
    xcb_create_window(connection, kDepthWithAlpha, m_window, screen.root, 0, 0,
        screen.width_in_pixels, screen.height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
        XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK
            | XCB_CW_COLORMAP,
        values);
}

xcb_visualid_t BarePen::translucentVisual() const
{
    for (auto depths = xcb_screen_allowed_depths_iterator(&m_client.screen()); depths.rem > 0;
         xcb_depth_next(&depths)) {
        if (depths.data->depth == kDepthWithAlpha && depths.data->visuals_len > 0)
            return xcb_depth_visuals_iterator(depths.data).data->visual_id;
    }
    throw std::runtime_error("the X server has no translucent windows");
}

void BarePen::run(void (*ready)())
{
    while (const XcbPtr<xcb_generic_event_t> event{ xcb_wait_for_event(m_client.connection()) }) {
        switch (event->response_type & 0x7F) {
        case XCB_EXPOSE:
            ready();
            break;
        case XCB_BUTTON_PRESS: {
            const auto *press = reinterpret_cast<const xcb_button_press_event_t *>(event.get());
            m_last = { press->root_x, press->root_y };
            break;
        }
        case XCB_MOTION_NOTIFY: {
            const auto *motion = reinterpret_cast<const xcb_motion_notify_event_t *>(event.get());
            drawTo(motion->root_x, motion->root_y);
            break;
        }
        default:
            break;
        }
    }
}

void BarePen::drawTo(int16_t x, int16_t y)
{
    const xcb_point_t line[] = { m_last, { x, y } };
    xcb_poly_line(m_client.connection(), XCB_COORD_MODE_ORIGIN, m_window, m_context, 2, line);
    xcb_flush(m_client.connection());
    m_last = line[1];
}
