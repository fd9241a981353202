#pragma once

#include "bench/latency/xclient.h"

/// The least that a screen pen can be: a translucent window over the whole screen that draws a
/// line to the pointer while a button is down. What it takes, nothing on this desktop can beat.
class BarePen
{
public:
    /// `inkRgb` as 0xRRGGBB, `widthPx` of the line.
    BarePen(uint32_t inkRgb, uint32_t widthPx);

    /// Draws until the connection ends; `ready` is called once the window is on the screen.
    void run(void (*ready)());

private:
    void createWindow();
    [[nodiscard]] xcb_visualid_t translucentVisual() const;
    void drawTo(int16_t x, int16_t y);

    XClient m_client;
    xcb_window_t m_window;
    xcb_gcontext_t m_context;
    xcb_point_t m_last = { 0, 0 };
};
