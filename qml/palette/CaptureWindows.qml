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

    signal recordingBegan()
    /// `path` is empty when nothing was recorded, `failure` when nothing went wrong.
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
            if (!panel || !panel.stopRecord())
                recordLoader.source = "";
            return;
        }
        openPanel(false);
    }

    function openPanel(whole) {
        recordIcon = "qrc:/icons/stop.png";
        recordLoader.source = "";
        recordLoader.active = false;
        recordLoader.active = true;
        nextTurn(() => recordLoader.setSource("qrc:/VideoShot.qml",
                                              { sPath: settings.recordingFolder(), whole: whole }));
    }

    /// Records the region of a panel that is open, else the whole screen.
    function startRecording() {
        if (panel)
            panel.toggle();
        else
            openPanel(true);
    }

    Loader {
        id: screenshotLoader
        onLoaded: root.palette.screenWindow = item
    }

    Loader {
        id: recordLoader
        onStatusChanged: {
            if (status === Loader.Error)
                root.recordIcon = root.idleIcon;
        }
    }

    Connections {
        target: root.panel
        ignoreUnknownSignals: true
        function onBegan() { root.recordingBegan(); }
        function onEnded(path, failure) { root.recordingEnded(path, failure); }
        function onClose() {
            console.log("VideoShot窗口关闭，检查录制状态");
            root.recordIcon = root.idleIcon;
            if (root.videoCapture.isRecording()) {
                console.log("停止录制中...");
                root.videoCapture.stopRecording();
            }
            root.nextTurn(() => {
                recordLoader.source = "";
                recordLoader.active = false;
                console.log("VideoShot资源已清理");
            });
        }
    }
}
