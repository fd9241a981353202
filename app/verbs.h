#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the program can be told to do from outside.
namespace Verbs
{
Q_NAMESPACE
QML_ELEMENT

enum Verb {
    Draw,
    PassThrough,
    Toggle,
    Pen,
    Highlighter,
    Text,
    Line,
    Circle,
    Rectangle,
    Arrow,
    Number,
    Eraser,
    Undo,
    Redo,
    Clear,
    HideMarks,
    ShowMarks,
    Capture,
    RecordStart,
    RecordStop,
    Export,
    Settings,
    Quit,
};
Q_ENUM_NS(Verb)

} // namespace Verbs
