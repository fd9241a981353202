import QtQuick
import "Notices.js" as Notices

/// Captures the whole screen, but for the notice about the capture before it.
Item {
    id: root

    required property var settings

    function capture() {
        if (Notices.clear())
            patience.start();
        else
            take();
    }

    function take() {
        root.settings.captureScreen();
        outcome.tell(root.settings.captureResult());
    }

    CaptureOutcome { id: outcome }

    // The screen shows what lay beneath the notice a moment after the notice has gone.
    Timer {
        id: patience
        interval: 100
        onTriggered: root.take()
    }
}
