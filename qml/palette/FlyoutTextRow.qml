import QtQuick
import "Theme.js" as Theme

/// A flyout row that shows a text.
Rectangle {
    id: root

    required property var row

    color: area.containsMouse ? Theme.rowHover : Theme.paper
    radius: 4
    Accessible.role: Accessible.MenuItem
    Accessible.name: label.text
    Accessible.onPressAction: root.row.choose()

    Text {
        id: label
        anchors.fill: parent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: root.row.modelData.name
        color: Theme.ink
        font.pixelSize: Math.round(12 * root.row.scaleFactor)
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 6
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.row.choose()
    }
}
