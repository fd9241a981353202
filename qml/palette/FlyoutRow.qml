import QtQuick
import "Theme.js" as Theme

/// One row of a flyout and the line beneath it.
Column {
    id: root

    required property int index
    /// "flyout": the flyout; "value": the row's value; "name": what it is called.
    required property var modelData

    readonly property var flyout: modelData.flyout
    readonly property real scaleFactor: flyout.scaleFactor
    readonly property string kind: ["qrc:/FlyoutIconRow.qml", "qrc:/FlyoutPictureRow.qml",
                                    "qrc:/FlyoutTextRow.qml"][flyout.btnType]

    function choose() {
        flyout.choose(index);
    }

    width: Math.round(flyout.width * 0.8)
    spacing: Math.round(2 * scaleFactor)

    Loader {
        width: root.width
        height: Math.round(35 * root.scaleFactor)
        clip: true
        Component.onCompleted: setSource(root.kind, { row: root })

        Rectangle {
            anchors.fill: parent
            z: 1
            visible: root.index === root.flyout.nowIdx
            color: "transparent"
            radius: 4
            border { color: Theme.accent; width: 2 }
        }
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.round(root.flyout.width * 0.7)
        height: Math.round(root.scaleFactor)
        color: Theme.separator
    }
}
