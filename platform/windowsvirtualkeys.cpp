#include "platform/windowsvirtualkeys.h"

#include <algorithm>
#include <array>

#include <windows.h>

namespace
{

struct NamedKey {
    Qt::Key key;
    unsigned virtualKey;
};

constexpr std::array kNamedKeys{
    NamedKey{ Qt::Key_Escape, VK_ESCAPE },
    NamedKey{ Qt::Key_Tab, VK_TAB },
    NamedKey{ Qt::Key_Backtab, VK_TAB },
    NamedKey{ Qt::Key_Backspace, VK_BACK },
    NamedKey{ Qt::Key_Return, VK_RETURN },
    NamedKey{ Qt::Key_Enter, VK_RETURN },
    NamedKey{ Qt::Key_Space, VK_SPACE },
    NamedKey{ Qt::Key_Insert, VK_INSERT },
    NamedKey{ Qt::Key_Delete, VK_DELETE },
    NamedKey{ Qt::Key_Home, VK_HOME },
    NamedKey{ Qt::Key_End, VK_END },
    NamedKey{ Qt::Key_PageUp, VK_PRIOR },
    NamedKey{ Qt::Key_PageDown, VK_NEXT },
    NamedKey{ Qt::Key_Left, VK_LEFT },
    NamedKey{ Qt::Key_Right, VK_RIGHT },
    NamedKey{ Qt::Key_Up, VK_UP },
    NamedKey{ Qt::Key_Down, VK_DOWN },
    NamedKey{ Qt::Key_Clear, VK_CLEAR },
    NamedKey{ Qt::Key_Print, VK_SNAPSHOT },
    NamedKey{ Qt::Key_Pause, VK_PAUSE },
    NamedKey{ Qt::Key_Menu, VK_APPS },
    NamedKey{ Qt::Key_Help, VK_HELP },
    NamedKey{ Qt::Key_CapsLock, VK_CAPITAL },
    NamedKey{ Qt::Key_NumLock, VK_NUMLOCK },
    NamedKey{ Qt::Key_ScrollLock, VK_SCROLL },
    NamedKey{ Qt::Key_VolumeUp, VK_VOLUME_UP },
    NamedKey{ Qt::Key_VolumeDown, VK_VOLUME_DOWN },
    NamedKey{ Qt::Key_VolumeMute, VK_VOLUME_MUTE },
    NamedKey{ Qt::Key_MediaPlay, VK_MEDIA_PLAY_PAUSE },
    NamedKey{ Qt::Key_MediaTogglePlayPause, VK_MEDIA_PLAY_PAUSE },
    NamedKey{ Qt::Key_MediaStop, VK_MEDIA_STOP },
    NamedKey{ Qt::Key_MediaPrevious, VK_MEDIA_PREV_TRACK },
    NamedKey{ Qt::Key_MediaNext, VK_MEDIA_NEXT_TRACK },
    NamedKey{ Qt::Key_LaunchMail, VK_LAUNCH_MAIL },
    NamedKey{ Qt::Key_LaunchMedia, VK_LAUNCH_MEDIA_SELECT },
    NamedKey{ Qt::Key_HomePage, VK_BROWSER_HOME },
    NamedKey{ Qt::Key_Search, VK_BROWSER_SEARCH },
    NamedKey{ Qt::Key_Favorites, VK_BROWSER_FAVORITES },
    NamedKey{ Qt::Key_Back, VK_BROWSER_BACK },
    NamedKey{ Qt::Key_Forward, VK_BROWSER_FORWARD },
    NamedKey{ Qt::Key_Refresh, VK_BROWSER_REFRESH },
    NamedKey{ Qt::Key_Stop, VK_BROWSER_STOP },
    NamedKey{ Qt::Key_Sleep, VK_SLEEP },
};

/// A sign may need Shift or AltGr on this layout; the answer's high byte says so.
WindowsKey signKey(QKeyCombination keys)
{
    const SHORT scan = VkKeyScanW(WCHAR(keys.key()));
    if (scan == -1)
        return {};
    const int state = HIBYTE(scan);
    WindowsKey result{ unsigned(LOBYTE(scan)), keys.keyboardModifiers() };
    result.modifiers.setFlag(
        Qt::ShiftModifier, (state & 1) || (result.modifiers & Qt::ShiftModifier));
    if (state & 2)
        result.modifiers |= Qt::ControlModifier;
    if (state & 4)
        result.modifiers |= Qt::AltModifier;
    return result;
}

} // namespace

WindowsKey windowsKey(QKeyCombination keys)
{
    const Qt::Key key = keys.key();
    const Qt::KeyboardModifiers modifiers = keys.keyboardModifiers();
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return { unsigned(key), modifiers };
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return { unsigned(VK_F1 + (key - Qt::Key_F1)), modifiers };
    const auto named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
        [key](const NamedKey &entry) { return entry.key == key; });
    if (named != kNamedKeys.end())
        return { named->virtualKey, modifiers };
    return key < Qt::Key_Escape ? signKey(keys) : WindowsKey{};
}
