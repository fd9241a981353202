#pragma once

#include <QKeyCombination>

/// A key as RegisterHotKey takes it.
struct WindowsKey {
    unsigned virtualKey = 0; ///< VK_ code; 0 when this keyboard has no such key
    Qt::KeyboardModifiers modifiers;
    bool operator==(const WindowsKey &) const = default;
};

/// Where the combination sits on the keyboard layout of the calling thread.
[[nodiscard]] WindowsKey windowsKey(QKeyCombination keys);
