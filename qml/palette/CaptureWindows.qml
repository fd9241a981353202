import QtQuick

/// Loads the screenshot window and the recording panel on demand.
Item {
    id: root

    /// The palette window.
    required property var palette
    /// The recorder, to end a recording that outlives its panel.
    required property var videoCapture
    required property var settings

    readonly property string savePath: palette.hotKeys.screenSavePath ?? ""
    readonly property string idleIcon: "qrc:/icons/record.png"
    property string recordIcon: idleIcon
    readonly property bool isRecordIcon: recordIcon === idleIcon
    readonly property var panel: recordLoader.item
    /// How long the recording has run; empty while none does.
    readonly property string elapsed: panel?.elapsed ?? ""
    readonly property bool recording: panel?.recording ?? false
    /// What the panel that closes has to tell.
    property string endedPath: ""
    property string endedFailure: ""

    signal recordingBegan()
    /// A recording is over, or did not come about, and the next can be begun. `path` is empty when
    /// nothing was recorded, `failure` when nothing went wrong.
    signal recordingEnded(string path, string failure)

    /// On the next turn of the event loop: a loader must have let go of its former window first,
    /// and a window must not be deleted under its own signal.
    function nextTurn(work) {
        Qt.callLater(work); // qmllint disable
    }

    function openScreenshot() {
        screenshotLoader.source = "";
        nextTurn(() => screenshotLoader.setSource("qrc:/Screenshot.qml", { sPath: savePath }));
    }

    function toggleRecording() {
        if (!isRecordIcon) {
            recordIcon = idleIcon;
            // A panel that still finishes its file closes by itself.
            if (!panel || !panel.stopRecord()) {
                recordLoader.source = "";
                tellEnd();
            }
            return;
        }
        openPanel(false);
    }

    function openPanel(whole) {
        recordIcon = "qrc:/icons/stop.png";
        endedPath = endedFailure = "";
        recordLoader.source = "";
        recordLoader.active = false;
        recordLoader.active = true;
        nextTurn(() => recordLoader.setSource("qrc:/VideoShot.qml",
                                              { sPath: settings.recordingFolder(), whole: whole }));
    }

    /// Records the region of a panel that is open, else the whole screen.
    function startRecording() {
        if (panel && !panel.leaving && !panel.whole)
            panel.toggle();
        else
            openPanel(true);
    }

    /// Ends a recording of the whole screen that was asked for and has not begun.
    function giveUpStarting() {
        if (panel?.whole)
            panel.leave();
    }

    function hasEnded(path, failure) {
        endedPath = path;
        endedFailure = failure;
        if (!panel.leaving && !panel.whole)
            tellEnd();
    }

    function tellEnd() {
        const path = endedPath;
        const failure = endedFailure;
        endedPath = endedFailure = "";
        recordingEnded(path, failure);
    }

    function removePanel(closed) {
        if (recordLoader.item !== closed)
            return; // another has taken its place, and its recording may be waited for
        recordLoader.source = "";
        recordLoader.active = false;
        console.log("VideoShot资源已清理");
        tellEnd();
    }

    Loader {
        id: screenshotLoader
        onLoaded: root.palette.screenWindow = item
    }

    Loader {
        id: recordLoader
        onStatusChanged: {
            if (status === Loader.Error) {
                root.recordIcon = root.idleIcon;
                root.tellEnd();
            }
        }
    }

    Connections {
        target: root.panel
        ignoreUnknownSignals: true
        function onBegan() { root.recordingBegan(); }
        function onEnded(path, failure) { root.hasEnded(path, failure); }
        function onClose() {
            console.log("VideoShot窗口关闭，检查录制状态");
            root.recordIcon = root.idleIcon;
            if (root.videoCapture.isRecording()) {
                console.log("停止录制中...");
                root.videoCapture.stopRecording();
            }
            const closed = root.panel;
            root.nextTurn(() => root.removePanel(closed));
        }
    }
}
