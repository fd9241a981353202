import QtQuick
import QtQuick.Window
import Cpp.MyComponents
import FluentUI
import "Notices.js" as Notices

/// The full-screen window in which a region of the screen is marked and recorded.
Window {
    id: root

    property int borderMargin: 3
    property color selectBorderColor: "red"
    property int cornerBorderSize: 20
    property int cornerBorderWidth: 3
    property color tranparentColor: "transparent"
    property color blurryColor: "transparent"
    property color selectDot: "transparent"
    /// Folder that receives the recording.
    property string sPath: ""
    property real devicePixelRatio: Screen.devicePixelRatio

    signal close()
    signal sigClose()
    /// The recorder has begun its file.
    signal began()
    /// A recording is over, or did not come about. The file is whole; `path` is empty without one.
    signal ended(string path, string failure)

    property bool recording: false
    /// The user has ended the recording; the window closes once the file is whole.
    property bool leaving: false
    property bool failureTold: false
    /// Why the latest recording failed; empty when it did not.
    property string failure: ""
    /// Records the whole screen as soon as the window stands, and closes whatever comes of it.
    property bool whole: false
    property bool begun: false
    /// How long the recording has run; empty while none does.
    readonly property alias elapsed: indicator.elapsed

    readonly property var audioChoices: [
        { text: qsTr("麦克风+系统"), option: "" },
        { text: qsTr("仅系统音频"), option: "--no-mic" },
        { text: qsTr("仅麦克风"), option: "--no-system-audio" },
        { text: qsTr("关闭音频"), option: "--no-audio" }
    ]

    /// Ends a running recording. Returns whether one ran; the panel closes once its file is whole.
    function stopRecord() {
        if (!captureObject.isRecording())
            return false;
        leaving = true;
        console.log("停止录制:", captureObject.stopRecording());
        return true;
    }

    /// Ends a running recording, then the panel.
    function leave() {
        if (!stopRecord())
            close();
    }

    function getOutputPath() {
        try {
            const path = sPath !== "" ? sPath + "/" : "./";
            console.log("录制文件将保存到:", path);
            return path;
        } catch (error) {
            console.log("获取输出路径时出错:", error);
            return "./";
        }
    }

    function getAudioOption() {
        return audioChoices[audioList.currentIndex]?.option ?? "";
    }

    /// Stops a running recording, or records this region of the window less the corner marks.
    function videoScreenshot(x, y, width, height) {
        if (captureObject.isRecording()) {
            leave();
            return;
        }
        const option = getAudioOption();
        console.log("开始录制 - 音频选项:", option);
        failureTold = false;
        failure = "";
        // The recorder counts from the whole desktop's corner, in physical pixels.
        const left = x + borderMargin + Screen.virtualX / devicePixelRatio;
        const top = y + borderMargin + Screen.virtualY / devicePixelRatio;
        const started = captureObject.startRecording(
            Math.round(left), Math.round(top), Math.round(width - 2 * borderMargin),
            Math.round(height - 3 * borderMargin), getOutputPath(), option);
        if (!started) {
            console.log("录制开始失败");
            return;
        }
        recording = captureObject.isRecording();
        console.log("录制已开始，界面已隐藏");
    }

    function recordAll() {
        // This region leaves no room for the margins, nor for the marks that they keep out.
        videoScreenshot(-borderMargin, -borderMargin,
                        Screen.width + 2 * borderMargin, Screen.height + 3 * borderMargin);
    }

    function toggle() {
        videoScreenshot(region.selectionX, region.selectionY,
                        region.selectionWidth, region.selectionHeight);
    }

    function updateFunctionRectPosition() {
        return functionRect.place;
    }

    /// Whether there is something of the latest recording in a file.
    function saved() {
        return captureObject.report.savedFile() !== "";
    }

    function tellFailure(detail) {
        if (failureTold)
            return;
        failureTold = true;
        failure = detail;
        Notices.show({
            heading: qsTr("录制失败"),
            detail: detail,
            filePath: captureObject.report.savedFile(),
            isFailure: true,
            // A panel that stays would lie over it.
            transientParent: leaving || whole ? null : root
        });
        if (!recording)
            finish();
    }

    function finish() {
        ended(captureObject.report.savedFile(), failure);
        if (leaving || whole)
            close();
    }

    function tellSaved() {
        const filePath = captureObject.report.savedFile();
        if (!failureTold && filePath !== "")
            Notices.show({
                heading: qsTr("录像已保存"),
                detail: indicator.note,
                filePath: filePath
            });
    }

    screen: Application.screens[0]
    title: qsTr("录屏")
    // While it records, the window lies over the desktop like glass.
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
           | (recording ? Qt.WindowTransparentForInput | Qt.WindowDoesNotAcceptFocus : 0)
    color: tranparentColor

    Component.onCompleted: {
        console.log("VideoCaptureObject component completed in VideoShot.qml");
        console.log("屏幕缩放比例:", devicePixelRatio);
        Notices.clear();
        ground.prepare();
    }
    onFrameSwapped: {
        if (!whole || begun)
            return;
        begun = true;
        recordAll();
    }
    // Closed in the midst of a recording, whose file is whole but for its last moment.
    Component.onDestruction: {
        if (captureObject.isRecording())
            tellSaved();
    }

    SettingsClazz { id: settingClazz }
    RecorderMessages { id: messages }

    VideoCaptureObject {
        id: captureObject

        onRecordingStarted: {
            console.log("QML监听到：录制已开始");
            indicator.begin();
        }
        onRecordingStopped: {
            console.log("QML监听到：录制已停止");
            indicator.end();
            // A recorder that had to be killed is reported twice.
            if (!root.recording)
                return;
            root.recording = false;
            root.tellSaved();
            root.finish();
        }
        onRecordingError: errorMessage => {
            console.log("QML监听到：录制错误:", errorMessage);
            indicator.end();
            root.tellFailure(messages.controllerFailure(errorMessage, root.saved()));
        }
    }

    Connections {
        target: captureObject.report

        function onBegun() { root.began(); }
        function onWarning(code, text) {
            indicator.add(messages.warning(code, text));
        }
        function onError(code, text) {
            root.tellFailure(messages.failure(code, text, root.saved()));
        }
    }

    Shortcut {
        sequence: "Escape"
        onActivated: root.leave()
    }

    CaptureGround {
        id: ground
        anchors.fill: parent
        host: root
        live: root.recording || root.leaving
        outline: [corners, indicator]
    }

    RegionSelector {
        id: region
        anchors.fill: parent
        borderMargin: root.borderMargin
        blurryColor: root.blurryColor
        selectDot: root.selectDot
        marksVisible: !root.leaving && !root.whole

        CornerMarks {
            id: corners
            color: root.selectBorderColor
            armLength: root.cornerBorderSize
            armWidth: root.cornerBorderWidth
        }
    }

    RecordingIndicator {
        id: indicator
        region: region
    }

    RegionBar {
        id: functionRect
        region: region
        visible: !region.drawing && !root.recording && !root.leaving && !root.whole

        FluComboBox {
            id: audioList
            width: 120
            leftPadding: 9
            rightPadding: 24
            model: root.audioChoices
            textRole: "text"
            visible: !root.recording
            onActivated: console.log("音频选项已更改为:", currentText)
        }
        FluButton {
            height: audioList.height
            text: qsTr("退出")
            onClicked: root.leave()
        }
        AccentButton {
            height: audioList.height
            text: root.recording ? qsTr("停止录制") : qsTr("开始录制")
            onClicked: root.toggle()
        }
    }
}
