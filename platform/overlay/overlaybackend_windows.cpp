#include "platform/overlay/overlaybackend.h"

#include <QWindow>

#include <windows.h>

namespace
{
/// Windows composites every window; what is left is to remember who had the keyboard.
class WindowsOverlayBackend : public OverlayBackend
{
public:
    explicit WindowsOverlayBackend(QWindow *window) : OverlayBackend(window) { }

    void takeFocus() override
    {
        const HWND active = GetForegroundWindow();
        DWORD process = 0;
        GetWindowThreadProcessId(active, &process);
        if (process != GetCurrentProcessId())
            m_previous = active;
        OverlayBackend::takeFocus();
    }

    void returnFocus() override
    {
        if (m_previous && IsWindow(m_previous))
            SetForegroundWindow(m_previous);
    }

    void keepAbove(QWindow *other) override
    {
        SetWindowPos(reinterpret_cast<HWND>(other->winId()), HWND_TOPMOST, 0, 0, 0, 0,
            SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }

private:
    HWND m_previous = nullptr;
};
} // namespace

std::unique_ptr<OverlayBackend> OverlayBackend::createNative(QWindow *window)
{
    return std::make_unique<WindowsOverlayBackend>(window);
}
