#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/// What the help page tells, in the interface's language: every tool of the palette, what the hands
/// do while drawing, and the keys as they are set.
namespace HelpSheet
{

/// One thing to choose: its picture is the resource ":/icons/<picture>.png", empty for a text row.
struct Choice {
    QString picture;
    QString name;
};

/// One button of the palette, with the rows of its flyout.
struct Tool {
    Choice button;
    QString use;
    QList<Choice> choices;
    /// Its picture is white, for a button in the palette's accent colour.
    bool onAccent = false;
};

/// Keys or a gesture, and what they do.
struct Entry {
    QString keys;
    QString action;
};

/// In the palette's order, from the top.
[[nodiscard]] QList<Tool> tools();

/// The keys that work anywhere on the desktop. `settings` is the map of all stored settings; a key
/// that it lacks, or holds empty, has its default.
[[nodiscard]] QList<Entry> hotKeys(const QVariantMap &settings);

/// What pointer and keyboard do on the overlay while it takes them.
[[nodiscard]] QList<Entry> gestures();

} // namespace HelpSheet
