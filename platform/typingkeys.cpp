#include "platform/typingkeys.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>

#include <algorithm>
#include <array>

namespace
{

constexpr std::array kLetterCommands{ Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Y,
    Qt::Key_Z };
constexpr std::array kCaretKeys{ Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
    Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Insert, Qt::Key_Delete,
    Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backspace };
constexpr std::array kOtherWritingKeys{ Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Clear };

template <typename Keys> bool contains(const Keys &keys, Qt::Key key)
{
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

} // namespace

bool isTypingKey(QKeyCombination keys)
{
    if (keys.keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const Qt::Key key = keys.key();
    const bool printable = key < Qt::Key_Escape;
    const bool composing = key >= Qt::Key_Multi_key && key <= Qt::Key_Dead_Longsolidusoverlay;
    return printable || composing || contains(kCaretKeys, key) || contains(kOtherWritingKeys, key);
}

bool isEditingKey(QKeyCombination keys)
{
    const Qt::KeyboardModifiers modifiers = keys.keyboardModifiers();
    if (isTypingKey(keys))
        return true;
    if (!(modifiers & Qt::ControlModifier) || (modifiers & (Qt::AltModifier | Qt::MetaModifier)))
        return false;
    const bool shift = modifiers & Qt::ShiftModifier;
    if (contains(kLetterCommands, keys.key()))
        return !shift || keys.key() == Qt::Key_Z;
    return contains(kCaretKeys, keys.key());
}

bool isTextEditorFocused()
{
    QObject *focus = QGuiApplication::focusObject();
    if (!focus)
        return false;
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(focus, &query);
    return query.value(Qt::ImEnabled).toBool();
}
