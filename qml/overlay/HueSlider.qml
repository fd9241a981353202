import QtQuick
import "Theme.js" as Theme

// A strip of all hues, red at both ends.
Item {
    id: root

    /// From 0 to 1.
    required property real hue

    signal picked(real hue)

    function pickAt(x: real): void {
        // The right end is red as well, but must not jump to the left one.
        root.picked(Math.max(0, Math.min(0.999, x / root.width)));
    }

    implicitHeight: 14

    Rectangle {
        anchors.fill: parent
        radius: root.height / 2
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "#ff0000" }
            GradientStop { position: 1 / 6; color: "#ffff00" }
            GradientStop { position: 2 / 6; color: "#00ff00" }
            GradientStop { position: 3 / 6; color: "#00ffff" }
            GradientStop { position: 4 / 6; color: "#0000ff" }
            GradientStop { position: 5 / 6; color: "#ff00ff" }
            GradientStop { position: 1; color: "#ff0000" }
        }
    }

    Rectangle {
        x: root.hue * (root.width - width)
        anchors.verticalCenter: parent.verticalCenter
        width: root.height + 4
        height: width
        radius: width / 2
        color: Qt.hsva(root.hue, 1, 1, 1)
        border.color: "white"
        border.width: 3

        Rectangle {
            anchors.fill: parent
            anchors.margins: -1
            radius: width / 2
            color: "transparent"
            border.color: Theme.inkMuted
            border.width: 1
        }
    }

    MouseArea {
        anchors.fill: parent
        anchors.margins: -4
        preventStealing: true
        cursorShape: Qt.PointingHandCursor
        onPressed: mouse => root.pickAt(mouse.x - 4)
        onPositionChanged: mouse => root.pickAt(mouse.x - 4)
    }
}
