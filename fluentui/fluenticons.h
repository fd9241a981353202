#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Names of the icons, for `iconSource`. Every name has a drawing icons/<name>.svg.
namespace FluentIcons
{
Q_NAMESPACE
QML_ELEMENT

/// The numbers are the code points that icon fonts commonly give these meanings.
enum class Type {
    ChevronDown = 0xe70d,
    ChevronUp = 0xe70e,
    Edit = 0xe70f,
    Add = 0xe710,
    Cancel = 0xe711,
    More = 0xe712,
    Settings = 0xe713,
    Video = 0xe714,
    Stop = 0xe71a,
    Search = 0xe721,
    Camera = 0xe722,
    Refresh = 0xe72c,
    Checkbox = 0xe739,
    CheckMark = 0xe73e,
    Delete = 0xe74d,
    Save = 0xe74e,
    EraseTool = 0xe75c,
    Keyboard = 0xe765,
    Play = 0xe768,
    Pause = 0xe769,
    ChevronLeft = 0xe76b,
    ChevronRight = 0xe76c,
    InkingTool = 0xe76d,
    Globe = 0xe774,
    Paste = 0xe77f,
    Color = 0xe790,
    Redo = 0xe7a6,
    Undo = 0xe7a7,
    Warning = 0xe7ba,
    Highlight = 0xe7e6,
    Home = 0xe80f,
    Clear = 0xe894,
    Download = 0xe896,
    Help = 0xe897,
    Folder = 0xe8b7,
    ChromeClose = 0xe8bb,
    Cut = 0xe8c6,
    Copy = 0xe8c8,
    FontSize = 0xe8e9,
    Info = 0xe946,
    Mouse = 0xe962,
    CircleRing = 0xea3a,
    EditMirrored = 0xeb7e,
    StatusErrorFull = 0xeb90,
    CompletedSolid = 0xec61,
    ClearAllInk = 0xed62,
    Pencil = 0xed63,
    Marker = 0xed64,
    InfoSolid = 0xf167,
};
Q_ENUM_NS(Type)

} // namespace FluentIcons
