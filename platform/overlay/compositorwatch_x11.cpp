#include "platform/overlay/compositorwatch.h"

#include "platform/overlay/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>

#include <xcb/xfixes.h>

/// A compositor holds a selection named after the screen for as long as it runs.
class CompositorWatch::Native : public QAbstractNativeEventFilter
{
public:
    Native(CompositorWatch *owner, X11Connection x11);
    ~Native() override;
    Q_DISABLE_COPY_MOVE(Native)

    [[nodiscard]] bool isComposited() const { return m_composited; }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void watchSelection();
    void note(bool composited);
    [[nodiscard]] bool hasCompositor() const;

    CompositorWatch *m_owner;
    X11Connection m_x11;
    xcb_atom_t m_selection;
    uint8_t m_selectionEvent = 0; ///< 0, an error's number, while there is nothing to watch
    bool m_composited;
};

CompositorWatch::Native::Native(CompositorWatch *owner, X11Connection x11)
    : m_owner(owner), m_x11(x11),
      m_selection(x11.atom("_NET_WM_CM_S" + QByteArray::number(x11.screenNumber()))),
      m_composited(hasCompositor())
{
    watchSelection();
    qGuiApp->installNativeEventFilter(this);
}

CompositorWatch::Native::~Native()
{
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

void CompositorWatch::Native::watchSelection()
{
    const auto *xfixes = xcb_get_extension_data(m_x11.get(), &xcb_xfixes_id);
    if (!xfixes || !xfixes->present)
        return;
    m_selectionEvent = static_cast<uint8_t>(xfixes->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    xcb_xfixes_select_selection_input(m_x11.get(), m_x11.root(), m_selection,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

bool CompositorWatch::Native::hasCompositor() const
{
    const auto cookie = xcb_get_selection_owner(m_x11.get(), m_selection);
    const XcbPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_x11.get(), cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

bool CompositorWatch::Native::nativeEventFilter(
    const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t" || m_selectionEvent == 0)
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != m_selectionEvent)
        return false;
    const auto *change = static_cast<const xcb_xfixes_selection_notify_event_t *>(message);
    if (change->selection == m_selection)
        note(change->owner != XCB_WINDOW_NONE);
    return false;
}

void CompositorWatch::Native::note(bool composited)
{
    if (composited == m_composited)
        return;
    m_composited = composited;
    emit m_owner->compositedChanged();
}

CompositorWatch::CompositorWatch(QObject *parent) : QObject(parent)
{
    if (const auto x11 = X11Connection::current(); x11.isValid())
        m_native = std::make_unique<Native>(this, x11);
}

CompositorWatch::~CompositorWatch() = default;

bool CompositorWatch::isComposited() const
{
    return !m_native || m_native->isComposited();
}
