#pragma once

#include <QStringList>

/// The names of a pressed combination in the order Alt, Ctrl, Shift, key. Empty for modifiers alone
/// and for keys that are no good as a shortcut. A sign that Shift selects on a US keyboard gives
/// the key's unshifted sign, since Shift is named already.
[[nodiscard]] QStringList shortcutKeyNames(Qt::Key key, Qt::KeyboardModifiers modifiers);
