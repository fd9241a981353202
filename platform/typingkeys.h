#pragma once

#include <QKeyCombination>

/// True for keys with which people write or edit (letters, signs, Return, arrows, Esc...) pressed
/// without Ctrl, Alt or Meta. Taking one of them from all programs would swallow what people type.
[[nodiscard]] bool isTypingKey(QKeyCombination keys);

/// True for the combinations that every text editor understands (Ctrl+A, Ctrl+Z, Ctrl+Left...).
[[nodiscard]] bool isEditingKey(QKeyCombination keys);

/// True while the item with the keyboard focus in one of the program's own windows takes text.
[[nodiscard]] bool isTextEditorFocused();
