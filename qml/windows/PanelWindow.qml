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
    /// What another window covers of this one at its right edge stays free of content.
    property int coveredRight: 0

    /// The user closes the window.
    signal dismissed()

    /// Puts the window at `left`, level with `palette`, but whole on the palette's monitor: this
    /// window itself belongs to the primary one until it is shown.
    function placeBeside(palette, left) {
        const area = palette.monitor;
        x = Math.max(area.x, Math.min(left, area.x + area.width - width));
        y = Math.max(area.y, Math.min(palette.y, area.y + area.height - height));
    }

    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    color: "transparent"
    onClosing: close => {
        // Whoever made the window destroys it.
        close.accepted = false;
        dismissed();
    }

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
            anchors {
                right: parent.right
                top: parent.top
                margins: root.closeMargin
                rightMargin: root.closeMargin + root.coveredRight
            }
            onClicked: root.dismissed()
        }

        Item {
            id: body
            anchors {
                fill: parent
                topMargin: root.stripHeight
                leftMargin: root.contentMargin
                rightMargin: root.contentMargin + root.coveredRight
                bottomMargin: root.contentMargin
            }
        }
    }
}
