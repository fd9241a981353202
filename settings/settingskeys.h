#pragma once

#include <array>

/// Names and defaults of everything that is stored between runs.
namespace SettingsKeys
{

// The per-user store.
inline constexpr char kStoreOrganization[] = "korvath";
inline constexpr char kStoreApplication[] = "settings";

inline constexpr char kScreenSavePath[] = "screenSavePath";
inline constexpr char kAppLanguage[] = "appLanguage";
inline constexpr char kDefaultLanguage[] = "zh_CN";

struct ShortcutDefault {
    const char *key;
    const char *sequence;
};

/// In ascending key order. The remaining shortcuts ("lineKey", "undoKey" and others) have their
/// defaults in the interface; "clearKey" shares its default with "lineKey" there.
inline constexpr std::array<ShortcutDefault, 6> kShortcutDefaults{ {
    { "clearKey", "Ctrl+L" },
    { "closeDrawKey", "Ctrl+Q" },
    { "eraseKey", "Ctrl+D" },
    { "penKey", "Ctrl+E" },
    { "screenKey", "Ctrl+P" },
    { "textKey", "Ctrl+T" },
} };

// The deployment file beside the executable.
inline constexpr char kIniFileName[] = "config.ini";
inline constexpr char kIniRenderingGroup[] = "APP";
inline constexpr char kIniRenderingKey[] = "opengl";
inline constexpr char kIniRenderingHardware[] = "hardware";
inline constexpr char kIniRenderingSoftware[] = "software";

} // namespace SettingsKeys
