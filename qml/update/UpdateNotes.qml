import QtQuick
import "Theme.js" as Theme

/// The notes of a new version, scrolled when they are long. They come from a server: plain text.
Rectangle {
    id: root

    required property string text

    implicitHeight: notes.implicitHeight + 20
    radius: 6
    color: "#f6f6f7"
    clip: true

    Flickable {
        id: flickable
        anchors { fill: parent; margins: 10 }
        contentHeight: notes.implicitHeight
        boundsBehavior: Flickable.StopAtBounds

        Text {
            id: notes
            width: flickable.width
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: Theme.ink
            font.pixelSize: Theme.bodyText
            lineHeight: 1.25
        }
    }

    Rectangle {
        anchors { right: parent.right; rightMargin: 3 }
        y: 10 + flickable.visibleArea.yPosition * flickable.height
        width: 3
        height: flickable.visibleArea.heightRatio * flickable.height
        radius: 1.5
        visible: flickable.visibleArea.heightRatio < 1
        color: Theme.inkMuted
    }
}
