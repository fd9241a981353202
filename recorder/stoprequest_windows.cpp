#include "recorder/stoprequest.h"

#include <qt_windows.h>

namespace
{

constexpr wchar_t kWindowClass[] = L"DravelinRecorderStopRequest";

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_CLOSE)
        return DefWindowProcW(window, message, wParam, lParam);
    auto *request = reinterpret_cast<StopRequest *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (request)
        emit request->requested();
    return 0;
}

} // namespace

struct StopRequest::Platform {
    HWND window = nullptr;
};

StopRequest::StopRequest(QObject *parent)
    : QObject(parent), m_platform(std::make_unique<Platform>())
{
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = onMessage;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = kWindowClass;
    RegisterClassW(&windowClass);
    // A top-level window, though never shown: close messages are sent to those only.
    m_platform->window = CreateWindowExW(WS_EX_TOOLWINDOW, kWindowClass, L"", WS_POPUP, 0, 0, 0, 0,
        nullptr, nullptr, instance, nullptr);
    SetWindowLongPtrW(m_platform->window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

StopRequest::~StopRequest()
{
    DestroyWindow(m_platform->window);
}
