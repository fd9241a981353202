#pragma once

#include <QCoreApplication>
#include <QRect>
#include <QString>

/// Writes what the primary screen shows to a JPEG file, at the screen's physical resolution. Each
/// failing step is logged; the outcome also carries a text for the user.
class ScreenCapture
{
    Q_DECLARE_TR_FUNCTIONS(ScreenCapture)

public:
    struct Outcome {
        QString savedPath; ///< empty when nothing was saved
        QString failure; ///< what went wrong and what to do, translated; empty when nothing did
    };

    /// `region` in logical pixels, relative to the primary screen's own origin. The picture is
    /// also copied to the clipboard, even when it could not be saved.
    [[nodiscard]] static Outcome captureRegion(const QRect &region);

    [[nodiscard]] static Outcome captureWholeScreen();
};
