#include "platform/windowsystem.h"

#include <QByteArray>

void chooseWindowSystem()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
        && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && !qEnvironmentVariableIsEmpty("DISPLAY")) {
        // Should the X server refuse, the session's own window system is better than no start.
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
}
