import QtQuick

/// Eight arms that mark the corners of a region, inside its edges.
Item {
    id: root

    required property color color
    property int armLength: 20
    property int armWidth: 3

    anchors.fill: parent

    Repeater {
        model: 4

        Item {
            id: corner

            required property int index
            readonly property bool isRight: index % 2 === 1
            readonly property bool isBottom: index > 1
            readonly property int horizontal: Math.min(root.armLength, root.width)
            readonly property int vertical: Math.min(root.armLength, root.height)

            Rectangle {
                x: corner.isRight ? root.width - width : 0
                y: corner.isBottom ? root.height - height : 0
                width: corner.horizontal
                height: root.armWidth
                color: root.color
            }
            Rectangle {
                x: corner.isRight ? root.width - width : 0
                y: corner.isBottom ? root.height - height : 0
                width: root.armWidth
                height: corner.vertical
                color: root.color
            }
        }
    }
}
