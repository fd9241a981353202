#include "recorder/desktop.h"

#include <qt_windows.h>

std::optional<Desktop> Desktop::current()
{
    const QRect all(GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN),
        GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
    if (all.isEmpty())
        return std::nullopt;
    return Desktop{ all, QString(), ScreenGrabber::Gdi };
}
