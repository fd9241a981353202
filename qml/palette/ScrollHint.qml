import QtQuick
import FluentUI
import "Theme.js" as Theme

/// Lies over one edge of a list that goes on beyond it and says so. A click brings the rest.
Rectangle {
    id: root

    property bool isTop: false

    signal clicked()

    height: 14
    color: Theme.paper

    Rectangle {
        y: root.isTop ? root.height - height : 0
        width: parent.width
        height: 1
        color: Theme.hairline
    }

    FluIcon {
        anchors { centerIn: parent; verticalCenterOffset: root.isTop ? 0 : 2 }
        iconSource: FluentIcons.ChevronDown
        iconSize: 12
        color: Theme.inkMuted
        rotation: root.isTop ? 180 : 0
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true // or the button beneath would open its flyout
        onClicked: root.clicked()
    }
}
