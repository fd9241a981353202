import QtQuick
import "Notices.js" as Notices

/// Captures the whole screen, but for the notice about the capture before it, into the folder for
/// captures or into a file of one's choice.
Item {
    id: root

    required property var settings
    property string file: ""

    /// `failure` is empty when the picture was saved at `path`.
    signal taken(string path, string failure)

    function capture(to = "") {
        file = to;
        if (Notices.clear())
            patience.start();
        else
            take();
    }

    function take() {
        if (file !== "")
            settings.captureScreenTo(file);
        else
            settings.captureScreen();
        const result = settings.captureResult();
        if (file === "")
            outcome.tell(result);
        taken(result.path ?? "", result.message ?? "");
    }

    CaptureOutcome { id: outcome }

    // The screen shows what lay beneath the notice a moment after the notice has gone.
    Timer {
        id: patience
        interval: 100
        onTriggered: root.take()
    }
}
