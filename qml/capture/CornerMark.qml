import QtQuick

/// Two arms that mark one corner of the region that the item covers, inside its edges.
Item {
    id: root

    required property color color
    required property int armLength
    required property int armWidth
    property bool isRight: false
    property bool isBottom: false

    Rectangle {
        x: root.isRight ? root.width - width : 0
        y: root.isBottom ? root.height - height : 0
        width: Math.min(root.armLength, root.width)
        height: root.armWidth
        color: root.color
    }
    Rectangle {
        x: root.isRight ? root.width - width : 0
        y: root.isBottom ? root.height - height : 0
        width: root.armWidth
        height: Math.min(root.armLength, root.height)
        color: root.color
    }
}
