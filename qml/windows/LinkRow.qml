import QtQuick
import "Theme.js" as Theme

/// A line that opens a page in the browser: what it is on the left, a note on the right.
Item {
    id: root

    required property string text
    required property string note

    signal opened()

    implicitHeight: label.implicitHeight + 8
    activeFocusOnTab: true
    Accessible.role: Accessible.Link
    Accessible.name: text + ", " + note
    Accessible.onPressAction: root.opened()
    Keys.onReturnPressed: opened()
    Keys.onSpacePressed: opened()

    Rectangle {
        anchors { fill: parent; leftMargin: -6; rightMargin: -6 }
        radius: 4
        color: area.containsMouse ? "#f3f3f4" : "transparent"
        border { width: root.activeFocus ? 2 : 0; color: Theme.accent }
    }

    Text {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: Theme.ink
        font { pixelSize: Theme.bodyText; underline: area.containsMouse }
    }

    Text {
        anchors { verticalCenter: parent.verticalCenter; right: parent.right }
        text: root.note
        color: Theme.inkMuted
        font.pixelSize: Theme.bodyText
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: root.opened()
    }
}
