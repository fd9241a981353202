#include "platform/overlay/focuswatch.h"

#include "platform/overlay/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QWindow>

namespace
{
/// Learns of it each time the window manager announces a new one.
class X11FocusWatch : public FocusWatch, public QAbstractNativeEventFilter
{
public:
    X11FocusWatch(QWindow *window, X11Connection x11)
        : m_window(window), m_x11(x11), m_activeWindow(x11.atom("_NET_ACTIVE_WINDOW"))
    {
        note();
        qGuiApp->installNativeEventFilter(this);
    }

    ~X11FocusWatch() override
    {
        if (qGuiApp)
            qGuiApp->removeNativeEventFilter(this);
    }
    Q_DISABLE_COPY_MOVE(X11FocusWatch)

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *) override
    {
        if (eventType != "xcb_generic_event_t")
            return false;
        const auto *event = static_cast<const xcb_generic_event_t *>(message);
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            return false;
        const auto *change = static_cast<const xcb_property_notify_event_t *>(message);
        if (change->window == m_x11.root() && change->atom == m_activeWindow)
            note();
        return false;
    }

    void giveBack() const override
    {
        constexpr quint32 kFromPager = 2; // as a wish of the user, it is not held back
        if (m_before == XCB_WINDOW_NONE)
            return;
        m_x11.askWindowManager(
            m_before, m_activeWindow, { kFromPager, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0 });
        m_x11.flush();
    }

private:
    void note()
    {
        const auto active = m_x11.property(m_x11.root(), m_activeWindow);
        const bool isOurs =
            m_window->handle() && !active.isEmpty() && active.first() == m_window->winId();
        if (!isOurs)
            m_before = active.value(0, XCB_WINDOW_NONE);
    }

    QWindow *m_window;
    X11Connection m_x11;
    xcb_atom_t m_activeWindow;
    xcb_window_t m_before = XCB_WINDOW_NONE;
};
} // namespace

std::unique_ptr<FocusWatch> FocusWatch::create(QWindow *window)
{
    const auto x11 = X11Connection::current();
    if (!x11.isValid())
        return nullptr;
    return std::make_unique<X11FocusWatch>(window, x11);
}
