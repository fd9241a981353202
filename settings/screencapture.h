#pragma once

#include <QCoreApplication>
#include <QPoint>
#include <QSize>
#include <QString>

/// Writes what the primary screen shows to a JPEG file, at the screen's physical resolution. Each
/// failing step is logged; the outcome also carries a text for the user. A file is written whole or
/// not at all.
class ScreenCapture
{
    Q_DECLARE_TR_FUNCTIONS(ScreenCapture)

public:
    struct Outcome {
        QString savedPath; ///< empty when nothing was saved
        QString failure; ///< what went wrong and what to do, translated; empty when nothing did
    };

    /// In logical pixels, relative to the primary screen's own origin; any numbers may come, also
    /// such as no rectangle can hold. The picture is also copied to the clipboard, even when it
    /// could not be saved.
    [[nodiscard]] static Outcome captureRegion(const QPoint &topLeft, const QSize &size);

    [[nodiscard]] static Outcome captureWholeScreen();

    /// The same into the file at `path`, replacing an older one, in the format that its suffix
    /// tells (JPEG without one). The stored folder is not asked for.
    [[nodiscard]] static Outcome captureWholeScreenTo(const QString &path);
};
