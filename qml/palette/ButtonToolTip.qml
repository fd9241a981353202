import QtQuick
import QtQuick.Window
import "Theme.js" as Theme

/// A tool-tip beside the window of its button, at the pointer's height: a window of its own, since
/// the palette is narrower than any text, and beside it, since it must not cover the next button.
Window {
    id: root

    required property string text
    required property Item button
    required property real pointerY
    property bool onLeft: false
    property real gap: 8

    readonly property var home: button.Window.window

    function place() {
        const top = button.mapToGlobal(0, pointerY).y - height / 2;
        const lowest = Screen.virtualY + Screen.height - height;
        x = onLeft ? home.x - width - gap : home.x + home.width + gap;
        y = Math.round(Math.max(Screen.virtualY, Math.min(top, lowest)));
    }

    flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
           | Qt.WindowDoesNotAcceptFocus | Qt.WindowTransparentForInput
    color: "transparent"
    transientParent: null
    width: Math.ceil(label.implicitWidth) + 18
    height: Math.ceil(label.implicitHeight) + 10

    Component.onCompleted: {
        place();
        visible = true;
    }
    onWidthChanged: place()
    onGapChanged: place()

    Rectangle {
        anchors.fill: parent
        radius: 5
        color: Theme.tipBackground

        Text {
            id: label
            anchors.centerIn: parent
            text: root.text
            color: Theme.tipText
            font.pixelSize: 12
        }
    }
}
