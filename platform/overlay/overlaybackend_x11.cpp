#include "platform/overlay/overlaybackend.h"
#include "platform/overlay/x11connection.h"
#include "platform/overlay/x11focus.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QWindow>

#include <xcb/shape.h>

namespace
{
constexpr quint32 kNeverBypass = 2; // _NET_WM_BYPASS_COMPOSITOR: never take this window out
constexpr int kAnySize = 32767; // the longest that a window can be

class X11OverlayBackend : public OverlayBackend, public QAbstractNativeEventFilter
{
public:
    X11OverlayBackend(QWindow *window, X11Connection x11);
    ~X11OverlayBackend() override;
    Q_DISABLE_COPY_MOVE(X11OverlayBackend)

    void prepareWindow() override;
    void setInputTransparent(bool transparent) override;
    void leaveOpen(const QRect &area) override;
    void takeFocus() override;
    void returnFocus() override;
    void keepAbove(QWindow *other) override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void shapeInput();
    void setInputShape(xcb_shape_op_t operation, const QRect &area);
    [[nodiscard]] xcb_window_t id() const { return static_cast<xcb_window_t>(window()->winId()); }

    X11Connection m_x11;
    X11Focus m_focus;
    bool m_inputTransparent = false;
    QRect m_open; ///< in the window's native pixels
};

X11OverlayBackend::X11OverlayBackend(QWindow *window, X11Connection x11)
    : OverlayBackend(window), m_x11(x11), m_focus(x11)
{
    qGuiApp->installNativeEventFilter(this);
}

X11OverlayBackend::~X11OverlayBackend()
{
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

bool X11OverlayBackend::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto *change = static_cast<const xcb_property_notify_event_t *>(message);
    if (change->window == m_x11.root())
        m_focus.noteRootProperty(change->atom);
    return false;
}

void X11OverlayBackend::prepareWindow()
{
    m_x11.setProperty(
        id(), m_x11.atom("_NET_WM_BYPASS_COMPOSITOR"), XCB_ATOM_CARDINAL, { kNeverBypass });
    // No task of its own: neither in the task bar nor among the windows to switch to.
    const auto state = m_x11.atom("_NET_WM_STATE");
    auto states = m_x11.property(id(), state);
    for (const char *name : { "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER" }) {
        if (const auto atom = m_x11.atom(name); !states.contains(atom))
            states.append(atom);
    }
    m_x11.setProperty(id(), state, XCB_ATOM_ATOM, states);
}

void X11OverlayBackend::setInputTransparent(bool transparent)
{
    m_inputTransparent = transparent;
    shapeInput();
}

void X11OverlayBackend::leaveOpen(const QRect &area)
{
    const qreal ratio = window()->devicePixelRatio();
    m_open = QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio).toAlignedRect();
    shapeInput();
}

void X11OverlayBackend::setInputShape(xcb_shape_op_t operation, const QRect &area)
{
    const xcb_rectangle_t rectangle{ static_cast<int16_t>(area.x()), static_cast<int16_t>(area.y()),
        static_cast<uint16_t>(area.width()), static_cast<uint16_t>(area.height()) };
    xcb_shape_rectangles(m_x11.get(), operation, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
        id(), 0, 0, 1, &rectangle);
}

void X11OverlayBackend::shapeInput()
{
    // An empty input shape lets everything through; no shape at all follows the window's size.
    if (m_inputTransparent) {
        xcb_shape_rectangles(m_x11.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
            XCB_CLIP_ORDERING_UNSORTED, id(), 0, 0, 0, nullptr);
    } else if (m_open.isEmpty()) {
        xcb_shape_mask(m_x11.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, id(), 0, 0, XCB_NONE);
    } else {
        setInputShape(XCB_SHAPE_SO_SET, { 0, 0, kAnySize, kAnySize });
        setInputShape(XCB_SHAPE_SO_SUBTRACT, m_open);
    }
    m_x11.flush();
}

void X11OverlayBackend::takeFocus()
{
    m_focus.setAccepted(id(), true);
    window()->requestActivate(); // remembered by Qt while the window is not mapped yet
    m_focus.activate(id());
}

void X11OverlayBackend::returnFocus()
{
    m_focus.setAccepted(id(), false);
    m_focus.giveBack();
}

void X11OverlayBackend::keepAbove(QWindow *other)
{
    // Every window manager stacks a transient window above the one that it belongs to, also above
    // one that is full-screen, where raising alone is not enough.
    m_x11.setProperty(static_cast<xcb_window_t>(other->winId()), XCB_ATOM_WM_TRANSIENT_FOR,
        XCB_ATOM_WINDOW, { id() });
    m_x11.flush();
}
} // namespace

std::unique_ptr<OverlayBackend> OverlayBackend::createNative(QWindow *window)
{
    const auto x11 = X11Connection::current();
    if (!x11.isValid())
        return nullptr;
    return std::make_unique<X11OverlayBackend>(window, x11);
}
