import QtQuick
import "Theme.js" as Theme

/// How far a job is, with a line of text above.
Column {
    id: root

    /// 0.0 to 1.0.
    required property real value
    required property string label

    spacing: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label

    Text {
        text: root.label
        color: Theme.ink
        font.pixelSize: Theme.bodyText
    }

    Rectangle {
        width: parent.width
        height: 6
        radius: 3
        color: "#e6e7ea"

        Rectangle {
            width: Math.max(height, parent.width * root.value)
            height: parent.height
            radius: 3
            color: Theme.accent
        }
    }
}
