#include "platform/overlay/overlaybackend.h"

#include <QWindow>

std::unique_ptr<OverlayBackend> OverlayBackend::create(QWindow *window)
{
    if (auto native = createNative(window))
        return native;
    return std::unique_ptr<OverlayBackend>(new OverlayBackend(window));
}

void OverlayBackend::setInputTransparent(bool transparent)
{
    m_window->setFlag(Qt::WindowTransparentForInput, transparent);
}

void OverlayBackend::takeFocus()
{
    m_window->requestActivate();
}
