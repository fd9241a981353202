import QtQuick
import QtQuick.Window
import "Theme.js" as Theme

/// A frameless window with a white rounded panel: dragged by its upper strip, closed by its button
/// or with Escape. Its content goes below the strip.
Window {
    id: root

    default property alias content: body.data

    readonly property int stripHeight: 40
    property int contentMargin: 24
    property int closeMargin: 8

    /// The user closes the window.
    signal dismissed()

    /// Puts the window at `left`, level with `palette`, but whole on its screen.
    function placeBeside(palette, left) {
        const leftmost = Screen.virtualX;
        const topmost = Screen.virtualY;
        x = Math.max(leftmost, Math.min(left, leftmost + Screen.width - width));
        y = Math.max(topmost, Math.min(palette.y, topmost + Screen.height - height));
    }

    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    color: "transparent"

    Rectangle {
        anchors.fill: parent
        radius: Theme.windowRadius
        color: Theme.paper
        border { color: Theme.hairline; width: 1 }
        focus: true
        Keys.onEscapePressed: root.dismissed()

        MouseArea {
            width: parent.width
            height: root.stripHeight
            onPressed: root.startSystemMove()
        }

        CloseButton {
            id: closeButton
            anchors { right: parent.right; top: parent.top; margins: root.closeMargin }
            onClicked: root.dismissed()
        }

        Item {
            id: body
            anchors {
                fill: parent
                topMargin: root.stripHeight
                leftMargin: root.contentMargin
                rightMargin: root.contentMargin
                bottomMargin: root.contentMargin
            }
        }
    }
}
