import QtQuick
import QtQuick.Window
import Cpp.MyComponents
import Dravelin.Platform
import FluentUI
import "FileUrls.js" as FileUrls
import "OverlayLog.js" as OverlayLog

// The full-screen transparent window on which people draw. The palette creates it once and then
// switches it between drawing (`resetDraw`) and pass-through (`chuantouMouse`).
Window {
    id: root

    readonly property alias painter: myPainter
    readonly property alias surface: overlaySurface
    readonly property alias ground: overlayGround
    readonly property alias currentTextEditor: textEntry.current
    readonly property bool showPenCursorComponent: !selectionFrame.visible
    /// The window whose monitor is drawn on: the palette.
    property alias anchorWindow: overlaySurface.anchor
    /// A click places a text editor instead of drawing.
    property bool textInputMode: false
    /// File URL of the background picture.
    property string backgroundImage: ""
    /// True in pass-through.
    property bool ct: false
    /// Only the first text editor of a run shows its frame and key hints.
    property alias showText: textEntry.showText
    property string lastElementId: ""
    /// False while the marks are kept out of sight; whoever draws on sees them again.
    property bool marksShown: true
    /// The colour to draw on, kept while pass-through shows the desktop instead.
    property color boardColor: "transparent"

    /// A click drew or deleted something.
    signal clickDrawWin
    signal requestRaiseMain
    /// The desktop asks the window to close; it stays, for the sake of the marks.
    signal leaveRequested
    /// How the pointer is taken back and let through depends on the desktop.
    signal drawingWanted
    signal passThroughWanted

    function resetDraw(): void {
        root.drawingWanted();
        root.raise();
        root.visible = true;
        root.marksShown = true;
        if (root.ct)
            root.color = root.boardColor;
        root.ct = false;
        root.requestRaiseMain();
        updateTimer.restart();
    }

    function chuantouMouse(): void {
        if (root.ct)
            return;
        pointer.finishGesture();
        textEntry.submitAndClose();
        selectionFrame.visible = false;
        root.boardColor = root.color;
        root.color = "transparent";
        root.ct = true;
        root.passThroughWanted();
    }

    function hideMarks(): void {
        pointer.finishGesture();
        textEntry.submitAndClose();
        selectionFrame.dismiss();
        root.marksShown = false;
    }

    /// Makes a mark of what is being typed.
    function submitText(): void { textEntry.submitAndClose(); }

    function openColorDialog(): void { dialogs.openColor(); }
    function closeColorDialog(): void { dialogs.closeColor(); }
    function getImgToBack(): void { dialogs.openPicture(); }
    function closeBackImg(): void { backgroundPicture.shown = false; }

    function showWarning(text: string, milliseconds: int): void {
        infoBar.showWarning(text, milliseconds);
    }

    function showPicture(picture: url): void {
        root.backgroundImage = "file:///" + String(picture).replace(/^file:\/+/, "");
        backgroundPicture.shown = true;
    }

    function savePicture(): void {
        textEntry.submitAndClose();
        const path = myPainter.savePicture();
        if (path !== "")
            infoBar.showSuccess(qsTr("图片已保存"), 4000, FileUrls.shown(path));
        else
            infoBar.showError(qsTr("图片未能保存"), 8000, FileUrls.shown(myPainter.saveError()));
    }

    title: qsTr("绘制窗口")
    color: "transparent"

    onClosing: close => {
        close.accepted = false;
        root.leaveRequested();
    }

    Component.onCompleted: root.resetDraw()

    OverlaySurface {
        id: overlaySurface
        window: root
        seeThrough: root.color.a === 0
    }

    Timer {
        id: updateTimer
        interval: 50
        onTriggered: myPainter.forceUpdateImage()
    }

    FluInfoBar {
        id: infoBar
        root: keyScope
    }

    FocusScope {
        id: keyScope

        anchors.fill: parent
        focus: true

        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_Escape && selectionFrame.visible) {
                console.log(OverlayLog.escapePressed);
                selectionFrame.dismiss();
            } else if (event.key === Qt.Key_T && event.modifiers === Qt.ControlModifier) {
                console.log(OverlayLog.selectingLast);
                if (myPainter.selectLastElement())
                    selectionFrame.follow();
            } else if (event.key === Qt.Key_S && event.modifiers === Qt.ControlModifier) {
                root.savePicture();
            } else {
                event.accepted = false;
            }
        }

        HoverHandler {
            onHoveredChanged: if (hovered)
                selectionFrame.visible = false
        }

        OverlayGround {
            id: overlayGround
            anchors.fill: parent
            surface: overlaySurface
            outline: [myPainter]
            visible: root.color.a === 0 // a board hides the desktop, and so the desktop's picture
            onFirstFrozen: infoBar.showWarning(
                qsTr("桌面没有运行合成器：您将在静止的屏幕画面上绘制"), 6000)
        }

        BackgroundPicture {
            id: backgroundPicture
            source: root.backgroundImage
            visible: shown && ready && !root.ct
            onOpened: {
                infoBar.showWarning(qsTr("Ctrl+鼠标滚轮:缩放图片"), 6000);
                infoBar.showWarning(qsTr("Ctrl+鼠标移动:拖动图片"), 6000);
            }
            onFailed: path => infoBar.showError(qsTr("无法打开图片"), 6000, FileUrls.shown(path))
        }

        MyPainter {
            id: myPainter
            anchors.fill: parent
            opacity: root.marksShown ? 1 : 0 // and not invisible: it is what takes the pointer
            onElementAdded: elementId => {
                root.lastElementId = elementId;
                console.log(OverlayLog.elementAdded, elementId);
            }
            onDrawModeChanged: selectionFrame.dismiss()

            OverlayPointer {
                id: pointer
                painter: myPainter
                frame: selectionFrame
                texts: textEntry
                picture: backgroundPicture
                textMode: root.textInputMode
                eraserTip: overlaySurface.eraserTip
                onPressed: root.marksShown = true
                onDrewOrDeleted: root.clickDrawWin()
                onGestureEnded: root.requestRaiseMain()
            }
        }

        SelectionFrame {
            id: selectionFrame
            painter: myPainter
        }
    }

    TextEntry {
        id: textEntry
        painter: myPainter
        parentWindow: root
        onFailed: infoBar.showWarning(qsTr("创建文本输入框失败，请确认TextEditBox.qml文件存在"), 3000)
    }

    OverlayDialogs {
        id: dialogs
        anchors.fill: parent
        painter: myPainter
        palette: root.anchorWindow
            ? Qt.rect(root.anchorWindow.x - root.x, root.anchorWindow.y - root.y,
                root.anchorWindow.width, root.anchorWindow.height)
            : Qt.rect(0, 0, 0, 0)
        onPictureChosen: picture => root.showPicture(picture)
    }
}
