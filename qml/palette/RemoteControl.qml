import QtQuick
import Dravelin.Shell

/// Has the palette do what another start of the program was told on its command line.
Item {
    id: root

    /// The palette window.
    required property var palette
    required property var settings

    readonly property var tools: palette.tools
    readonly property var captures: palette.captures
    readonly property var overlay: palette.drawWindow
    readonly property var canvas: tools.canvas

    /// Tickets of what is answered later; 0 while nothing is.
    property int capturing: 0
    property int startingToRecord: 0
    property int endingRecording: 0

    /// `failure` is empty when the command was carried out.
    /// `file` is what was made, even if not wholly.
    function answer(ticket, failure, file = "") {
        if (failure === "")
            Remote.succeed(ticket, file);
        else
            Remote.refuse(ticket, failure, file);
    }

    function draw() {
        if (!palette.drawAble)
            palette.overlayLink.toggle();
        if (!palette.drawing)
            return qsTr("无法打开绘制窗口");
        overlay.marksShown = true;
        return "";
    }

    function passThrough() {
        if (palette.drawAble)
            palette.overlayLink.toggle();
        return "";
    }

    /// A tool is picked up to be used.
    function pick(choose, picture) {
        const failure = draw();
        if (failure === "")
            choose(0, "qrc:/icons/" + picture + ".png");
        return failure;
    }

    function erase() {
        const failure = draw();
        if (failure === "" && !canvas.isEraserMode)
            tools.toggleEraser();
        return failure;
    }

    function undo() {
        if (!canvas?.canUndo)
            return qsTr("没有可以撤销的操作");
        tools.undo();
        return "";
    }

    function redo() {
        if (!canvas?.canRedo)
            return qsTr("没有可以恢复的操作");
        tools.redo();
        return "";
    }

    function clear() {
        tools.clearMarks();
        return "";
    }

    function showMarks(shown) {
        if (overlay && shown)
            overlay.marksShown = true;
        else if (overlay)
            overlay.hideMarks();
        return "";
    }

    function exportMarks(ticket, file) {
        if (overlay)
            overlay.submitText();
        if (!canvas)
            answer(ticket, qsTr("画布上没有标记，没有保存图片"));
        else if (canvas.savePictureTo(file))
            answer(ticket, "", file);
        else
            answer(ticket, canvas.saveError());
    }

    function openSettings() {
        palette.windows.openSettings();
        return palette.settingWindow ? "" : qsTr("无法打开设置窗口");
    }

    function startRecording(ticket) {
        if (captures.recording) {
            answer(ticket, qsTr("已经在录制"));
            return;
        }
        startingToRecord = ticket;
        captures.startRecording();
    }

    function endRecording(ticket) {
        if (!captures.recording) {
            answer(ticket, qsTr("没有正在进行的录制"));
            return;
        }
        endingRecording = ticket;
        captures.toggleRecording();
    }

    /// A command that counts as refused must not come true later.
    function giveUp(ticket) {
        if (ticket === startingToRecord) {
            startingToRecord = 0;
            captures.giveUpStarting();
        }
        if (ticket === endingRecording)
            endingRecording = 0;
    }

    function perform(ticket, verb, file) {
        switch (verb) {
        case Verbs.Draw: return answer(ticket, draw());
        case Verbs.PassThrough: return answer(ticket, passThrough());
        case Verbs.Toggle: return answer(ticket, palette.drawAble ? passThrough() : draw());
        case Verbs.Pen: return answer(ticket, pick(tools.choosePen, "pen"));
        case Verbs.Highlighter: return answer(ticket, pick(tools.choosePen, "ygpen"));
        case Verbs.Text: return answer(ticket, pick(tools.choosePen, "text"));
        case Verbs.Line: return answer(ticket, pick(tools.chooseShape, "line"));
        case Verbs.Circle: return answer(ticket, pick(tools.chooseShape, "circle"));
        case Verbs.Rectangle: return answer(ticket, pick(tools.chooseShape, "rect"));
        case Verbs.Arrow: return answer(ticket, pick(tools.chooseShape, "jiantou"));
        case Verbs.Number: return answer(ticket, pick(tools.chooseShape, "munber"));
        case Verbs.Eraser: return answer(ticket, erase());
        case Verbs.Undo: return answer(ticket, undo());
        case Verbs.Redo: return answer(ticket, redo());
        case Verbs.Clear: return answer(ticket, clear());
        case Verbs.HideMarks: return answer(ticket, showMarks(false));
        case Verbs.ShowMarks: return answer(ticket, showMarks(true));
        case Verbs.Export: return exportMarks(ticket, file);
        case Verbs.Settings: return answer(ticket, openSettings());
        case Verbs.Capture:
            capturing = ticket;
            shutter.capture(file);
            break;
        case Verbs.RecordStart: return startRecording(ticket);
        case Verbs.RecordStop: return endRecording(ticket);
        case Verbs.Quit:
            answer(ticket, "");
            Qt.quit();
        }
    }

    // One of its own: the capture key may be pressed at the same moment.
    ScreenShutter {
        id: shutter
        settings: root.settings
        onTaken: (path, failure) => root.answer(root.capturing, failure, failure === "" ? path : "")
    }

    Connections {
        target: Remote
        function onRequested(ticket, verb, file) { root.perform(ticket, verb, file); }
        function onExpired(ticket) { root.giveUp(ticket); }
    }

    Connections {
        target: root.captures

        // An answer starts the next command, which may wait for the same: the tickets are put away
        // before it.
        function onRecordingBegan() {
            const started = root.startingToRecord;
            root.startingToRecord = 0;
            if (started !== 0)
                root.answer(started, "");
        }
        function onRecordingEnded(path, failure) {
            const started = root.startingToRecord;
            const ended = root.endingRecording;
            root.startingToRecord = root.endingRecording = 0;
            if (started !== 0)
                root.answer(started, failure !== "" ? failure : qsTr("录制没有开始"));
            if (ended !== 0)
                root.answer(ended,
                            path !== "" || failure !== "" ? failure : qsTr("没有录制到内容"), path);
        }
    }
}
