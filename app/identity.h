#pragma once

/// Who this program is, to the system and to the interface.
namespace Identity
{

inline constexpr char kApplicationName[] = "painter";
inline constexpr char kVersion[] = "1.0.0";
inline constexpr char kOrganization[] = "korvath";
inline constexpr char kDisplayName[] = "Dravelin";
inline constexpr char kRightsNotice[] = "Copyright © 2024 The Dravelin authors. MIT licence.";

/// The desktop entry that is installed with the program, by which desktops know its windows.
inline constexpr char kDesktopEntry[] = "dravelin";
inline constexpr char kIcon[] = ":/icon.ico";
inline constexpr char kControlsStyle[] = "Material";
inline constexpr char kRootDocument[] = "qrc:/painter.qml";
inline constexpr char kQmlModulesInResources[] = ":/qt/qml";

} // namespace Identity
