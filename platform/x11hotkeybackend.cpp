#include "platform/x11hotkeybackend.h"

// The header uses a C++ keyword as a field's name.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

#include <algorithm>

namespace
{

/// A change of layout comes as a burst of events.
constexpr int kLayoutSettleMs = 20;
/// How often to look whether a key was lifted whose release went elsewhere.
constexpr int kLiftedPollMs = 30;

constexpr uint16_t kModifierBits = 0xff;

} // namespace

X11HotKeyBackend::X11HotKeyBackend()
{
    int screenNumber = 0;
    m_connection.reset(xcb_connect(nullptr, &screenNumber));
    if (!isConnected())
        return;
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get()));
    for (int i = 0; i < screenNumber; ++i)
        xcb_screen_next(&screen);
    m_root = screen.data->root;

    m_layoutTimer.setSingleShot(true);
    m_layoutTimer.setInterval(kLayoutSettleMs);
    connect(&m_layoutTimer, &QTimer::timeout, this, [this] {
        m_keyMap.reset();
        Q_EMIT layoutChanged();
    });
    m_liftedTimer.setInterval(kLiftedPollMs);
    connect(&m_liftedTimer, &QTimer::timeout, this, &X11HotKeyBackend::forgetLiftedKeys);

    watchKeyboard();
    m_notifier = std::make_unique<QSocketNotifier>(
        xcb_get_file_descriptor(m_connection.get()), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11HotKeyBackend::readEvents);
}

bool X11HotKeyBackend::isConnected() const
{
    return xcb_connection_has_error(m_connection.get()) == 0;
}

/// Asks for layout changes, and for held keys to repeat without releases in between, which tells
/// auto-repeat from presses.
void X11HotKeyBackend::watchKeyboard()
{
    xcb_connection_t *connection = m_connection.get();
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    if (!extension || !extension->present)
        return;
    const auto use =
        xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    const XcbPtr<xcb_xkb_use_extension_reply_t> used(
        xcb_xkb_use_extension_reply(connection, use, nullptr));
    if (!used || !used->supported)
        return;
    m_xkbEvent = extension->first_event;
    constexpr uint32_t kRepeat = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto flags =
        xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, kRepeat, kRepeat, 0, 0, 0);
    xcb_discard_reply(connection, flags.sequence);
    constexpr uint16_t kEvents =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr uint16_t kParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events(
        connection, XCB_XKB_ID_USE_CORE_KBD, kEvents, 0, kEvents, kParts, kParts, nullptr);
    xcb_flush(connection);
}

HotKeyBackend::GrabResult X11HotKeyBackend::grab(QKeyCombination keys)
{
    if (!m_keyMap)
        m_keyMap = std::make_unique<X11KeyMap>(m_connection.get());
    const std::vector<X11Key> wanted = m_keyMap->resolve(keys);
    const auto held = m_grabs.find(keys.toCombined());
    if (held != m_grabs.end() && held->second == wanted)
        return GrabResult::Grabbed;
    release(keys);
    readEventsSoon();
    if (wanted.empty())
        return GrabResult::UnknownKey;
    if (!grabOnServer(wanted)) {
        ungrabOnServer(wanted);
        return GrabResult::Taken;
    }
    m_grabs[keys.toCombined()] = wanted;
    return GrabResult::Grabbed;
}

void X11HotKeyBackend::release(QKeyCombination keys)
{
    const auto held = m_grabs.extract(keys.toCombined());
    if (!held.empty())
        ungrabOnServer(held.mapped());
}

/// All requests go out before the first answer is awaited. False when one of them was refused.
bool X11HotKeyBackend::grabOnServer(const std::vector<X11Key> &keys)
{
    std::vector<xcb_void_cookie_t> cookies;
    cookies.reserve(keys.size());
    for (const X11Key &key : keys) {
        cookies.push_back(xcb_grab_key_checked(m_connection.get(), 0, m_root, key.modifiers,
            key.code, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool granted = true;
    for (const xcb_void_cookie_t &cookie : cookies) {
        const XcbPtr<xcb_generic_error_t> error(xcb_request_check(m_connection.get(), cookie));
        granted = granted && !error;
    }
    return granted && isConnected();
}

/// Keys that another combination holds as well stay grabbed. The others are free when it returns:
/// waiting for any answer makes sure that the server has done it.
void X11HotKeyBackend::ungrabOnServer(const std::vector<X11Key> &keys)
{
    for (const X11Key &key : keys) {
        if (!isHeld(key))
            xcb_ungrab_key(m_connection.get(), key.code, m_root, key.modifiers);
    }
    const auto cookie = xcb_get_input_focus(m_connection.get());
    const XcbPtr<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(m_connection.get(), cookie, nullptr));
    readEventsSoon();
}

bool X11HotKeyBackend::isHeld(X11Key key) const
{
    return std::any_of(m_grabs.begin(), m_grabs.end(), [key](const auto &grab) {
        return std::binary_search(grab.second.begin(), grab.second.end(), key);
    });
}

/// Waiting for an answer may have read events off the socket, which then does not wake anybody.
void X11HotKeyBackend::readEventsSoon()
{
    QMetaObject::invokeMethod(this, &X11HotKeyBackend::readEvents, Qt::QueuedConnection);
}

void X11HotKeyBackend::readEvents()
{
    while (const XcbPtr<xcb_generic_event_t> event{ xcb_poll_for_event(m_connection.get()) })
        handleEvent(event.get());
    if (!isConnected())
        m_notifier->setEnabled(false);
}

void X11HotKeyBackend::handleEvent(const xcb_generic_event_t *event)
{
    const uint8_t type = event->response_type & 0x7f;
    if (type == XCB_KEY_PRESS)
        handlePress(reinterpret_cast<const xcb_key_press_event_t *>(event));
    else if (type == XCB_KEY_RELEASE)
        handleRelease(reinterpret_cast<const xcb_key_release_event_t *>(event));
    else if (type == XCB_MAPPING_NOTIFY || (type == m_xkbEvent && m_xkbEvent != 0))
        m_layoutTimer.start();
}

void X11HotKeyBackend::handlePress(const xcb_key_press_event_t *event)
{
    if (m_down.contains(event->detail))
        return;
    m_down.insert(event->detail);
    const X11Key key{ event->detail, uint16_t(event->state & kModifierBits) };
    for (const auto &[combined, keys] : m_grabs) {
        if (std::binary_search(keys.begin(), keys.end(), key))
            Q_EMIT pressed(QKeyCombination::fromCombined(combined));
    }
}

void X11HotKeyBackend::handleRelease(const xcb_key_release_event_t *event)
{
    m_down.remove(event->detail);
    // With this key the grab may have ended, and the release of another one will go elsewhere.
    if (!m_down.isEmpty())
        m_liftedTimer.start();
}

void X11HotKeyBackend::forgetLiftedKeys()
{
    const auto cookie = xcb_query_keymap(m_connection.get());
    const XcbPtr<xcb_query_keymap_reply_t> keyboard(
        xcb_query_keymap_reply(m_connection.get(), cookie, nullptr));
    if (!keyboard) {
        m_down.clear();
    } else {
        m_down.removeIf(
            [&keyboard](int code) { return (keyboard->keys[code / 8] & (1 << (code % 8))) == 0; });
    }
    if (m_down.isEmpty())
        m_liftedTimer.stop();
    readEventsSoon();
}
