import QtQuick
import FluentUI

// A short hint over whatever the desktop shows: its light ground keeps it legible.
FluText {
    id: root

    Rectangle {
        z: -1
        anchors.fill: parent
        anchors.margins: -2
        radius: 3
        color: "white"
        opacity: 0.85
    }
}
