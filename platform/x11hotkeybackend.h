#pragma once

#include "platform/hotkeybackend.h"
#include "platform/x11grabfocusfilter.h"
#include "platform/x11keymap.h"

#include <QSet>
#include <QSocketNotifier>
#include <QTimer>

#include <map>

/// Passive key grabs on the root window, over a connection of its own: the server ends all of them
/// with it, and key events for Qt's windows are not mixed with them.
class X11HotKeyBackend : public HotKeyBackend
{
    Q_OBJECT

public:
    X11HotKeyBackend();

    [[nodiscard]] bool isConnected() const;

    GrabResult grab(QKeyCombination keys) override;
    void release(QKeyCombination keys) override;

private:
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    void watchKeyboard();
    [[nodiscard]] bool grabOnServer(const std::vector<X11Key> &keys);
    void ungrabOnServer(const std::vector<X11Key> &keys);
    [[nodiscard]] bool isHeld(X11Key key) const;
    void readEvents();
    void handleEvent(const xcb_generic_event_t *event);
    void handlePress(const xcb_key_press_event_t *event);
    void handleRelease(const xcb_key_release_event_t *event);
    void forgetLiftedKeys();
    void readEventsSoon();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    X11GrabFocusFilter m_focusFilter;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<X11KeyMap> m_keyMap; ///< null after the layout changed, until needed
    std::map<int, std::vector<X11Key>> m_grabs; ///< by QKeyCombination::toCombined()
    QSet<int> m_down; ///< codes of keys whose press was handled and whose release was not seen
    QTimer m_liftedTimer;
    QTimer m_layoutTimer;
    uint8_t m_xkbEvent = 0; ///< type of all XKB events; 0 without the extension
};
