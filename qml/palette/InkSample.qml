import QtQuick
import "Theme.js" as Theme

/// Shows in the pen button what the pen will draw: the mark in the button's picture takes the
/// colour, the opacity and, for a pen, the thickness of the canvas's pen.
Item {
    id: root

    /// The picture in the button.
    required property string picture
    /// The item that shows it.
    required property Item frame
    /// The button's present background.
    required property color backdrop
    required property var canvas

    // Where the mark lies on the 26-unit grid on which the pictures are drawn.
    readonly property var mark: ({
        "qrc:/icons/pen.png": Qt.rect(3, 19.5, 16, 5),
        "qrc:/icons/ygpen.png": Qt.rect(3, 19, 16, 5),
        "qrc:/icons/text.png": Qt.rect(19, 3, 2, 15)
    })[picture]
    readonly property real unit: frame.width / 26
    readonly property bool isPen: picture === "qrc:/icons/pen.png"
    readonly property real penSize: canvas ? canvas.penSize : 0
    readonly property real stroke: isPen ? Math.max(1.5, Math.min(5, penSize / 4 + 1)) : mark.height

    visible: canvas !== null && frame.opacity === 1
    x: frame.x + mark.x * unit
    y: frame.y + mark.y * unit
    width: mark.width * unit
    height: mark.height * unit

    Rectangle {
        anchors.fill: parent
        color: root.backdrop
    }

    Rectangle {
        anchors.centerIn: parent
        width: parent.width
        height: root.stroke * root.unit
        radius: Math.min(width, height) / 2
        antialiasing: true
        color: root.canvas ? root.canvas.penColor : "transparent"
        opacity: root.canvas ? root.canvas.penOpacity : 1
        // Pale ink would vanish on the white button.
        border { width: color.hslLightness > 0.8 ? 1 : 0; color: Theme.inkMuted }
    }
}
