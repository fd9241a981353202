import QtQuick
import "Theme.js" as Theme

// A field of all shades of one hue: saturation to the right, brightness upwards.
Item {
    id: root

    /// All from 0 to 1.
    required property real hue
    required property real saturation
    required property real brightness

    signal picked(real saturation, real brightness)

    function pickAt(mouse): void {
        root.picked(Math.max(0, Math.min(1, mouse.x / root.width)),
            1 - Math.max(0, Math.min(1, mouse.y / root.height)));
    }

    Rectangle {
        anchors.fill: parent
        radius: 4
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "white" }
            GradientStop { position: 1; color: Qt.hsva(root.hue, 1, 1, 1) }
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 4
        gradient: Gradient {
            GradientStop { position: 0; color: "transparent" }
            GradientStop { position: 1; color: "black" }
        }
        border.color: Theme.hairline
        border.width: 1
    }

    Rectangle {
        x: root.saturation * root.width - width / 2
        y: (1 - root.brightness) * root.height - height / 2
        width: 14
        height: 14
        radius: 7
        color: Qt.hsva(root.hue, root.saturation, root.brightness, 1)
        border.color: "white"
        border.width: 2

        Rectangle {
            anchors.fill: parent
            anchors.margins: -1
            radius: 8
            color: "transparent"
            border.color: Theme.inkMuted
            border.width: 1
        }
    }

    MouseArea {
        anchors.fill: parent
        anchors.margins: -4
        preventStealing: true
        cursorShape: Qt.CrossCursor
        onPressed: mouse => root.pickAt(mapToItem(root, mouse.x, mouse.y))
        onPositionChanged: mouse => root.pickAt(mapToItem(root, mouse.x, mouse.y))
    }
}
