import QtQuick
import QtQuick.Controls

ApplicationWindow {
    width: 240
    height: 320
    visible: true
    title: "Bare window"

    Button {
        anchors.centerIn: parent
        flat: true // the software scene graph has no shadows
        text: "Button"
    }
}
