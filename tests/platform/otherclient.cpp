#include "otherclient.h"

#include <xcb/xtest.h>

OtherClient::OtherClient() : m_connection(xcb_connect(nullptr, nullptr))
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data;
    m_root = screen->root;
    m_window = xcb_generate_id(m_connection.get());
    const uint32_t events = XCB_EVENT_MASK_KEY_PRESS;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, m_root, 600, 400, 100,
        100, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_map_window(m_connection.get(), m_window);
    roundTrip();
}

void OtherClient::tap(const QList<uint32_t> &symbols)
{
    for (const uint32_t symbol : symbols)
        press(symbol);
    for (qsizetype i = symbols.size() - 1; i >= 0; --i)
        release(symbols[i]);
}

void OtherClient::tapCode(const QList<uint32_t> &heldSymbols, xcb_keycode_t code)
{
    for (const uint32_t symbol : heldSymbols)
        press(symbol);
    fakeKey(XCB_KEY_PRESS, code);
    fakeKey(XCB_KEY_RELEASE, code);
    for (const uint32_t symbol : heldSymbols)
        release(symbol);
}

xcb_keycode_t OtherClient::codeOf(uint32_t symbol) const
{
    xcb_key_symbols_t *symbols = xcb_key_symbols_alloc(m_connection.get());
    const xcb_setup_t *setup = xcb_get_setup(m_connection.get());
    int found = 0;
    for (int code = setup->min_keycode; code <= setup->max_keycode && found == 0; ++code) {
        if (xcb_key_symbols_get_keysym(symbols, xcb_keycode_t(code), 0) == symbol)
            found = code;
    }
    xcb_key_symbols_free(symbols);
    return xcb_keycode_t(found);
}

bool OtherClient::grab(xcb_keycode_t code, uint16_t modifiers)
{
    const auto cookie = xcb_grab_key_checked(
        m_connection.get(), 0, m_root, modifiers, code, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XcbPtr<xcb_generic_error_t> error(xcb_request_check(m_connection.get(), cookie));
    return !error;
}

void OtherClient::ungrab(xcb_keycode_t code, uint16_t modifiers)
{
    xcb_ungrab_key(m_connection.get(), code, m_root, modifiers);
    roundTrip();
}

void OtherClient::focus(xcb_window_t window)
{
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    roundTrip();
}

QList<xcb_keycode_t> OtherClient::receivedPresses()
{
    roundTrip();
    QList<xcb_keycode_t> codes;
    while (const XcbPtr<xcb_generic_event_t> event{ xcb_poll_for_event(m_connection.get()) }) {
        if ((event->response_type & 0x7f) == XCB_KEY_PRESS)
            codes << reinterpret_cast<const xcb_key_press_event_t *>(event.get())->detail;
    }
    return codes;
}

void OtherClient::setModifier(int index, xcb_keycode_t code)
{
    const auto cookie = xcb_get_modifier_mapping(m_connection.get());
    const XcbPtr<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(m_connection.get(), cookie, nullptr));
    const int perModifier = mapping->keycodes_per_modifier;
    xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(mapping.get());
    for (int i = 0; i < perModifier; ++i)
        codes[index * perModifier + i] = i == 0 ? code : 0;
    const auto set = xcb_set_modifier_mapping(m_connection.get(), uint8_t(perModifier), codes);
    const XcbPtr<xcb_set_modifier_mapping_reply_t> done(
        xcb_set_modifier_mapping_reply(m_connection.get(), set, nullptr));
}

void OtherClient::fakeKey(uint8_t type, xcb_keycode_t code)
{
    xcb_test_fake_input(m_connection.get(), type, code, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    roundTrip();
}

void OtherClient::roundTrip()
{
    const auto cookie = xcb_get_input_focus(m_connection.get());
    const XcbPtr<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection.get(), cookie, nullptr));
}
