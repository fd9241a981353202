#include "platform/x11keymap.h"

#include "platform/x11keysyms.h"

#include <X11/keysym.h>

#include <algorithm>

namespace
{

// Columns of the core mapping: two shift levels for each of the first two layouts, then the
// levels that AltGr selects in the first layout.
constexpr int kFirstLayout = 0;
constexpr int kSecondLayout = 2;
constexpr int kAltGrLevels = 4;

// Keys F13 to F24 have codes of their own, but common layouts put other symbols on them.
constexpr xcb_keycode_t kCodeOfF13 = 191;

bool isDigit(uint32_t symbol)
{
    return symbol >= XK_0 && symbol <= XK_9;
}

} // namespace

X11KeyMap::X11KeyMap(xcb_connection_t *connection)
    : m_symbols(xcb_key_symbols_alloc(connection)),
      m_firstCode(xcb_get_setup(connection)->min_keycode),
      m_lastCode(xcb_get_setup(connection)->max_keycode)
{
    readModifiers(connection);
}

void X11KeyMap::readModifiers(xcb_connection_t *connection)
{
    const auto cookie = xcb_get_modifier_mapping(connection);
    const XcbPtr<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(connection, cookie, nullptr));
    if (!mapping)
        return;
    m_alt = modifierOf({ XK_Alt_L, XK_Alt_R }, mapping.get());
    m_meta = modifierOf({ XK_Super_L, XK_Super_R }, mapping.get());
    if (m_meta == 0)
        m_meta = modifierOf({ XK_Meta_L, XK_Meta_R, XK_Hyper_L, XK_Hyper_R }, mapping.get());
    m_level3 = modifierOf({ XK_ISO_Level3_Shift, XK_Mode_switch }, mapping.get());
    m_numLock = modifierOf({ XK_Num_Lock }, mapping.get());
    m_scrollLock = modifierOf({ XK_Scroll_Lock }, mapping.get());
}

uint16_t X11KeyMap::modifierOf(
    std::initializer_list<uint32_t> symbols, const xcb_get_modifier_mapping_reply_t *mapping) const
{
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(mapping);
    const int perModifier = mapping->keycodes_per_modifier;
    for (int i = XCB_MAP_INDEX_1 * perModifier;
         i <= XCB_MAP_INDEX_5 * perModifier + perModifier - 1; ++i) {
        for (int column = 0; codes[i] != 0 && column <= kAltGrLevels; ++column) {
            const uint32_t symbol = xcb_key_symbols_get_keysym(m_symbols.get(), codes[i], column);
            if (std::find(symbols.begin(), symbols.end(), symbol) != symbols.end())
                return uint16_t(1U << unsigned(i / perModifier));
        }
    }
    return 0;
}

std::vector<X11Key> X11KeyMap::resolve(QKeyCombination keys) const
{
    std::vector<X11Key> resolved;
    uint16_t bits = 0;
    if (!modifierBits(keys.keyboardModifiers(), &bits))
        return resolved;
    for (const uint32_t symbol : x11KeySymbols(keys.key())) {
        for (const Place &place : placesOf(symbol))
            addLockVariants({ place.code, uint16_t(bits | place.level) }, symbol, resolved);
    }
    if (resolved.empty() && keys.key() >= Qt::Key_F13 && keys.key() <= Qt::Key_F24) {
        const int code = kCodeOfF13 + (keys.key() - Qt::Key_F13);
        if (code <= m_lastCode)
            addLockVariants({ xcb_keycode_t(code), bits }, XCB_NO_SYMBOL, resolved);
    }
    std::sort(resolved.begin(), resolved.end());
    resolved.erase(std::unique(resolved.begin(), resolved.end()), resolved.end());
    return resolved;
}

bool X11KeyMap::modifierBits(Qt::KeyboardModifiers modifiers, uint16_t *bits) const
{
    if ((modifiers & Qt::AltModifier && m_alt == 0)
        || (modifiers & Qt::MetaModifier && m_meta == 0))
        return false;
    *bits = uint16_t((modifiers & Qt::ShiftModifier ? XCB_MOD_MASK_SHIFT : 0)
        | (modifiers & Qt::ControlModifier ? XCB_MOD_MASK_CONTROL : 0)
        | (modifiers & Qt::AltModifier ? m_alt : 0) | (modifiers & Qt::MetaModifier ? m_meta : 0));
    return true;
}

/// The first layout counts; the second only has what the first lacks (Latin letters, say).
std::vector<X11KeyMap::Place> X11KeyMap::placesOf(uint32_t symbol) const
{
    std::vector<Place> places = placesInColumns(symbol, kFirstLayout);
    if (places.empty() && m_level3 != 0) {
        places = placesInColumns(symbol, kAltGrLevels);
        for (Place &place : places)
            place.level |= m_level3;
    }
    if (places.empty())
        places = placesInColumns(symbol, kSecondLayout);
    return places;
}

std::vector<X11KeyMap::Place> X11KeyMap::placesInColumns(uint32_t symbol, int firstColumn) const
{
    std::vector<Place> places;
    for (int code = m_firstCode; code <= m_lastCode; ++code) {
        const auto symbolAt = [&](int column) {
            return xcb_key_symbols_get_keysym(m_symbols.get(), xcb_keycode_t(code), column);
        };
        if (symbolAt(firstColumn) == symbol) {
            places.push_back({ xcb_keycode_t(code), 0 });
        } else if (symbolAt(firstColumn + 1) == symbol) {
            // Digits mean their key even where it needs Shift to write them; NumLock, not Shift,
            // selects what number-pad keys write.
            const bool ownKey = isDigit(symbol) || isNumLockedKeypadSymbol(symbol);
            places.push_back({ xcb_keycode_t(code), uint16_t(ownKey ? 0 : XCB_MOD_MASK_SHIFT) });
        }
    }
    return places;
}

void X11KeyMap::addLockVariants(X11Key key, uint32_t symbol, std::vector<X11Key> &keys) const
{
    for (const uint16_t caps : { uint16_t(0), uint16_t(XCB_MOD_MASK_LOCK) }) {
        for (const uint16_t scroll : { uint16_t(0), m_scrollLock }) {
            const auto locks = uint16_t(key.modifiers | caps | scroll);
            if (!isNumLockedKeypadSymbol(symbol))
                keys.push_back({ key.code, locks });
            if (!isPlainKeypadSymbol(symbol))
                keys.push_back({ key.code, uint16_t(locks | m_numLock) });
        }
    }
}
