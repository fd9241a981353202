#include "platform/hotkeybackend.h"

#include "platform/x11hotkeybackend.h"

#include <QGuiApplication>

std::unique_ptr<HotKeyBackend> createHotKeyBackend()
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        auto backend = std::make_unique<X11HotKeyBackend>();
        if (backend->isConnected())
            return backend;
    }
    return createNullHotKeyBackend();
}
