#pragma once

#include "platform/xcbptr.h"

#include <QKeyCombination>

#include <xcb/xcb_keysyms.h>

#include <compare>
#include <vector>

/// A key as the X server knows it.
struct X11Key {
    xcb_keycode_t code = 0;
    uint16_t modifiers = 0; ///< bits of the core protocol, lock keys included
    auto operator<=>(const X11Key &) const = default; // NOLINT(modernize-use-nullptr): mistaken
};

/// Where the keys of Qt's names sit on the keyboard at present, and which modifier bits its
/// modifier and lock keys drive. A snapshot: make a new one when the server's mapping changes.
class X11KeyMap
{
public:
    explicit X11KeyMap(xcb_connection_t *connection);

    /// Every key and modifier state that means @p keys, whatever lock keys are on, sorted. Empty
    /// when this keyboard cannot produce it.
    [[nodiscard]] std::vector<X11Key> resolve(QKeyCombination keys) const;

private:
    /// One place of a symbol: a key and the modifiers that select the symbol on it.
    struct Place {
        xcb_keycode_t code = 0;
        uint16_t level = 0;
    };

    void readModifiers(xcb_connection_t *connection);
    [[nodiscard]] uint16_t modifierOf(std::initializer_list<uint32_t> symbols,
        const xcb_get_modifier_mapping_reply_t *mapping) const;
    [[nodiscard]] std::vector<Place> placesOf(uint32_t symbol) const;
    [[nodiscard]] std::vector<Place> placesInColumns(uint32_t symbol, int firstColumn) const;
    [[nodiscard]] bool modifierBits(Qt::KeyboardModifiers modifiers, uint16_t *bits) const;
    void addLockVariants(X11Key key, uint32_t symbol, std::vector<X11Key> &keys) const;

    struct FreeSymbols {
        void operator()(xcb_key_symbols_t *symbols) const { xcb_key_symbols_free(symbols); }
    };
    std::unique_ptr<xcb_key_symbols_t, FreeSymbols> m_symbols;
    xcb_keycode_t m_firstCode = 0;
    xcb_keycode_t m_lastCode = 0;
    uint16_t m_alt = 0;
    uint16_t m_meta = 0;
    uint16_t m_level3 = 0;
    uint16_t m_numLock = 0;
    uint16_t m_scrollLock = 0;
};
