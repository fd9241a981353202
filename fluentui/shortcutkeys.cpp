#include "fluentui/shortcutkeys.h"

#include <algorithm>
#include <array>

namespace
{

struct NamedKey {
    Qt::Key key;
    const char *name;
};

constexpr std::array kNamedKeys{
    NamedKey{ Qt::Key_Up, "Up" },
    NamedKey{ Qt::Key_Down, "Down" },
    NamedKey{ Qt::Key_Left, "Left" },
    NamedKey{ Qt::Key_Right, "Right" },
    NamedKey{ Qt::Key_Home, "Home" },
    NamedKey{ Qt::Key_End, "End" },
    NamedKey{ Qt::Key_PageUp, "PgUp" },
    NamedKey{ Qt::Key_PageDown, "PgDown" },
    NamedKey{ Qt::Key_Insert, "Insert" },
    NamedKey{ Qt::Key_Delete, "Delete" },
    NamedKey{ Qt::Key_Space, "Space" },
};

// The same places in both: what a US keyboard writes with and without Shift.
constexpr std::string_view kShifted = "!@#$%^&*()_+{}|:\"<>?~";
constexpr std::string_view kUnshifted = "1234567890-=[]\\;',./`";
static_assert(kShifted.size() == kUnshifted.size());

QString signName(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (key <= Qt::Key_Space || key > Qt::Key_AsciiTilde)
        return {};
    const char sign = char(key);
    const size_t place = kShifted.find(sign);
    // Other layouts write some of these signs without Shift; there the sign names its own key.
    const bool shifted = place != std::string_view::npos && (modifiers & Qt::ShiftModifier);
    const char name = shifted ? kUnshifted[place] : sign;
    // A plus sign joins the names, so it cannot be one.
    return name == '+' ? QString() : QString(QLatin1Char(name));
}

QString keyName(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return QStringLiteral("F%1").arg(key - Qt::Key_F1 + 1);
    const auto named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
        [key](const NamedKey &entry) { return entry.key == key; });
    return named != kNamedKeys.end() ? QString::fromLatin1(named->name) : signName(key, modifiers);
}

} // namespace

QStringList shortcutKeyNames(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const QString name = keyName(key, modifiers);
    if (name.isEmpty())
        return {};
    QStringList names;
    if (modifiers & Qt::AltModifier)
        names << QStringLiteral("Alt");
    if (modifiers & Qt::ControlModifier)
        names << QStringLiteral("Ctrl");
    if (modifiers & Qt::ShiftModifier)
        names << QStringLiteral("Shift");
    return names << name;
}
