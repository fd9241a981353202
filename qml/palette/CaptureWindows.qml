import QtQuick

/// Loads the screenshot window and the recording panel on demand.
Item {
    id: root

    /// The palette window.
    required property var palette
    /// The recorder, to end a recording that outlives its panel.
    required property var videoCapture

    readonly property string idleIcon: "qrc:/icons/record.png"
    property string recordIcon: idleIcon
    readonly property bool isRecordIcon: recordIcon === idleIcon

    // Loading waits for the next turn of the event loop: the loader must have let go of the former
    // window before it makes the next one.
    function openScreenshot() {
        screenshotLoader.source = "";
        Qt.callLater(() => screenshotLoader.setSource("qrc:/Screenshot.qml",
                                                      { sPath: palette.hotKeys.screenSavePath ?? "" }));
    }

    function toggleRecording() {
        if (!isRecordIcon) {
            if (recordLoader.item)
                recordLoader.item.stopRecord();
            recordLoader.source = "";
            recordIcon = idleIcon;
            return;
        }
        recordIcon = "qrc:/icons/stop.png";
        recordLoader.source = "";
        recordLoader.active = false;
        recordLoader.active = true;
        Qt.callLater(() => recordLoader.setSource("qrc:/VideoShot.qml",
                                                  { sPath: palette.hotKeys.screenSavePath ?? "" }));
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
        target: recordLoader.item
        ignoreUnknownSignals: true
        function onClose() {
            console.log("VideoShot窗口关闭，检查录制状态");
            root.recordIcon = root.idleIcon;
            if (root.videoCapture.isRecording()) {
                console.log("停止录制中...");
                root.videoCapture.stopRecording();
            }
            // The panel is still inside its own signal; it must not be deleted under it.
            Qt.callLater(() => {
                recordLoader.source = "";
                recordLoader.active = false;
                console.log("VideoShot资源已清理");
            });
        }
    }
}
