#include "recorder/desktop.h"

#include <qt_windows.h>

std::optional<Desktop> Desktop::current()
{
    // Otherwise sizes come in logical pixels wherever the desktop is scaled.
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    const QRect all(GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN),
        GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
    if (all.isEmpty())
        return std::nullopt;
    return Desktop{ all, QString(), ScreenGrabber::Gdi };
}
