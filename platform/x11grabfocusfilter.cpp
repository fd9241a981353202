#include "platform/x11grabfocusfilter.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

X11GrabFocusFilter::X11GrabFocusFilter()
{
    qGuiApp->installNativeEventFilter(this);
}

bool X11GrabFocusFilter::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const int type = event->response_type & 0x7f;
    if (type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT)
        return false;
    const auto *focus = reinterpret_cast<const xcb_focus_in_event_t *>(event);
    const bool byGrab =
        focus->mode == XCB_NOTIFY_MODE_GRAB || focus->mode == XCB_NOTIFY_MODE_UNGRAB;
    // Hot keys are grabbed on the root window. Grabs of Qt's own popups come from elsewhere.
    return byGrab && focus->detail == XCB_NOTIFY_DETAIL_ANCESTOR;
}
