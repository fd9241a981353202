import QtQuick
import QtQuick.Window
import FluentUI
import "FileUrls.js" as FileUrls
import "Notices.js" as Notices
import "Theme.js" as Theme

/// Tells in a corner of the screen what became of a capture. A click opens the file's folder. The
/// corner is an upper one: below a region stand the buttons for another try.
Window {
    id: root

    required property string heading
    /// What there is to say, if anything, beyond the file's name.
    property string detail: ""
    /// The file, empty when there is none.
    property string filePath: ""
    property bool isFailure: false

    /// Leaves room for a palette at the edge of the screen, or a panel of the desktop.
    readonly property int screenGap: 48
    readonly property int shownMs: 8000

    function openFolder() {
        Qt.openUrlExternally(FileUrls.ofFolder(FileUrls.folderOf(filePath)));
        destroy();
    }

    Component.onDestruction: Notices.forget(root)

    screen: Application.screens[0]
    title: FileUrls.shown(detail === "" ? heading : heading + " · " + detail)
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.WindowDoesNotAcceptFocus
    color: "transparent"
    width: 340
    height: texts.height + 32
    x: Screen.virtualX + Screen.width - width - screenGap
    y: Screen.virtualY + screenGap
    visible: true

    Rectangle {
        anchors.fill: parent
        radius: Theme.windowRadius
        color: root.filePath !== "" && area.containsMouse ? "#fafafa" : Theme.paper
        border { width: 1; color: Theme.hairline }

        MouseArea {
            id: area
            anchors.fill: parent
            hoverEnabled: true
            enabled: root.filePath !== ""
            cursorShape: enabled ? Qt.PointingHandCursor : Qt.ArrowCursor
            onClicked: root.openFolder()
        }

        Item {
            id: mark
            anchors { left: parent.left; leftMargin: 14; top: parent.top; topMargin: 14 }
            width: 24
            height: 24

            SharpImage {
                boxSide: mark.width
                picture: root.isFailure ? "qrc:/icons/failed.png" : "qrc:/icons/done.png"
            }
        }

        Column {
            id: texts
            anchors {
                left: mark.right
                leftMargin: 12
                right: parent.right
                rightMargin: 16
                top: parent.top
                topMargin: 16
            }
            spacing: 4

            PanelText {
                width: parent.width - closeButton.width
                text: root.heading
                font.weight: Font.DemiBold
            }
            PanelText {
                width: parent.width
                visible: text !== ""
                text: FileUrls.shown(root.detail)
                color: Theme.inkMuted
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                maximumLineCount: 6
                elide: Text.ElideRight
            }
            PanelText {
                width: parent.width
                visible: root.filePath !== ""
                text: FileUrls.shown(FileUrls.nameOf(root.filePath))
                wrapMode: Text.NoWrap
                elide: Text.ElideMiddle
            }
            PanelText {
                visible: root.filePath !== ""
                text: qsTr("打开文件夹")
                color: Theme.accent
                font.underline: area.containsMouse
            }
        }

        CloseButton {
            id: closeButton
            anchors { right: parent.right; top: parent.top; margins: 6 }
            onClicked: root.destroy()
        }
    }

    // What failed stays until it was read.
    Timer {
        running: !root.isFailure && !area.containsMouse && !closeButton.hovered
        interval: root.shownMs
        onTriggered: root.destroy()
    }
}
