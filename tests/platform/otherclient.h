#pragma once

#include "platform/xcbptr.h"

#include <QList>

#include <xcb/xcb_keysyms.h>

/// Another program on the display, with a window of its own; it also moves the fingers on the
/// keyboard. Keys are named by the symbol that they have without Shift.
class OtherClient
{
public:
    OtherClient();

    void press(uint32_t symbol) { fakeKey(XCB_KEY_PRESS, codeOf(symbol)); }
    void release(uint32_t symbol) { fakeKey(XCB_KEY_RELEASE, codeOf(symbol)); }
    /// Presses the keys in this order and releases them in reverse.
    void tap(const QList<uint32_t> &symbols);
    void tapCode(const QList<uint32_t> &heldSymbols, xcb_keycode_t code);

    /// The key's code in the present layout; 0 when there is none.
    [[nodiscard]] xcb_keycode_t codeOf(uint32_t symbol) const;

    /// Tries to take a key from the desktop. False when somebody else holds it.
    bool grab(xcb_keycode_t code, uint16_t modifiers);
    void ungrab(xcb_keycode_t code, uint16_t modifiers);

    /// Gives the keyboard focus to this program's window, or to another window.
    void takeFocus() { focus(m_window); }
    void focus(xcb_window_t window);
    /// Codes of the keys that its window was told to be pressed since the last call.
    QList<xcb_keycode_t> receivedPresses();

    /// Makes a key switch the modifier bit of that index, and no others.
    void setModifier(int index, xcb_keycode_t code);

private:
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    void fakeKey(uint8_t type, xcb_keycode_t code);
    void roundTrip();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    xcb_window_t m_window = XCB_WINDOW_NONE;
};
