#include "platform/x11keysyms.h"

#include <QChar>

#include <X11/XF86keysym.h>
#include <X11/keysym.h>

#include <array>

namespace
{

struct NamedKey {
    Qt::Key key;
    uint32_t symbol;
};

constexpr std::array kNamedKeys{
    NamedKey{ Qt::Key_Escape, XK_Escape },
    NamedKey{ Qt::Key_Tab, XK_Tab },
    NamedKey{ Qt::Key_Tab, XK_KP_Tab },
    NamedKey{ Qt::Key_Backtab, XK_ISO_Left_Tab },
    NamedKey{ Qt::Key_Backspace, XK_BackSpace },
    NamedKey{ Qt::Key_Return, XK_Return },
    NamedKey{ Qt::Key_Enter, XK_KP_Enter },
    NamedKey{ Qt::Key_Space, XK_space },
    NamedKey{ Qt::Key_Space, XK_KP_Space },
    NamedKey{ Qt::Key_Insert, XK_Insert },
    NamedKey{ Qt::Key_Insert, XK_KP_Insert },
    NamedKey{ Qt::Key_Delete, XK_Delete },
    NamedKey{ Qt::Key_Delete, XK_KP_Delete },
    NamedKey{ Qt::Key_Home, XK_Home },
    NamedKey{ Qt::Key_Home, XK_KP_Home },
    NamedKey{ Qt::Key_End, XK_End },
    NamedKey{ Qt::Key_End, XK_KP_End },
    NamedKey{ Qt::Key_PageUp, XK_Page_Up },
    NamedKey{ Qt::Key_PageUp, XK_KP_Page_Up },
    NamedKey{ Qt::Key_PageDown, XK_Page_Down },
    NamedKey{ Qt::Key_PageDown, XK_KP_Page_Down },
    NamedKey{ Qt::Key_Left, XK_Left },
    NamedKey{ Qt::Key_Left, XK_KP_Left },
    NamedKey{ Qt::Key_Right, XK_Right },
    NamedKey{ Qt::Key_Right, XK_KP_Right },
    NamedKey{ Qt::Key_Up, XK_Up },
    NamedKey{ Qt::Key_Up, XK_KP_Up },
    NamedKey{ Qt::Key_Down, XK_Down },
    NamedKey{ Qt::Key_Down, XK_KP_Down },
    NamedKey{ Qt::Key_Clear, XK_Clear },
    NamedKey{ Qt::Key_Clear, XK_KP_Begin },
    NamedKey{ Qt::Key_Asterisk, XK_KP_Multiply },
    NamedKey{ Qt::Key_Plus, XK_KP_Add },
    NamedKey{ Qt::Key_Minus, XK_KP_Subtract },
    NamedKey{ Qt::Key_Slash, XK_KP_Divide },
    NamedKey{ Qt::Key_Period, XK_KP_Decimal },
    NamedKey{ Qt::Key_Equal, XK_KP_Equal },
    NamedKey{ Qt::Key_Print, XK_Print },
    NamedKey{ Qt::Key_SysReq, XK_Sys_Req },
    NamedKey{ Qt::Key_Pause, XK_Pause },
    NamedKey{ Qt::Key_Menu, XK_Menu },
    NamedKey{ Qt::Key_Help, XK_Help },
    NamedKey{ Qt::Key_CapsLock, XK_Caps_Lock },
    NamedKey{ Qt::Key_NumLock, XK_Num_Lock },
    NamedKey{ Qt::Key_ScrollLock, XK_Scroll_Lock },
    NamedKey{ Qt::Key_VolumeUp, XF86XK_AudioRaiseVolume },
    NamedKey{ Qt::Key_VolumeDown, XF86XK_AudioLowerVolume },
    NamedKey{ Qt::Key_VolumeMute, XF86XK_AudioMute },
    NamedKey{ Qt::Key_MicMute, XF86XK_AudioMicMute },
    NamedKey{ Qt::Key_MediaPlay, XF86XK_AudioPlay },
    NamedKey{ Qt::Key_MediaTogglePlayPause, XF86XK_AudioPlay },
    NamedKey{ Qt::Key_MediaPause, XF86XK_AudioPause },
    NamedKey{ Qt::Key_MediaStop, XF86XK_AudioStop },
    NamedKey{ Qt::Key_MediaPrevious, XF86XK_AudioPrev },
    NamedKey{ Qt::Key_MediaNext, XF86XK_AudioNext },
    NamedKey{ Qt::Key_MediaRecord, XF86XK_AudioRecord },
    NamedKey{ Qt::Key_AudioRewind, XF86XK_AudioRewind },
    NamedKey{ Qt::Key_AudioForward, XF86XK_AudioForward },
    NamedKey{ Qt::Key_LaunchMedia, XF86XK_AudioMedia },
    NamedKey{ Qt::Key_LaunchMail, XF86XK_Mail },
    NamedKey{ Qt::Key_Calculator, XF86XK_Calculator },
    NamedKey{ Qt::Key_HomePage, XF86XK_HomePage },
    NamedKey{ Qt::Key_Search, XF86XK_Search },
    NamedKey{ Qt::Key_Favorites, XF86XK_Favorites },
    NamedKey{ Qt::Key_Back, XF86XK_Back },
    NamedKey{ Qt::Key_Forward, XF86XK_Forward },
    NamedKey{ Qt::Key_Refresh, XF86XK_Refresh },
    NamedKey{ Qt::Key_Stop, XF86XK_Stop },
    NamedKey{ Qt::Key_Explorer, XF86XK_Explorer },
    NamedKey{ Qt::Key_WWW, XF86XK_WWW },
    NamedKey{ Qt::Key_Tools, XF86XK_Tools },
    NamedKey{ Qt::Key_Eject, XF86XK_Eject },
    NamedKey{ Qt::Key_Sleep, XF86XK_Sleep },
    NamedKey{ Qt::Key_MonBrightnessUp, XF86XK_MonBrightnessUp },
    NamedKey{ Qt::Key_MonBrightnessDown, XF86XK_MonBrightnessDown },
};

/// Symbols of the Latin-1 characters are the characters; all others are marked by this bit.
constexpr uint32_t kUnicodeSymbol = 0x01000000;

uint32_t characterSymbol(Qt::Key key)
{
    const uint32_t character = QChar::toLower(uint32_t(key));
    return character <= 0xff ? character : (character | kUnicodeSymbol);
}

} // namespace

std::vector<uint32_t> x11KeySymbols(Qt::Key key)
{
    std::vector<uint32_t> symbols;
    if (key < Qt::Key_Escape && key != Qt::Key_Space)
        symbols.push_back(characterSymbol(key));
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        symbols.push_back(uint32_t(XK_KP_0 + (key - Qt::Key_0)));
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        symbols.push_back(uint32_t(XK_F1 + (key - Qt::Key_F1)));
    if (key >= Qt::Key_Launch0 && key <= Qt::Key_LaunchF)
        symbols.push_back(uint32_t(XF86XK_Launch0 + (key - Qt::Key_Launch0)));
    for (const NamedKey &named : kNamedKeys) {
        if (named.key == key)
            symbols.push_back(named.symbol);
    }
    return symbols;
}

bool isNumLockedKeypadSymbol(uint32_t symbol)
{
    return (symbol >= XK_KP_0 && symbol <= XK_KP_9) || symbol == XK_KP_Decimal;
}

bool isPlainKeypadSymbol(uint32_t symbol)
{
    return symbol >= XK_KP_Home && symbol <= XK_KP_Delete;
}
